#include "chart/layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "chart/marks.h"
#include "core/base/numbers.h"

namespace veraqua {

namespace {

using Look = ChartSeries::Look;
using Tone = ChartLayout::Tone;

constexpr double Margin = 10;
constexpr double Gap = 6;
constexpr double SampleWidth = 28;
constexpr double BarShare = 0.34;       // of the plot's height below the names, for the bars
constexpr double NamesShare = 0.45;     // of the plot's height, for the names at most
constexpr double LinesPerTick = 2.6;    // of text, between two ticks of the left axis
constexpr double LinesPerAmount = 1.5;  // the same on the right axis
constexpr double WidthsPerTick = 1.3;   // of a date, between two ticks of the day axis
constexpr double DayShare = 0.8;        // of a day's width, for its bars
constexpr double ThinnestBar = 2;       // pixels

/// An axis of numbers from `Low` to `High` with a tick at each `Step`.
struct NumberAxis {
    double Low = 0;
    double High = 1;
    double Step = 1;

    NumberAxis(double low, double high, double mostTicks) {
        Step = NiceStep(high > low ? high - low : 1, mostTicks);
        Low = std::floor(low / Step) * Step;
        High = std::max(Low + Step, std::ceil(high / Step) * Step);
    }

    std::vector<double> Ticks() const {
        std::vector<double> ticks;
        const int count = static_cast<int>(RoundHalfEven((High - Low) / Step));
        for (int i = 0; i <= count; ++i) ticks.push_back(Low + i * Step);
        return ticks;
    }

    std::string TextOf(double tick) const {
        const auto decimals = static_cast<std::size_t>(std::max(0.0, -std::floor(std::log10(Step))));
        return Masked(tick, decimals == 0 ? "0" : "0." + std::string(decimals, '0'));
    }
};

/// The smallest and the largest value of the bars, or of all other series; 0 is among them.
struct Extent {
    double Low = 0;
    double High = 0;
    bool Any = false;

    Extent(const ChartContent& chart, bool ofBars) {
        for (const ChartSeries& series : chart.Series)
            if ((series.Shape == Look::Bars) == ofBars) Add(series);
    }

  private:
    void Add(const ChartSeries& series) {
        for (const ChartSeries::Point& point : series.Points) {
            Low = std::min(Low, point.Value);
            High = std::max(High, point.Value);
            Any = true;
        }
    }
};

/// "Rain, Irrigation (in)", the series of the axis to the right.
std::string AmountTitle(const ChartContent& chart) {
    std::string names;
    std::string unit;
    for (const ChartSeries& series : chart.Series) {
        if (series.Shape != Look::Bars || series.Points.empty()) continue;
        names += (names.empty() ? "" : ", ") + series.Name;
        unit = series.Unit;
    }
    return names + " (" + unit + ')';
}

/// As much of `text` as fits `room`, with "…" for what is left out.
std::string Elided(const std::string& text, double room, const std::function<double(const std::string&)>& widthOf) {
    if (widthOf(text) <= room) return text;
    constexpr unsigned continues = 0b10;  // the top bits of each byte of a UTF-8 character but its first
    std::string cut = text;
    while (!cut.empty() && widthOf(cut + "…") > room) {
        while (cut.size() > 1 && static_cast<unsigned char>(cut.back()) >> 6U == continues) cut.pop_back();
        cut.pop_back();
    }
    return cut + "…";
}

/// Builds a layout from the edges to the middle.
class Builder {
  public:
    Builder(const ChartContent& chart, double width, double height, const ChartType& type)
        : chart_(&chart), width_(width), height_(height), type_(&type), values_(chart, false), amounts_(chart, true) {}

    ChartLayout Build(AxisRange season, AxisRange shown) {
        PutTitle();
        PutLegend();
        PutAxisTitles();
        layout_.Plot = {Margin, top_, Right() - Margin, BottomOfPlot() - top_};
        layout_.NamesBottom = top_;
        LeaveSides();
        layout_.Days = season;
        LeaveNames();
        layout_.Days = shown;
        PutValues();
        PutAmounts();
        PutDays();
        PutMarks();
        PutBars();
        return std::move(layout_);
    }

