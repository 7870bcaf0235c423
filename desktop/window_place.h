#pragma once

#include <QString>
#include <QWidget>

/// Where windows stand and how large they are, remembered from one run to the next.
namespace veraqua {

/// Gives `window` its size and place of last time, else a place in the middle of `over` (null: of the screen). No part
/// of it is off the screen.
void PlaceWindow(QWidget& window, const QString& name, const QWidget* over);

/// Remembers the size and place of `window`.
void RememberWindow(const QWidget& window, const QString& name);

}  // namespace veraqua
