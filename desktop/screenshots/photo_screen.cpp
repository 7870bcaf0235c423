#include "desktop/screenshots/photo_screen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <cstdio>

#include <fmt/format.h>

#include "desktop/text.h"
#include "screen/forms.h"

namespace veraqua {

namespace {

/// Whether the text of `widget` has more room than it needs.
bool IsWhole(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty() || !label->pixmap(Qt::ReturnByValue).isNull()) return true;
        if (label->wordWrap()) return label->height() >= label->heightForWidth(label->width());
        return label->width() >= label->sizeHint().width() && label->height() >= label->sizeHint().height();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty() || button->width() >= button->minimumSizeHint().width();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->fontMetrics().horizontalAdvance(line->text()) <= line->contentsRect().width();
    return true;
}

}  // namespace

void PhotoScreen::RunModal(FormTable& form) {
    Present(form);
    const auto doing = doings_.find(form.Name);
    if (form.Shown && doing != doings_.end()) std::function<void()>(doing->second)();
    if (form.Shown) CloseForm(form);
}

void PhotoScreen::StartGet(const std::string&, std::function<void(const HttpProgress&)> progress) {
    progress({HttpState::Connected, {}});
}

void PhotoScreen::Take(FormName form, const std::string& folder, const std::string& name) {
    BringAll();
    for (int round = 0; round < 5; ++round) QApplication::processEvents();
    QWidget& window = WindowOf(FormOf(form)).Window();
    QDir().mkpath(ToQt(folder));
    window.grab().save(ToQt(fmt::format("{}/{}.png", folder, name)));
    for (const QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && !widget->objectName().isEmpty() && !IsWhole(*widget))
            fmt::print("{}/{}: the text of {} is cut off.\n", folder, name, FromQt(widget->objectName()));
}

}  // namespace veraqua
