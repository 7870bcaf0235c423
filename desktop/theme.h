#pragma once

#include <QApplication>
#include <QWidget>
#include <optional>

#include "screen/controls.h"

/// How the program looks: one style, a light and a dark palette, and the roles that a design gives its widgets.
namespace veraqua {

enum class Theme { Light, Dark };

/// What the desktop asks for: its portal's colour scheme, or else what its own palette tells. There is an
/// application already.
Theme ThemeOfDesktop();

/// Gives the whole program a theme.
void ApplyTheme(QApplication& app, Theme theme);

/// A background that warns or reassures, with black text on it; without one, what the theme has.
void ShowBackground(QWidget& widget, const std::optional<Colour>& background);

/// Marks an input that a check has refused, or takes the mark away.
void ShowRefused(QWidget& input, bool refused);

}  // namespace veraqua
