#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/base/archive.h"
#include "core/base/text.h"
#include "core/calendar.h"

/// The records of the data files. Each has one `Layout` that lists its members in file order.
namespace veraqua {

/// `NextIrrAmount` where it is no amount.
constexpr std::int16_t AmountNoDataYet = 0;
constexpr std::int16_t AmountHarvest = -1;
constexpr std::int16_t AmountNotRequired = -2;

/// A hay crop is told by the first character of its name, and by nothing else.
constexpr char HayMark = '@';

// ------------------------------------------------------------------------------------------------ the field directory

/// What the directory (stat.dat) keeps of a field.
struct StatRecord {
    FixedText<10> FieldId;           ///< the user's field ID
    FixedText<13> CropName;          ///< with the leading "@" on hay
    JulianValue LastDay = 0;         ///< last day of real weather processed; planting of a new field; 0: row not in use
    std::int16_t Depletion = 0;      ///< of the root zone on `LastDay`, percent; below 0 above capacity
    std::int16_t MadNow = 0;         ///< management allowed depletion in force on `LastDay`, percent
    JulianValue NextIrrDay = 0;      ///< predicted next irrigation; 0: none
    JulianValue NextCutDay = 0;      ///< predicted next cutting of hay; 0: none
    std::int16_t NextIrrAmount = 0;  ///< gross, whole mm; or one of the marks above

    bool operator==(const StatRecord&) const = default;
};

template <class Archive, class Row>
constexpr void Layout(Archive& archive, Row& row)
    requires std::same_as<std::remove_const_t<Row>, StatRecord>
{
    archive(row.FieldId, row.CropName);               // byte 0
    archive(row.LastDay, row.Depletion, row.MadNow);  // 23
    archive(row.NextIrrDay, row.NextCutDay);          // 31
    archive(row.NextIrrAmount);                       // 39
}
static_assert(StoredSize<StatRecord>() == 41);

/// What the directory knew of a harvested field, kept beside the backup of its file.
struct HarvestedRow {
    StatRecord Row;
    JulianValue DepletionDay = 0;  ///< day of the last depletion set by hand; 0: never

    bool operator==(const HarvestedRow&) const = default;
};

template <class Archive, class Harvested>
constexpr void Layout(Archive& archive, Harvested& harvested)
    requires std::same_as<std::remove_const_t<Harvested>, HarvestedRow>
{
    Layout(archive, harvested.Row);
    archive(harvested.DepletionDay);  // byte 41
}
static_assert(StoredSize<HarvestedRow>() == 45);

// ---------------------------------------------------------------------------------------------------- the field files

/// The highest index of a Capacity or Content array: the season run keeps a copy of 21 zones.
constexpr int HighestZone = 20;

/// Per-zone values, mm of water per m of soil, from the surface down; the header says up to which index they count.
using Zones = std::array<std::int16_t, HighestZone + 1>;

/// Thicknesses of up to six soil layers, metres. All 0 on a field with fixed layers.
using LayerBounds = std::array<float, 6>;

/// What both kinds of field file say of a field in their headers.
struct HeaderCommon {
    FixedText<10> FieldId;
    FixedText<13> CropName;
    FixedText<2> StationCode;      ///< of the weather station, such as "06"
    std::int16_t CapacityTop = 0;  ///< upper index of the Capacity array
    std::int16_t ContentTop = 0;   ///< upper index of the Content array
    JulianValue PlantDay = 0;      ///< planting or onset of growth: the day of row 0
    float RootMax = 0;             ///< deepest root depth, m
    float GddLower = 0;            ///< temperature thresholds of growing degree days, degrees C
    float GddUpper = 0;
    std::int16_t SeasonDays = 0;  ///< longest season, days after planting
    std::int16_t MAD = 0;         ///< management allowed depletion, percent
    float IrrEff = 0;             ///< irrigation efficiency, fraction
    float CapacityInterval = 0;   ///< thickness of a Capacity zone, m; 0 with variable layers
    float ContentInterval = 0;    ///< thickness of a Content zone, m; 0 with variable layers

    bool operator==(const HeaderCommon&) const = default;
};

/// Header of an ordinary crop's field file.
struct FieldHeader : HeaderCommon {
    float RootStart = 0;            ///< root depth at planting, m
    std::int16_t GddHarvest = 0;    ///< degree days at which the roots are full and the season may end
    float KcSpan = 0;               ///< degree-day span of the crop coefficient curve
    std::array<float, 6> KcSine{};  ///< its sine coefficients

    bool operator==(const FieldHeader&) const = default;
};

template <class Archive, class Header>
constexpr void Layout(Archive& archive, Header& header)
    requires std::same_as<std::remove_const_t<Header>, FieldHeader>
{
    archive(header.FieldId, header.CropName, header.StationCode);     // byte 0
    archive(header.CapacityTop, header.ContentTop, header.PlantDay);  // 25
    archive(header.RootStart, header.RootMax);                        // 33
    archive(header.GddLower, header.GddUpper);                        // 41
    archive(header.GddHarvest, header.SeasonDays);                    // 49
    archive(header.KcSpan, header.KcSine);                            // 53
    archive(header.MAD, header.IrrEff);                               // 81
    archive(header.CapacityInterval, header.ContentInterval);         // 87
}
static_assert(StoredSize<FieldHeader>() == 95);

/// Header of a hay field's file.
struct HayHeader : HeaderCommon {
    JulianValue NextCutDay = 0;     ///< predicted next cutting; 0: none yet
    std::int16_t GddCut = 0;        ///< degree days from one cutting to the next
    std::int16_t DryDays = 0;       ///< days after an irrigation until the field is dry enough to cut
    std::array<float, 13> Curve{};  ///< constants of the hay curves
    std::int16_t MADCritical = 0;   ///< depletion above which the crop can't wait for its cutting, percent

