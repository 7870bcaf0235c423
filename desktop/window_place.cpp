#include "desktop/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <algorithm>

namespace veraqua {

namespace {

QString KeyOf(const QString& name) { return "windows/" + name; }

QRect RoomFor(const QWidget* over) {
    const QScreen* screen = over != nullptr ? over->screen() : QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

/// The frame moved and, where it must be, shrunk into `room`.
void FitInto(QWidget& window, const QRect& room) {
    window.resize(window.size().boundedTo(room.size()));
    const QSize frame = window.frameGeometry().size();
    const QPoint least = room.topLeft();
    const QPoint most(std::max(least.x(), room.right() - frame.width()),
                      std::max(least.y(), room.bottom() - frame.height()));
    window.move(std::clamp(window.pos().x(), least.x(), most.x()), std::clamp(window.pos().y(), least.y(), most.y()));
}

}  // namespace

void PlaceWindow(QWidget& window, const QString& name, const QWidget* over) {
    if (window.restoreGeometry(QSettings().value(KeyOf(name)).toByteArray()))
        return FitInto(window, window.screen()->availableGeometry());
    window.resize(window.size().expandedTo(window.minimumSizeHint()));
    const QRect room = RoomFor(over);
    const QPoint middle = over != nullptr && over->isVisible() ? over->frameGeometry().center() : room.center();
    window.move(middle - QPoint(window.width() / 2, window.height() / 2));
    FitInto(window, room);
}

void RememberWindow(const QWidget& window, const QString& name) {
    QSettings().setValue(KeyOf(name), window.saveGeometry());
}

}  // namespace veraqua
