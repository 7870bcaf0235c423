#include "tests/support/measured_weather.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace veraqua {

namespace {

constexpr double Missing = 999;

std::vector<double> Columns(const std::string& line) {
    std::vector<double> columns{0};  // the network counts its columns from 1
    std::istringstream fields(line);
    for (std::string field; std::getline(fields, field, ',');) columns.push_back(std::stod(field));
    return columns;
}

}  // namespace

std::vector<MeasuredDay> WholeDays(const std::string& path) {
    std::ifstream text(path);
    if (!text) throw std::runtime_error("There is no " + path);
    std::vector<MeasuredDay> days;
    for (std::string line; std::getline(text, line);) {
        const std::vector<double> c = Columns(line);
        const MeasuredDay day{static_cast<int>(c.at(1)),
                              static_cast<int>(c.at(2)),
                              c.at(4),
                              c.at(5),
                              c.at(7),
                              c.at(8),
                              c.at(11),
                              c.at(19),
                              c.at(24)};
        const auto readings = {day.TempMax,   day.TempMin,   day.HumidityMax, day.HumidityMin,
                               day.Radiation, day.WindSpeed, day.PublishedEt};
        if (std::find(readings.begin(), readings.end(), Missing) == readings.end()) days.push_back(day);
    }
    return days;
}

}  // namespace veraqua
