#include "desktop/views/field_note.h"

#include <algorithm>

#include "desktop/theme.h"

namespace veraqua {

namespace {

constexpr int WidestNote = 360;
constexpr int Gap = 4;

/// Below the input, or above it where the window ends; never beyond the window's sides.
QPoint PlaceFor(const QLabel& note, const QWidget& input) {
    const QWidget& window = *input.window();
    const QPoint corner = input.mapTo(&window, QPoint(0, input.height() + Gap));
    const int left = std::clamp(corner.x(), Gap, std::max(Gap, window.width() - note.width() - Gap));
    const bool fitsBelow = corner.y() + note.height() <= window.height();
    return {left, fitsBelow ? corner.y() : corner.y() - input.height() - note.height() - 2 * Gap};
}

}  // namespace

void FieldNote::Show(QWidget& input, const QString& why) {
    Clear();
    input_ = &input;
    ShowRefused(input, true);
    input.setAccessibleDescription(why);
    if (why.isEmpty()) return;
    note_ = new QLabel(why.simplified(), input.window());
    note_->setProperty("role", "note");
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    note_->setAttribute(Qt::WA_TransparentForMouseEvents);
    note_->setFixedWidth(std::min({WidestNote, note_->sizeHint().width() * 2, input.window()->width() - 2 * Gap}));
    note_->adjustSize();
    note_->move(PlaceFor(*note_, input));
    note_->show();
    note_->raise();
}

void FieldNote::Clear() {
    if (input_) {
        ShowRefused(*input_, false);
        input_->setAccessibleDescription({});
    }
    delete note_;
    input_ = nullptr;
}

}  // namespace veraqua
