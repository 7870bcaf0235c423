#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

/// The user's manual inside the program, in a window of its own beside whichever form is at work.
namespace veraqua {

/// Shows the manual at the section `anchor`; empty or unknown: where it stands, or its beginning. There is one window
/// of it, which can be read and closed while `over`, the window in which the user asked for it, is modal.
void ShowManual(QWidget* over, const QString& anchor);

/// What `ShowManual` can go to.
QStringList ManualAnchors();

}  // namespace veraqua