    bool operator==(const HayHeader&) const = default;
};

template <class Archive, class Header>
constexpr void Layout(Archive& archive, Header& header)
    requires std::same_as<std::remove_const_t<Header>, HayHeader>
{
    archive(header.FieldId, header.CropName, header.StationCode);  // byte 0
    archive(header.CapacityTop, header.ContentTop);                // 25
    archive(header.NextCutDay, header.PlantDay);                   // 29
    archive(header.RootMax, header.GddLower, header.GddUpper);     // 37
    archive(header.GddCut, header.SeasonDays, header.DryDays);     // 49
    archive(header.Curve);                                         // 55
    archive(header.MAD, header.MADCritical, header.IrrEff);        // 107
    archive(header.CapacityInterval, header.ContentInterval);      // 115
}
static_assert(StoredSize<HayHeader>() == 123);

/// The state of a field at the end of one day.
struct DayRecord {
    float Available = 0;            ///< water in the root zone, mm
    float GddSum = 0;               ///< degree-C days since planting; on hay since the last cutting
    float RootDepthOrKc = 0;        ///< root depth, m; on hay Kc, and `RootMax` in row 0
    float EtrSum = 0;               ///< reference evapotranspiration since planting, mm
    std::int16_t DaysSinceWet = 0;  ///< days since 15 mm of water or more came; 4 in row 0

    bool operator==(const DayRecord&) const = default;
};

template <class Archive, class Row>
constexpr void Layout(Archive& archive, Row& row)
    requires std::same_as<std::remove_const_t<Row>, DayRecord>
{
    archive(row.Available, row.GddSum, row.RootDepthOrKc, row.EtrSum, row.DaysSinceWet);
}
static_assert(StoredSize<DayRecord>() == 18);

/// Something that happened to a field on one day: mm of rain, irrigation, leaching or water reset, percent of MAD, or
/// the number of a cutting.
struct EventRecord {
    JulianValue Day = 0;
    std::int16_t Amount = 0;

    bool operator==(const EventRecord&) const = default;
};

template <class Archive, class Event>
constexpr void Layout(Archive& archive, Event& event)
    requires std::same_as<std::remove_const_t<Event>, EventRecord>
{
    archive(event.Day, event.Amount);
}
static_assert(StoredSize<EventRecord>() == 6);

/// A change of the irrigation efficiency, a fraction.
struct EfficiencyRecord {
    JulianValue Day = 0;
    float Value = 0;

    bool operator==(const EfficiencyRecord&) const = default;
};

template <class Archive, class Change>
constexpr void Layout(Archive& archive, Change& change)
    requires std::same_as<std::remove_const_t<Change>, EfficiencyRecord>
{
    archive(change.Day, change.Value);
}
static_assert(StoredSize<EfficiencyRecord>() == 8);

/// The Content profile that was in force up to, not including, `Day`. As many zones are stored as the field has.
struct ProfileRecord {
    JulianValue Day = 0;
    Zones Content{};

    bool operator==(const ProfileRecord&) const = default;
};

// --------------------------------------------------------------------------------------------------- the weather files

/// One day of weather.
struct WeatherDay {
    std::int16_t DayOfYear = 0;  ///< 1 to 366; 0: no such record
    float TempMax = 0;           ///< degrees C; 9999 marks an imported day with a missing value
    float TempMin = 0;           ///< degrees C
    float HumidityMax = 0;       ///< relative humidity, percent
    float HumidityMin = 0;
    float WindRun = 0;         ///< km per day
    float DayNightRatio = 0;   ///< wind speed by day over wind speed by night
    float SolarRadiation = 0;  ///< langleys per day
    float ReferenceET = 0;     ///< mm per day
    FixedText<8> Source;       ///< "kesta", "default" or blank

    bool operator==(const WeatherDay&) const = default;
};

/// `TempMax` of a day whose measurement is missing.
constexpr float MissingDayMark = 9999;

template <class Archive, class Day>
constexpr void Layout(Archive& archive, Day& day)
    requires std::same_as<std::remove_const_t<Day>, WeatherDay>
{
    archive(day.DayOfYear);                                                        // byte 0
    archive(day.TempMax, day.TempMin, day.HumidityMax, day.HumidityMin);           // 2
    archive(day.WindRun, day.DayNightRatio, day.SolarRadiation, day.ReferenceET);  // 18
    archive(day.Source);                                                           // 34
}
static_assert(StoredSize<WeatherDay>() == 42);

/// Coefficients of the default weather of one region: a row per member of `WeatherDay` from `TempMax` to `ReferenceET`,
/// a0 to a6 of its harmonic series in each.
using WeatherCoefficients = std::array<std::array<float, 7>, 8>;

}  // namespace veraqua