  private:
    double LineHeight() const { return type_->Height; }
    double LaneHeight() const { return LineHeight() + 3; }
    double Right() const { return width_ - Margin; }
    double WidthOf(const std::string& text) const { return std::ceil(type_->WidthOf(text)); }
    double DateWidth() const { return WidthOf("00-00-00"); }

    void Put(double left, double top, const std::string& text, Tone tone) {
        if (!text.empty()) layout_.Texts.push_back({{left, top, WidthOf(text), LineHeight()}, text, tone});
    }

    void PutTitle() {
        if (chart_->Title.empty()) return;
        const std::string text = Elided(chart_->Title, Right() - Margin, type_->BoldWidthOf);
        const double width = std::ceil(type_->BoldWidthOf(text));
        layout_.Texts.push_back({{Margin, top_, width, type_->BoldHeight}, text, Tone::Title});
        top_ += type_->BoldHeight + Gap;
    }

    /// From left to right, in as many rows as it takes.
    void PutLegend() {
        double x = Margin;
        for (std::size_t i = 0; i < chart_->Series.size(); ++i) {
            if (chart_->Series[i].Points.empty()) continue;
            const std::string& name = chart_->Series[i].Name;
            const double width = SampleWidth + Gap + WidthOf(name);
            if (x > Margin && x + width > Right()) {
                x = Margin;
                top_ += LineHeight() + Gap / 2;
            }
            layout_.Samples.push_back({{x, top_, SampleWidth, LineHeight()}, i});
            Put(x + SampleWidth + Gap, top_, name, Tone::Plain);
            x += width + 3 * Gap;
        }
        if (!layout_.Samples.empty()) top_ += LineHeight() + 2 * Gap;
    }

    /// Above the axes, where they read best; of two that don't fit beside each other the right one is a row lower.
    void PutAxisTitles() {
        const std::string left = Elided(chart_->ValueAxis, Right() - Margin, type_->WidthOf);
        Put(Margin, top_, left, Tone::Quiet);
        if (amounts_.Any) {
            const std::string right = Elided(AmountTitle(*chart_), Right() - Margin, type_->WidthOf);
            if (WidthOf(left) + WidthOf(right) + 3 * Gap > Right() - Margin) top_ += LineHeight();
            Put(Right() - WidthOf(right), top_, right, Tone::Quiet);
        }
        top_ += LineHeight() + Gap;
    }

    double BottomOfPlot() const {
        const double dates = LineHeight() * 1.5 + 1;
        const double axisTitle = chart_->DayAxis.empty() ? 0 : LineHeight();
        return std::max(top_ + 1, height_ - Margin - dates - axisTitle);
    }

    /// Of the plot without the names.
    double ValueHeight() const { return std::max(1.0, layout_.Plot.Bottom() - layout_.NamesBottom); }

    NumberAxis ValueAxis() const {
        return {values_.Low, values_.High, std::max(1.0, ValueHeight() / (LineHeight() * LinesPerTick))};
    }
    NumberAxis AmountAxis() const {
        return {0, amounts_.High, std::max(1.0, std::floor(ValueHeight() * BarShare / LineHeight() / LinesPerAmount))};
    }

    /// Makes room for the numbers at both sides, and for half a date.
    void LeaveSides() {
        const double least = DateWidth() / 2 - Margin;
        const double left = std::max(least, WidestTick(ValueAxis()) + Gap);
        const double right = amounts_.Any ? std::max(least, WidestTick(AmountAxis()) + Gap) : least;
        layout_.Plot.Left += left;
        layout_.Plot.Width = std::max(1.0, layout_.Plot.Width - left - right);
    }

    double WidestTick(const NumberAxis& axis) const {
        double widest = 0;
        for (const double tick : axis.Ticks()) widest = std::max(widest, WidthOf(axis.TextOf(tick)));
        return widest;
    }

    /// Names that need more than their share reach down among the values.
    void LeaveNames() {
        int lanes = 0;
        for (const PlacedMark& mark : PlacedMarks()) lanes = std::max(lanes, mark.Lane + 1);
        const double needed = lanes * LaneHeight() + Gap;
        layout_.NamesBottom = layout_.Plot.Top + std::min(needed, layout_.Plot.Height * NamesShare);
    }

