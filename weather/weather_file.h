#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/files/files.h"
#include "core/records.h"

/// The daily weather of a station: one file per calendar year, one record per day of the year, addressed by it.
namespace veraqua {

/// "weather06.03" for station "06" in 2003.
std::string WeatherFileName(std::string_view stationCode, int year);

/// One station's year in memory. A year without a file is one without days.
class WeatherFile {
  public:
    WeatherFile(std::string_view stationCode, int year);

    const std::string& Name() const { return name_; }
    int Year() const { return year_; }

    /// Days held. A broken record at the end doesn't count.
    int Days() const { return static_cast<int>(bytes_->size() / RecordWidth); }

    /// The record at `dayOfYear`; beyond the end of the file one with `DayOfYear` 0 and a blank `Source`.
    /// RunTimeFailure if a number in it isn't finite.
    WeatherDay Day(int dayOfYear) const;

    /// Puts `day` at `dayOfYear`, 1 to 366. Days between the end of the file and it become default days, so that no
    /// hole arises.
    void Put(int dayOfYear, const WeatherDay& day);

    /// Hands the file to the disk; a missing one is made.
    void Save();

  private:
    static constexpr std::size_t RecordWidth = StoredSize<WeatherDay>();

    std::string name_;
    int year_;
    std::shared_ptr<const files::Bytes> bytes_;  ///< as on disk until the first `Put`
    std::shared_ptr<files::Bytes> changed_;      ///< the same bytes, ours to change, from then on
};

/// Makes the file of a station's year, empty, if there is none.
void MakeWeatherFile(std::string_view stationCode, int year);

/// Julian Value of the last day in the file, by that record's own day number; 0 if the file is empty. A missing file is
/// made. RunTimeFailure if the record's day number is not one of a year.
JulianValue LastWeatherJulian(std::string_view stationCode, int year);

}  // namespace veraqua
