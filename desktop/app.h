#pragma once

#include <QApplication>

#include "desktop/start_options.h"

namespace veraqua {

/// Begins to read what fonts there are, beside the toolkit's own start, which has no need of them yet.
/// `PrepareApplication` waits for it.
void ReadFontsAhead();

/// Sets the program's name, icon and theme, and makes all forms known.
void PrepareApplication(QApplication& app);

/// Shows the main menu and runs the program to its end. Gives the exit status.
int RunDesktop(QApplication& app, const StartOptions& options);

}  // namespace veraqua
