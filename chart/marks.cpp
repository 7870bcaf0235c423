#include "chart/marks.h"

#include <algorithm>

namespace veraqua {

namespace {

constexpr double Gap = 4;  // pixels between a line and its name, and between names

bool Crosses(double x, const PlacedMark& name) { return x > name.Left - Gap / 2 && x < name.Right + Gap / 2; }

bool Overlap(const PlacedMark& a, const PlacedMark& b) { return a.Left < b.Right + Gap && b.Left < a.Right + Gap; }

/// Whether `mark` may stand in its lane beside `other`.
bool Agree(const PlacedMark& mark, const PlacedMark& other) {
    if (mark.Lane == other.Lane && Overlap(mark, other)) return false;
    const bool lineThroughOther = mark.Lane <= other.Lane && Crosses(mark.X, other);
    const bool otherThroughName = other.Lane <= mark.Lane && Crosses(other.X, mark);
    return !lineThroughOther && !otherThroughName;
}

/// The first lane in which `mark` agrees with all of `placed`; failing that, one below them all.
int LaneFor(PlacedMark mark, const std::vector<PlacedMark>& placed) {
    int lowest = -1;
    for (const PlacedMark& other : placed) lowest = std::max(lowest, other.Lane);
    for (mark.Lane = 0; mark.Lane <= lowest; ++mark.Lane)
        if (std::all_of(placed.begin(), placed.end(), [&](const PlacedMark& other) { return Agree(mark, other); }))
            break;
    return mark.Lane;
}

/// To the right of the line, or to the left where the right edge is near.
void SetBeside(PlacedMark& mark, double width, double left, double right) {
    mark.Left = mark.X + Gap;
    if (mark.Left + width > right) mark.Left = std::max(left, mark.X - Gap - width);
    mark.Right = mark.Left + width;
}

}  // namespace

std::vector<PlacedMark> PlaceMarks(const std::vector<ChartMark>& marks, const std::function<double(JulianValue)>& xOf,
                                   const std::function<double(const ChartMark&)>& widthOf, double left, double right) {
    std::vector<PlacedMark> wanted;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        PlacedMark mark{i, xOf(marks[i].Day), 0, 0, 0};
        if (mark.X < left || mark.X > right) continue;
        SetBeside(mark, widthOf(marks[i]), left, right);
        wanted.push_back(mark);
    }
    // Names to the left of their lines come first, from the right edge on: the lines that they lie over then begin
    // below them. The others follow from left to right, each below the names that its line would meet.
    const auto isFlipped = [](const PlacedMark& mark) { return mark.Left < mark.X; };
    std::stable_sort(wanted.begin(), wanted.end(), [&](const PlacedMark& a, const PlacedMark& b) {
        if (isFlipped(a) != isFlipped(b)) return isFlipped(a);
        return isFlipped(a) ? a.X > b.X : a.X < b.X;
    });
    std::vector<PlacedMark> placed;
    for (PlacedMark& mark : wanted) {
        mark.Lane = LaneFor(mark, placed);
        placed.push_back(mark);
    }
    return placed;
}

}  // namespace veraqua
