#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/base/failure.h"
#include "core/base/version.h"
#include "core/records.h"

namespace veraqua {

/// The most fields that the directory holds.
constexpr int MaxFields = 100;

/// The rows 1 to 100 of the field directory. A row outside is a RunTimeFailure.
template <class T>
class DirectoryRows {
  public:
    T& operator[](int row) { return rows_[Index(row)]; }
    const T& operator[](int row) const { return rows_[Index(row)]; }

  private:
    static std::size_t Index(int row) {
        if (row < 1 || row > MaxFields)
            throw RunTimeFailure("The field directory has rows 1 to 100, not " + std::to_string(row) + ".");
        return static_cast<std::size_t>(row - 1);
    }

    std::array<T, MaxFields> rows_{};
};

/// Everything that more than one room works on. Water is in mm, depth in m, temperature in degrees C.
struct ApplicationState {
    // The program
    std::string VersionString = VersionText;
    std::string BaseUrl = "http://kesta.example/kesta/data/";  ///< of the weather network, ending in "/"
    bool EnglishUnits = true;       ///< inches, feet and degrees F on screens and in reports, else mm, m, degrees C
    JulianValue TodayJulian = 0;    ///< "today" for all scheduling
    JulianValue StartDate = 0;      ///< the date at start-up
    std::int16_t DisplayDays = 12;  ///< days that a display holds
    std::string ReportFileName;     ///< last name that a report to disk used
    bool ReportCancelled = false;   ///< a dialog was left without a choice
    std::string CallerForm;         ///< form that opened the weather screen

    // The field directory
    DirectoryRows<StatRecord> Stat;
    DirectoryRows<JulianValue> Updates;  ///< depletion date: day of the last depletion set by hand; 0: never
    std::int16_t FieldCount = 0;         ///< rows in use
    JulianValue LatestLastDay = 0;       ///< largest `LastDay` of all rows at start-up

    // The field in work
    std::int16_t CurrentField = 0;  ///< its row; 0: none
    bool IsHay = false;
    bool VariableSoil = false;  ///< its soil has layers of their own thickness
    FieldHeader Field;          ///< its header, of an ordinary crop
    HayHeader Hay;              ///< its header, of hay
    float RainTotal = 0;        ///< mm, summed on every read of its file
    float IrrigationTotal = 0;  ///< mm, likewise
    bool RainChanged = false;   ///< false: a change of a list says itself whether records have gone
    bool IrrigationChanged = false;
    bool CutsChanged = false;

    // What the last season run left for the screens
    JulianValue LastWeatherDay = 0;  ///< last day of real weather
    JulianValue MadExceededDay = 0;  ///< first day of the present spell at or over the MAD; 0: the last day was below
    JulianValue DriedOutDay = 0;     ///< first day of the present spell at or over 99 % depletion; 0: none
    JulianValue SeasonEndDay = 0;    ///< first day past the crop's harvest heat sum; nothing reads it

    // The crop table
    std::vector<std::string> CropNames;  ///< row n of crop.dat at index n - 1

    // The weather
    std::vector<std::string> DefaultStations;  ///< station names; code n at index n - 1
    std::string StationCode = "00";            ///< of the station in work; "00": none
    std::string StationName = "UNKNOWN";
    WeatherCoefficients WeatherCoeff{};  ///< default weather of its region
    std::string WeatherYearSuffix;       ///< two digits: year of the weather file last touched
    JulianValue WeatherLastJulian = 0;   ///< last day with weather as the last check found it; 0: unknown
    JulianValue WeatherNeedFrom = 0;     ///< range of days for which weather is wanted
    JulianValue WeatherNeedTo = 0;
    bool DownloadFailed = false;  ///< the wanted weather has not been obtained

    /// What both kinds of header share, of the field in work.
    HeaderCommon& Header() { return IsHay ? static_cast<HeaderCommon&>(Hay) : Field; }
    const HeaderCommon& Header() const { return IsHay ? static_cast<const HeaderCommon&>(Hay) : Field; }
};

/// The one instance of the process.
extern ApplicationState State;

}  // namespace veraqua
