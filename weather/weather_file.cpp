#include "weather/weather_file.h"

#include <fmt/format.h>

#include "core/state.h"
#include "weather/default_weather.h"

namespace veraqua {

std::string WeatherFileName(std::string_view stationCode, int year) {
    return fmt::format("weather{}.{}", stationCode, YearSuffix(year));
}

WeatherFile::WeatherFile(std::string_view stationCode, int year)
    : name_(WeatherFileName(stationCode, year)), year_(year), bytes_(files::Read(name_)) {
    if (!bytes_) bytes_ = std::make_shared<const files::Bytes>();
}

WeatherDay WeatherFile::Day(int dayOfYear) const {
    WeatherDay day;
    if (dayOfYear < 1 || dayOfYear > Days()) return day;
    const std::size_t offset = static_cast<std::size_t>(dayOfYear - 1) * RecordWidth;
    Reader reader(std::string_view(*bytes_).substr(offset, RecordWidth), name_, offset);
    Layout(reader, day);
    return day;
}

void WeatherFile::Put(int dayOfYear, const WeatherDay& day) {
    if (!changed_) {
        changed_ = std::make_shared<files::Bytes>(*bytes_);
        bytes_ = changed_;
    }
    for (int gap = Days() + 1; gap < dayOfYear; ++gap) Put(gap, DefaultDay(State.WeatherCoeff, gap));
    std::string record;
    Writer writer(record);
    Layout(writer, day);
    const std::size_t offset = static_cast<std::size_t>(dayOfYear - 1) * RecordWidth;
    if (changed_->size() < offset + RecordWidth) changed_->resize(offset + RecordWidth);
    changed_->replace(offset, RecordWidth, record);
}

void WeatherFile::Save() {
    if (changed_ || !files::Exists(name_)) files::Write(name_, *bytes_);
}

void MakeWeatherFile(std::string_view stationCode, int year) {
    const std::string name = WeatherFileName(stationCode, year);
    if (!files::Exists(name)) files::Write(name, {});
}

JulianValue LastWeatherJulian(std::string_view stationCode, int year) {
    MakeWeatherFile(stationCode, year);
    const WeatherFile file(stationCode, year);
    if (file.Days() == 0) return 0;
    const int dayOfYear = file.Day(file.Days()).DayOfYear;
    if (dayOfYear < 0 || dayOfYear > 366)
        FailIn(file.Name(), fmt::format("record {} has the impossible day of year {}.", file.Days(), dayOfYear));
    return JulianFromDayOfYear(dayOfYear, year);
}

}  // namespace veraqua
