#include "workbench/forms/soil_column.h"

#include "core/base/numbers.h"

namespace veraqua {

namespace {

// The drawing in its own units.
constexpr double Width = 160;
constexpr double Height = 300;
constexpr double Ground = Height / 3;
constexpr double ColumnLeft = 50;
constexpr double ColumnRight = 150;
constexpr double MarkLeft = ColumnLeft - 26;
constexpr double MarkRight = MarkLeft + 16;
constexpr double PictureSize = 60;

void AddMark(Drawing& drawing, double y) {
    drawing.Shapes.push_back({Drawing::Kind::Line, MarkLeft, y, MarkRight, y, colours::Red, {}});
}

}  // namespace

void DrawSoilColumn(Drawing& drawing, const LayerBounds& thicknesses, int maxDepth) {
    ClearSoilColumn(drawing);
    if (maxDepth <= 0) return;
    double top = Ground;
    for (const float thickness : thicknesses) {
        if (thickness == 0) continue;
        const double bottom = top + (Height - Ground) * static_cast<double>(thickness) / maxDepth;
        drawing.Shapes.push_back({Drawing::Kind::Line, ColumnLeft, bottom, ColumnRight, bottom, colours::Blue, {}});
        AddMark(drawing, bottom);
        drawing.Shapes.push_back(
            {Drawing::Kind::Text, MarkLeft, top, MarkRight, bottom, Colour{}, Masked(thickness, "0.0")});
        top = bottom;
    }
}

void ClearSoilColumn(Drawing& drawing) {
    constexpr double centre = (ColumnLeft + ColumnRight) / 2;
    drawing.Width = Width;
    drawing.Height = Height;
    drawing.FontFamily = "Arial";
    // The crop stands with its roots, the lower third of the picture, in the ground.
    drawing.Shapes = {{Drawing::Kind::Picture, centre - PictureSize / 2, Ground - PictureSize * 2 / 3,
                       centre + PictureSize / 2, Ground + PictureSize / 3, Colour{}, "picbox1"}};
    AddMark(drawing, Ground);
}

}  // namespace veraqua
