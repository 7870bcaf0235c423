#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/field_file.h"
#include "core/records.h"
#include "core/shown/chart.h"

/// The JSON documents of veraqua-cli. Amounts are metric, fractions as stored; scripts depend on the keys.
namespace veraqua {

/// Members keep their order, and numbers with decimals are singles.
using Json =
    nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

/// One line; a single in the shortest decimal form that reads back as the same single.
std::string DumpJson(const Json& json);

/// {"julian", "date"}, or null for no date.
Json JsonOf(JulianValue day);

/// A row of the field directory.
Json JsonOfRow(int row);
Json JsonOfRows(const std::vector<int>& rows);

/// A field with its header, soil, lists and totals.
Json JsonOfField(int row, const FieldFile& file);

/// The day rows of a field.
Json JsonOfDays(const FieldFile& file);

Json JsonOf(const WeatherDay& day);

/// The series and marks of a season chart.
Json JsonOf(const ChartContent& chart);

}  // namespace veraqua
