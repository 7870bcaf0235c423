#include "desktop/chart/chart_layout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "core/base/numbers.h"
#include "desktop/chart/chart_marks.h"
#include "desktop/text.h"

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

    QString TextOf(double tick) const {
        const auto decimals = static_cast<std::size_t>(std::max(0.0, -std::floor(std::log10(Step))));
        return ToQt(Masked(tick, decimals == 0 ? "0" : "0." + std::string(decimals, '0')));
    }
};

/// The smallest and the largest value of the bars, or of all other series; 0 is among them.
struct Extent {
    double Low = 0;
    double High = 0;
    bool Any = false;

    Extent(const Chart& chart, bool ofBars) {
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
QString AmountTitle(const Chart& chart) {
    QString names;
    QString unit;
    for (const ChartSeries& series : chart.Series) {
        if (series.Shape != Look::Bars || series.Points.empty()) continue;
        names += (names.isEmpty() ? "" : ", ") + ToQt(series.Name);
        unit = ToQt(series.Unit);
    }
    return QString("%1 (%2)").arg(names, unit);
}

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

/// Builds a layout from the edges to the middle.
class Builder {
  public:
    Builder(const Chart& chart, QSizeF size, const QFont& font)
        : chart_(&chart),
          size_(size),
          metrics_(font),
          boldMetrics_(Bold(font)),
          values_(chart, false),
          amounts_(chart, true) {}

    ChartLayout Build(DayRange season, DayRange shown) {
        PutTitle();
        PutLegend();
        PutAxisTitles();
        layout_.Plot = QRectF(QPointF(Margin, top_), QPointF(size_.width() - Margin, BottomOfPlot()));
        layout_.NamesBottom = top_;
        LeaveSides();
        layout_.Days = season;
        LeaveNames();
        layout_.Days = shown;
        PutValues();
        PutAmounts();
        PutDays();
        PutMarks();
        return std::move(layout_);
    }

  private:
    double LineHeight() const { return metrics_.height(); }
    double LaneHeight() const { return LineHeight() + 3; }
    double Right() const { return size_.width() - Margin; }
    double WidthOf(const QString& text) const { return std::ceil(metrics_.horizontalAdvance(text)); }
    double DateWidth() const { return WidthOf("00-00-00"); }

    void Put(QPointF corner, const QString& text, Tone tone) {
        if (!text.isEmpty()) layout_.Texts.push_back({QRectF(corner, QSizeF(WidthOf(text), LineHeight())), text, tone});
    }

    void PutTitle() {
        if (chart_->Title.empty()) return;
        const QString text = boldMetrics_.elidedText(ToQt(chart_->Title), Qt::ElideRight, Right() - Margin);
        const QSizeF textSize(std::ceil(boldMetrics_.horizontalAdvance(text)), boldMetrics_.height());
        layout_.Texts.push_back({QRectF(QPointF(Margin, top_), textSize), text, Tone::Title});
        top_ += boldMetrics_.height() + Gap;
    }

    /// From left to right, in as many rows as it takes.
    void PutLegend() {
        double x = Margin;
        for (std::size_t i = 0; i < chart_->Series.size(); ++i) {
            if (chart_->Series[i].Points.empty()) continue;
            const QString name = ToQt(chart_->Series[i].Name);
            const double width = SampleWidth + Gap + WidthOf(name);
            if (x > Margin && x + width > Right()) {
                x = Margin;
                top_ += LineHeight() + Gap / 2;
            }
            layout_.Samples.push_back({QRectF(x, top_, SampleWidth, LineHeight()), i});
            Put({x + SampleWidth + Gap, top_}, name, Tone::Plain);
            x += width + 3 * Gap;
        }
        if (!layout_.Samples.empty()) top_ += LineHeight() + 2 * Gap;
    }

    /// Above the axes, where they read best; of two that don't fit beside each other the right one is a row lower.
    void PutAxisTitles() {
        const QString left = metrics_.elidedText(ToQt(chart_->ValueAxis), Qt::ElideRight, Right() - Margin);
        Put({Margin, top_}, left, Tone::Quiet);
        if (amounts_.Any) {
            const QString right = metrics_.elidedText(AmountTitle(*chart_), Qt::ElideRight, Right() - Margin);
            if (WidthOf(left) + WidthOf(right) + 3 * Gap > Right() - Margin) top_ += LineHeight();
            Put({Right() - WidthOf(right), top_}, right, Tone::Quiet);
        }
        top_ += LineHeight() + Gap;
    }

    double BottomOfPlot() const {
        const double dates = LineHeight() * 1.5 + 1;
        const double axisTitle = chart_->DayAxis.empty() ? 0 : LineHeight();
        return std::max(top_ + 1, size_.height() - Margin - dates - axisTitle);
    }

    /// Of the plot without the names.
    double ValueHeight() const { return std::max(1.0, layout_.Plot.bottom() - layout_.NamesBottom); }

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
        layout_.Plot.adjust(left, 0, -right, 0);
        layout_.Plot.setWidth(std::max(1.0, layout_.Plot.width()));
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
        layout_.NamesBottom = layout_.Plot.top() + std::min(needed, layout_.Plot.height() * NamesShare);
    }

    void PutValues() {
        const QRectF& plot = layout_.Plot;
        const NumberAxis axis = ValueAxis();
        layout_.ValueLow = axis.Low;
        layout_.ValueHigh = axis.Low + (axis.High - axis.Low) * plot.height() / ValueHeight();
        for (const double tick : axis.Ticks()) {
            const double y = layout_.YOf(tick, layout_.ValueLow, layout_.ValueHigh);
            const QString text = axis.TextOf(tick);
            layout_.Grid.append({plot.left(), y, plot.right(), y});
            Put({plot.left() - Gap - WidthOf(text), y - LineHeight() / 2}, text, Tone::Quiet);
        }
    }

    void PutAmounts() {
        if (!amounts_.Any) return;
        const QRectF& plot = layout_.Plot;
        const NumberAxis axis = AmountAxis();
        layout_.AmountHigh = axis.High * plot.height() / (ValueHeight() * BarShare);
        for (const double tick : axis.Ticks()) {
            const double y = layout_.YOf(tick, 0, layout_.AmountHigh);
            layout_.Grid.append({plot.right(), y, plot.right() + Gap / 2, y});
            Put({plot.right() + Gap, y - LineHeight() / 2}, axis.TextOf(tick), Tone::Quiet);
        }
    }

    /// Below the lower half of a number at the end of its axis.
    double DatesTop() const { return layout_.Plot.bottom() + LineHeight() / 2 + 1; }

    void PutDays() {
        const QRectF& plot = layout_.Plot;
        const int most = static_cast<int>(plot.width() / (DateWidth() * WidthsPerTick));
        for (const JulianValue day : TickDays(layout_.Days, most)) {
            const double x = layout_.XOf(day);
            const QString text = ToQt(JulianToShortText(day));
            layout_.Grid.append({x, plot.top(), x, plot.bottom() + Gap / 2});
            Put({x - WidthOf(text) / 2, DatesTop()}, text, Tone::Quiet);
        }
        const QString title = ToQt(chart_->DayAxis);
        if (title.isEmpty()) return;
        Put({plot.center().x() - WidthOf(title) / 2, DatesTop() + LineHeight()}, title, Tone::Quiet);
    }

    std::vector<PlacedMark> PlacedMarks() const {
        return PlaceMarks(
            chart_->Marks, [this](JulianValue day) { return layout_.XOf(day); },
            [this](const ChartMark& mark) { return WidthOf(ToQt(mark.Name)); }, layout_.Plot.left(),
            layout_.Plot.right());
    }

    void PutMarks() {
        for (const PlacedMark& mark : PlacedMarks()) {
            const double top = layout_.Plot.top() + 2 + mark.Lane * LaneHeight();
            layout_.Marks.append({mark.X, top, mark.X, layout_.Plot.bottom()});
            Put({mark.Left, top}, ToQt(chart_->Marks[mark.Mark].Name), Tone::MarkName);
        }
    }

    const Chart* chart_;
    QSizeF size_;
    QFontMetricsF metrics_;
    QFontMetricsF boldMetrics_;
    Extent values_;
    Extent amounts_;
    ChartLayout layout_;
    double top_ = Margin;  ///< where the next row begins
};

}  // namespace

ChartLayout LayOut(const Chart& chart, DayRange shown, QSizeF size, const QFont& font) {
    const DayRange season = SeasonOf(chart);
    if (season.Length() <= 0) return {};
    return Builder(chart, size, font).Build(season, RangeWithin(season, shown));
}

}  // namespace veraqua
