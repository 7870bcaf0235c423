#include "chart/readings.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "core/base/numbers.h"

namespace veraqua {

namespace {

using Point = ChartSeries::Point;

const Point* PointOn(const ChartSeries& series, JulianValue day) {
    const auto found =
        std::find_if(series.Points.begin(), series.Points.end(), [&](const Point& point) { return point.Day == day; });
    return found == series.Points.end() ? nullptr : &*found;
}

/// As many decimals as the largest value of the unit leaves sensible: 3.25 in, 82.6 mm.
std::string_view MaskFor(const ChartContent& chart, const std::string& unit) {
    double largest = 0;
    for (const ChartSeries& series : chart.Series)
        for (const Point& point : series.Points)
            if (series.Unit == unit) largest = std::max(largest, std::fabs(point.Value));
    if (largest < 50) return "0.00";
    return largest < 1000 ? "0.0" : "0";
}

/// Quoted where a comma, quote or line break would break the table.
std::string Cell(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + '"';
}

/// The values of a day by column, as text.
using Columns = std::vector<std::string>;

std::map<JulianValue, Columns> DaysOf(const ChartContent& chart) {
    // More decimals than anything on the screen, but none that single precision doesn't hold.
    constexpr double parts = 10000;
    std::map<JulianValue, Columns> days;
    for (std::size_t i = 0; i < chart.Series.size(); ++i)
        for (const Point& point : chart.Series[i].Points) {
            Columns& columns = days.try_emplace(point.Day, chart.Series.size()).first->second;
            columns[i] = Plain(RoundedTo(point.Value, parts));
        }
    return days;
}

}  // namespace

std::vector<Reading> ReadingsOn(const ChartContent& chart, JulianValue day) {
    std::vector<Reading> readings;
    for (std::size_t i = 0; i < chart.Series.size(); ++i) {
        const ChartSeries& series = chart.Series[i];
        if (const Point* point = PointOn(series, day))
            readings.push_back(
                {i, point->Value, Masked(point->Value, MaskFor(chart, series.Unit)) + ' ' + series.Unit});
    }
    return readings;
}

std::string DayTitle(const ChartContent& chart, JulianValue day) {
    std::string title = JulianToShortText(day);
    for (const ChartMark& mark : chart.Marks)
        if (mark.Day == day) title += ", " + mark.Name;
    return title;
}

std::string DayInWords(const ChartContent& chart, JulianValue day) {
    std::string words = DayTitle(chart, day);
    for (const Reading& reading : ReadingsOn(chart, day))
        words += "; " + chart.Series[reading.Series].Name + ' ' + reading.Text;
    return words;
}

JulianValue LatestDay(const ChartContent& chart) {
    JulianValue latest = 0;
    for (const ChartSeries& series : chart.Series) {
        if (series.Points.empty()) continue;
        if (series.Shape == ChartSeries::Look::Line) return series.Points.back().Day;
        latest = std::max(latest, series.Points.back().Day);
    }
    return latest;
}

std::string ChartCsv(const ChartContent& chart) {
    std::string text = Cell(chart.DayAxis);
    for (const ChartSeries& series : chart.Series) text += ',' + Cell(series.Name + " (" + series.Unit + ')');
    text += '\n';
    for (const auto& [day, columns] : DaysOf(chart)) {
        text += JulianToLongText(day);
        for (const std::string& value : columns) text += ',' + value;
        text += '\n';
    }
    return text;
}

}  // namespace veraqua