    void PutValues() {
        const ChartBox& plot = layout_.Plot;
        const NumberAxis axis = ValueAxis();
        layout_.ValueLow = axis.Low;
        layout_.ValueHigh = axis.Low + (axis.High - axis.Low) * plot.Height / ValueHeight();
        for (const double tick : axis.Ticks()) {
            const double y = layout_.YOf(tick, layout_.ValueLow, layout_.ValueHigh);
            const std::string text = axis.TextOf(tick);
            layout_.Grid.push_back({plot.Left, y, plot.Right(), y});
            Put(plot.Left - Gap - WidthOf(text), y - LineHeight() / 2, text, Tone::Quiet);
        }
    }

    void PutAmounts() {
        if (!amounts_.Any) return;
        const ChartBox& plot = layout_.Plot;
        const NumberAxis axis = AmountAxis();
        layout_.AmountHigh = axis.High * plot.Height / (ValueHeight() * BarShare);
        for (const double tick : axis.Ticks()) {
            const double y = layout_.YOf(tick, 0, layout_.AmountHigh);
            layout_.Grid.push_back({plot.Right(), y, plot.Right() + Gap / 2, y});
            Put(plot.Right() + Gap, y - LineHeight() / 2, axis.TextOf(tick), Tone::Quiet);
        }
    }

    /// Below the lower half of a number at the end of its axis.
    double DatesTop() const { return layout_.Plot.Bottom() + LineHeight() / 2 + 1; }

    void PutDays() {
        const ChartBox& plot = layout_.Plot;
        const int most = static_cast<int>(plot.Width / (DateWidth() * WidthsPerTick));
        for (const JulianValue day : TickDays(layout_.Days, most)) {
            const double x = layout_.XOf(day);
            const std::string text = JulianToShortText(day);
            layout_.Grid.push_back({x, plot.Top, x, plot.Bottom() + Gap / 2});
            Put(x - WidthOf(text) / 2, DatesTop(), text, Tone::Quiet);
        }
        const std::string& title = chart_->DayAxis;
        Put(plot.Left + plot.Width / 2 - WidthOf(title) / 2, DatesTop() + LineHeight(), title, Tone::Quiet);
    }

    std::vector<PlacedMark> PlacedMarks() const {
        return PlaceMarks(
            chart_->Marks, [this](JulianValue day) { return layout_.XOf(day); },
            [this](const ChartMark& mark) { return WidthOf(mark.Name); }, layout_.Plot.Left, layout_.Plot.Right());
    }

    void PutMarks() {
        for (const PlacedMark& mark : PlacedMarks()) {
            const double top = layout_.Plot.Top + 2 + mark.Lane * LaneHeight();
            layout_.Marks.push_back({mark.X, top, mark.X, layout_.Plot.Bottom()});
            Put(mark.Left, top, chart_->Marks[mark.Mark].Name, Tone::MarkName);
        }
    }

    void PutBars() {
        for (std::size_t i = 0; i < chart_->Series.size(); ++i)
            if (chart_->Series[i].Shape == Look::Bars) layout_.AllBars.push_back({i, 0, 0});
        if (layout_.AllBars.empty()) return;
        const double pixel = layout_.Days.Length() / layout_.Plot.Width;
        const auto count = static_cast<double>(layout_.AllBars.size());
        const double width = std::max(DayShare / count, ThinnestBar * pixel);
        double offset = -width * count / 2;
        for (ChartLayout::Bars& bars : layout_.AllBars) {
            bars.Offset = offset;
            bars.Width = width;
            offset += width;
        }
    }

    const ChartContent* chart_;
    double width_;
    double height_;
    const ChartType* type_;
    Extent values_;
    Extent amounts_;
    ChartLayout layout_;
    double top_ = Margin;  ///< where the next row begins
};

}  // namespace

ChartLayout LayOut(const ChartContent& chart, AxisRange shown, double width, double height, const ChartType& type) {
    const AxisRange season = SeasonOf(chart);
    if (season.Length() <= 0) return {};
    return Builder(chart, width, height, type).Build(season, RangeWithin(season, shown));
}

}  // namespace veraqua
