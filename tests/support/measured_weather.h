#pragma once

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace veraqua {

/// One measured day of a station year in tests/data/weather, as the weather network serves it.
struct MeasuredDay {
    int Year, DayOfYear;
    double TempMax, TempMin;          ///< degrees C
    double HumidityMax, HumidityMin;  ///< relative humidity, percent
    double Radiation;                 ///< MJ per square metre and day
    double WindSpeed;                 ///< mean of the day, m/s
    double PublishedEt;               ///< reference evapotranspiration of short grass, mm
};

/// The whole days of a station year, a file such as tests/data/weather/0600rd.txt: those that lack a reading (999) are
/// left out.
inline std::vector<MeasuredDay> WholeDays(const std::string& path) {
    std::ifstream text(path);
    if (!text) throw std::runtime_error("There is no " + path);
    std::vector<MeasuredDay> days;
    for (std::string line; std::getline(text, line);) {
        std::vector<double> c{0};  // the network counts its columns from 1
        std::istringstream fields(line);
        for (std::string field; std::getline(fields, field, ',');) c.push_back(std::stod(field));
        const auto readings = {c.at(4), c.at(5), c.at(7), c.at(8), c.at(11), c.at(19), c.at(24)};
        if (std::find(readings.begin(), readings.end(), 999) == readings.end())
            days.push_back(
                {static_cast<int>(c[1]), static_cast<int>(c[2]), c[4], c[5], c[7], c[8], c[11], c[19], c[24]});
    }
    return days;
}

}  // namespace veraqua
