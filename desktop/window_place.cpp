#include "desktop/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <algorithm>

namespace veraqua {

namespace {

QString KeyOf(const QString& name) { return "windows/" + name; }

/// What the window manager puts around windows, of the same width for all, as of the last window that was seen with it.
/// A window that isn't shown yet has no frame, so its place is reckoned without one otherwise.
const QString FrameKey = "frame";

QMargins RememberedFrame() {
    const QVariantList sides = QSettings().value(FrameKey).toList();
    if (sides.size() != 4) return {4, 30, 4, 4};  // as wide as most, until the first window has been seen
    return {sides[0].toInt(), sides[1].toInt(), sides[2].toInt(), sides[3].toInt()};
}

void RememberFrame(const QWidget& window) {
    const QRect outer = window.frameGeometry();
    const QRect inner = window.geometry();
    QSettings().setValue(FrameKey, QVariantList{inner.left() - outer.left(), inner.top() - outer.top(),
                                                outer.right() - inner.right(), outer.bottom() - inner.bottom()});
}

QRect RoomFor(const QWidget* over) {
    const QScreen* screen = over != nullptr ? over->screen() : QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

/// Puts the window at `place`, moved and, where it must be, shrunk so that its frame lies in `room`. The place is that
/// within the frame: `move` would take it for the frame's, and the window would go down by a title at each start.
void PutAt(QWidget& window, QRect place, const QRect& room) {
    const QRect within = room.marginsRemoved(RememberedFrame());
    place.setSize(place.size().boundedTo(within.size()));
    place.moveTo(std::clamp(place.left(), within.left(), within.right() - place.width() + 1),
                 std::clamp(place.top(), within.top(), within.bottom() - place.height() + 1));
    window.setGeometry(place);
}

}  // namespace

void PlaceWindow(QWidget& window, const QString& name, const QWidget* over) {
    if (window.restoreGeometry(QSettings().value(KeyOf(name)).toByteArray())) {
        if (!window.isMaximized() && !window.isFullScreen())
            PutAt(window, window.geometry(), window.screen()->availableGeometry());
        return;
    }
    const QRect room = RoomFor(over);
    QRect place(QPoint(), window.size().expandedTo(window.minimumSizeHint()));
    place.moveCenter(over != nullptr && over->isVisible() ? over->frameGeometry().center() : room.center());
    PutAt(window, place, room);
}

void RememberWindow(const QWidget& window, const QString& name) {
    QSettings().setValue(KeyOf(name), window.saveGeometry());
    RememberFrame(window);
}

}  // namespace veraqua
