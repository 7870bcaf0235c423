#include "cli/json_forms.h"

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// Without the blanks that fill it up; one in front belongs to it.
template <std::size_t Width>
std::string NameText(const FixedText<Width>& name) {
    std::string text = name.Whole();
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

/// The first zones of a profile, up to the header's upper index.
Json ZonesJson(const Zones& zones, int top) {
    Json array = Json::array();
    for (int zone = 0; zone <= top; ++zone) array.push_back(zones[static_cast<std::size_t>(zone)]);
    return array;
}

Json EventsJson(const std::vector<EventRecord>& events) {
    Json array = Json::array();
    for (const EventRecord& event : events) array.push_back({{"day", JsonOf(event.Day)}, {"amount", event.Amount}});
    return array;
}

Json ChangesJson(const std::vector<EfficiencyRecord>& changes) {
    Json array = Json::array();
    for (const EfficiencyRecord& change : changes)
        array.push_back({{"day", JsonOf(change.Day)}, {"amount", change.Value}});
    return array;
}

Json ProfilesJson(const std::vector<ProfileRecord>& profiles, int top) {
    Json array = Json::array();
    for (const ProfileRecord& profile : profiles)
        array.push_back({{"day", JsonOf(profile.Day)}, {"content", ZonesJson(profile.Content, top)}});
    return array;
}

void AddCrop(Json& json, const FieldFile& file) {
    const HeaderCommon& header = file.Header();
    json["station"] = header.StationCode.Text();
    json["plant_day"] = JsonOf(header.PlantDay);
    if (!file.IsHay) json["root_start"] = file.Field.RootStart;
    json["root_max"] = header.RootMax;
    json["gdd_lower"] = header.GddLower;
    json["gdd_upper"] = header.GddUpper;
    if (file.IsHay)
        json["gdd_cut"] = file.Hay.GddCut;
    else
        json["gdd_harvest"] = file.Field.GddHarvest;
    json["season_days"] = header.SeasonDays;
    json["mad"] = header.MAD;
    if (file.IsHay) {
        json["mad_critical"] = file.Hay.MADCritical;
        json["dry_days"] = file.Hay.DryDays;
    }
    json["irr_eff"] = header.IrrEff;
}

void AddSoil(Json& json, const FieldFile& file) {
    const HeaderCommon& header = file.Header();
    json["variable_soil"] = file.VariableSoil();
    json["capacity"] = ZonesJson(file.Soil.Capacity, header.CapacityTop);
    json["content"] = ZonesJson(file.Soil.Content, header.ContentTop);
    json["bounds"] = file.Soil.Bounds;
    json["capacity_interval"] = header.CapacityInterval;
    json["content_interval"] = header.ContentInterval;
}

void AddLists(Json& json, const FieldFile& file) {
    const FieldLists& lists = file.Lists;
    json["history"] = ProfilesJson(lists.History, file.Header().ContentTop);
    json["leaching"] = EventsJson(lists.Leaching);
    json["mad_changes"] = EventsJson(lists.MadChanges);
    json["efficiency_changes"] = ChangesJson(lists.EfficiencyChanges);
    json["depletion_changes"] = EventsJson(lists.DepletionChanges);
    json["rain"] = EventsJson(lists.Rain);
    json["irrigation"] = EventsJson(lists.Irrigation);
    if (file.IsHay) json["cuttings"] = EventsJson(lists.Cuttings);
    json["rain_total"] = TotalAmount(lists.Rain);
    json["irrigation_total"] = TotalAmount(lists.Irrigation);
}

std::string DumpObject(const Json& json) {
    std::string text;
    for (const auto& [key, value] : json.items())
        text += fmt::format("{}{}: {}", text.empty() ? "" : ", ", Json(key).dump(), DumpJson(value));
    return "{" + text + "}";
}

std::string DumpArray(const Json& json) {
    std::string text;
    for (const Json& value : json) text += (text.empty() ? "" : ", ") + DumpJson(value);
    return "[" + text + "]";
}

}  // namespace

std::string DumpJson(const Json& json) {
    if (json.is_object()) return DumpObject(json);
    if (json.is_array()) return DumpArray(json);
    if (json.is_number_float()) return Shortest(json.get<float>());
    // A path on the command line may hold anything.
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json JsonOf(JulianValue day) {
    if (day == 0) return nullptr;
    const Date date = DateFromJulian(day);
    return {{"julian", day}, {"date", fmt::format("{:04}-{:02}-{:02}", date.Year, date.Month, date.Day)}};
}

Json JsonOfRow(int row) {
    const StatRecord& stat = State.Stat[row];
    return {{"row", row},
            {"id", NameText(stat.FieldId)},
            {"crop", NameText(stat.CropName)},
            {"hay", stat.CropName.First() == HayMark},
            {"last_day", JsonOf(stat.LastDay)},
            {"depletion", stat.Depletion},
            {"mad_now", stat.MadNow},
            {"next_irr_day", JsonOf(stat.NextIrrDay)},
            {"next_cut_day", JsonOf(stat.NextCutDay)},
            {"next_irr_amount", stat.NextIrrAmount},
            {"depletion_day", JsonOf(State.Updates[row])}};
}

Json JsonOfRows(const std::vector<int>& rows) {
    Json array = Json::array();
    for (const int row : rows) array.push_back(JsonOfRow(row));
    return array;
}

Json JsonOfField(int row, const FieldFile& file) {
    Json json = JsonOfRow(row);
    AddCrop(json, file);
    AddSoil(json, file);
    AddLists(json, file);
    return json;
}

Json JsonOfDays(const FieldFile& file) {
    Json array = Json::array();
    const JulianValue planting = file.Header().PlantDay;
    JulianValue day = planting;
    for (const DayRecord& row : file.Days) {
        // Hay has no Kc yet on its first day: the row holds the root depth there.
        const float third = file.IsHay && day == planting ? 0 : row.RootDepthOrKc;
        array.push_back({{"day", JsonOf(day++)},
                         {"available", row.Available},
                         {"gdd_sum", row.GddSum},
                         {file.IsHay ? "kc" : "root_depth", third},
                         {"etr_sum", row.EtrSum},
                         {"days_since_wet", row.DaysSinceWet}});
    }
    return array;
}

Json JsonOf(const WeatherDay& day) {
    return {{"day_of_year", day.DayOfYear},
            {"temp_max", day.TempMax},
            {"temp_min", day.TempMin},
            {"humidity_max", day.HumidityMax},
            {"humidity_min", day.HumidityMin},
            {"wind_run", day.WindRun},
            {"day_night_ratio", day.DayNightRatio},
            {"solar_radiation", day.SolarRadiation},
            {"reference_et", day.ReferenceET},
            {"source", day.Source.Text()}};
}

Json JsonOf(const ChartContent& chart) {
    Json series = Json::array();
    for (const ChartSeries& one : chart.Series) {
        Json points = Json::array();
        for (const ChartSeries::Point& point : one.Points)
            points.push_back({point.Day, static_cast<float>(point.Value)});
        series.push_back({{"name", one.Name}, {"unit", one.Unit}, {"points", points}});
    }
    Json marks = Json::array();
    for (const ChartMark& mark : chart.Marks) marks.push_back({{"name", mark.Name}, {"day", JsonOf(mark.Day)}});
    return {{"series", series}, {"marks", marks}};
}

}  // namespace veraqua
