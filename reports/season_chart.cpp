#include "reports/season_chart.h"

#include <fmt/format.h>

#include "reports/field_days.h"

namespace veraqua {

namespace {

using Look = ChartSeries::Look;

/// The series of the chart, each filled day by day.
class WaterSeries {
  public:
    explicit WaterSeries(bool english) : units_{english}, unit_(english ? "in" : "mm") {}

    void Add(const FieldDay& day, JulianValue lastDay, double mad) {
        if (day.Day <= lastDay) Put(measured_, day.Day, day.Available);
        if (day.Day >= lastDay) Put(forecast_, day.Day, day.Available);
        Put(full_, day.Day, day.Capacity);
        Put(mad_, day.Day, day.Capacity * (1 - mad / 100));
        Put(dry_, day.Day, 0);
        if (day.Rain) Put(rain_, day.Day, *day.Rain);
        if (day.Irrigation) Put(irrigation_, day.Day, *day.Irrigation);
    }

    std::vector<ChartSeries> All() const {
        return {{"Root-zone water", unit_, Look::Line, measured_},
                {"Forecast", unit_, Look::Dashed, forecast_},
                {"Full", unit_, Look::Limit, full_},
                {"MAD", unit_, Look::Limit, mad_},
                {"Dry", unit_, Look::Limit, dry_},
                {"Rain", unit_, Look::Bars, rain_},
                {"Irrigation", unit_, Look::Bars, irrigation_}};
    }

  private:
    using Points = std::vector<ChartSeries::Point>;

    void Put(Points& points, JulianValue day, double mm) const { points.push_back({day, units_.Water(mm)}); }

    DayUnits units_;
    std::string unit_;
    Points measured_, forecast_, full_, mad_, dry_, rain_, irrigation_;
};

}  // namespace

ChartContent SeasonChart(const FieldFile& file, const StatRecord& row, JulianValue today, bool english) {
    ChartContent chart;
    chart.Title = fmt::format("{} - {}", row.FieldId.Text(), row.CropName.Text());
    chart.DayAxis = "Day";
    chart.ValueAxis = english ? "Water in the root zone (in)" : "Water in the root zone (mm)";
    WaterSeries series(english);
    for (const FieldDay& day : DaysSincePlanting(file)) {
        series.Add(day, row.LastDay, file.Header().MAD);
        if (day.Cutting > 0) chart.Marks.push_back({fmt::format("Cutting {}", day.Cutting), day.Day});
    }
    chart.Series = series.All();
    chart.Marks.push_back({"Today", today});
    if (row.NextIrrAmount > 0 && row.NextIrrDay > 0) chart.Marks.push_back({"Next irrigation", row.NextIrrDay});
    if (file.IsHay && row.NextCutDay > 0) chart.Marks.push_back({"Next cutting", row.NextCutDay});
    return chart;
}

void MarkDefaultWeather(ChartContent& chart, JulianValue lastDay, int days) {
    if (days > 0) chart.Marks.push_back({fmt::format("Default weather ({})", days), lastDay - days + 1});
}

}  // namespace veraqua
