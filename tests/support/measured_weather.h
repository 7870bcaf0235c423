#pragma once

#include <string>
#include <vector>

namespace veraqua {

/// One measured day of a station year in tests/data/weather, as the weather network serves it.
struct MeasuredDay {
    int Year = 0;
    int DayOfYear = 0;
    double TempMax = 0;      ///< degrees C
    double TempMin = 0;      ///< degrees C
    double HumidityMax = 0;  ///< relative humidity, percent
    double HumidityMin = 0;
    double Radiation = 0;    ///< MJ per square metre and day
    double WindSpeed = 0;    ///< mean of the day, m/s
    double PublishedEt = 0;  ///< reference evapotranspiration of short grass, mm
};

/// The whole days of a station year, a file such as tests/data/weather/0600rd.txt: those that lack a reading (999) are
/// left out.
std::vector<MeasuredDay> WholeDays(const std::string& path);

}  // namespace veraqua
