#pragma once

#include <QSize>
#include <string>

#include "chart/days.h"

class QWidget;

namespace veraqua {

/// Charts as files. Pictures have the light look, whatever the theme: they are for letters and paper.

/// As the user sees it.
struct ChartPicture {
    const ChartContent* Shown = nullptr;
    AxisRange Days;
    QSize Size;
};

enum class ChartFormat { Png, Svg, Csv };

/// The contents of the file. A PNG has twice the size, for sharp print. A table has all days.
std::string ChartAs(ChartFormat format, const ChartPicture& picture);

/// Asks for a file, which the format's ending is proposed for, and saves to it in the format that its name ends in,
/// else in the chosen one. The user is told if that fails; an old file is then as before.
void AskAndSaveChart(QWidget* parent, ChartFormat format, const ChartPicture& picture);

}  // namespace veraqua
