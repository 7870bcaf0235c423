#include "desktop/chart/chart_look.h"

#include <array>

namespace veraqua {

namespace {

using Look = ChartSeries::Look;

/// A colour on light and on dark ground.
struct Tint {
    const char* OnLight;
    const char* OnDark;
};

// One after the other for the series of a kind; then again from the first.
constexpr std::array<Tint, 3> LineTints{{{"#0072b2", "#56b4e9"}, {"#a6490a", "#f0a35e"}, {"#7a3e8e", "#d9a0e8"}}};
constexpr std::array<Tint, 3> LimitTints{{{"#00795a", "#2fc79b"}, {"#c04a00", "#ff8f4a"}, {"#5c656d", "#aab3bb"}}};
constexpr std::array<Tint, 3> BarTints{{{"#63b3e4", "#3f8fc4"}, {"#7a3e8e", "#e3aef0"}, {"#e69f00", "#e69f00"}}};
constexpr std::array<Qt::PenStyle, 3> LimitStyles{Qt::DashLine, Qt::DashDotLine, Qt::DotLine};

constexpr double LineWidth = 2.4;
constexpr double LimitWidth = 1.5;

template <std::size_t Count>
QColor ColourOf(const std::array<Tint, Count>& tints, std::size_t place, const QPalette& palette) {
    const Tint& tint = tints[place % Count];
    return palette.color(QPalette::Base).lightness() < 128 ? tint.OnDark : tint.OnLight;
}

/// How many series of the same kind stand before `series`.
std::size_t PlaceInKind(const ChartContent& chart, std::size_t series) {
    std::size_t place = 0;
    for (std::size_t i = 0; i < series; ++i)
        if (chart.Series[i].Shape == chart.Series[series].Shape) ++place;
    return place;
}

}  // namespace

SeriesLook LookOf(const ChartContent& chart, std::size_t series, const QPalette& palette) {
    const std::size_t place = PlaceInKind(chart, series);
    QPen pen(ColourOf(LineTints, place, palette), LineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    switch (chart.Series[series].Shape) {
        case Look::Line: return {pen, Qt::NoBrush};
        case Look::Dashed: pen.setDashPattern({3, 1.6}); return {pen, Qt::NoBrush};
        case Look::Limit:
            pen = QPen(ColourOf(LimitTints, place, palette), LimitWidth, LimitStyles[place % LimitStyles.size()]);
            return {pen, Qt::NoBrush};
        case Look::Bars: return {Qt::NoPen, ColourOf(BarTints, place, palette)};
    }
    return {};
}

QColor QuietText(const QPalette& palette) {
    return Blended(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.3F);
}

QColor GridColour(const QPalette& palette) {
    return Blended(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.87F);
}

QColor Blended(const QColor& a, const QColor& b, float share) {
    const auto mixed = [share](float x, float y) { return x + (y - x) * share; };
    return QColor::fromRgbF(mixed(a.redF(), b.redF()), mixed(a.greenF(), b.greenF()), mixed(a.blueF(), b.blueF()));
}

}  // namespace veraqua
