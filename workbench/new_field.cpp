#include "workbench/new_field.h"

#include <algorithm>
#include <array>
#include <span>

#include <fmt/format.h>

#include "catch_up/weather_check.h"
#include "core/base/characters.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/base/units.h"
#include "core/clock.h"
#include "core/directory.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// Numbers of the stations that are refused as off-line.
constexpr std::array OffLineForClick{18, 19, 26};
constexpr std::array OffLineForTyping{11, 16, 17, 18, 25};

constexpr const char* InputError = "Input Error";

/// Metres of a root depth that was entered in inches or mm.
float EnteredDepth(double depth) {
    return ToSingle(State.EnglishUnits ? depth / InchesPerFoot * MetresPerFoot : depth / 1000, "the root depth");
}

std::string DateBoxText(JulianValue day) {
    const Date date = DateFromJulian(day);
    return fmt::format("{}/{}/{}", date.Month, date.Day, date.Year);
}

std::optional<Refused> RefusedUnless1To100(std::string_view typed, Given where, std::string_view notNumeric,
                                           std::string_view outOfRange) {
    const std::optional<double> value = Numeric(typed);
    if (value && *value >= 1 && *value <= 100) return std::nullopt;
    return Refused{std::string(value ? outOfRange : notNumeric), InputError, where};
}

std::optional<Refused> CheckPercent(std::string_view typed, Given where) {
    constexpr std::string_view text = "Please enter a value between 1 and 100!";
    return RefusedUnless1To100(typed, where, text, text);
}

void TakeStation(int number) {
    State.StationCode = fmt::format("{:02}", number);
    State.StationName = State.DefaultStations.at(static_cast<std::size_t>(number - 1));
}

bool IdIsTaken(std::string_view typed) {
    FixedText<10> kept;
    kept = typed;
    // Blanks around a typed ID count: with them it is another one.
    const std::string whole = kept.UpperCase().Whole();
    const std::string compared = whole.substr(0, std::min(whole.size(), typed.size()));
    return std::ranges::any_of(RowsInUse(),
                               [&](int row) { return State.Stat[row].FieldId.UpperCase().Text() == compared; });
}

std::optional<Refused> CheckFieldId(std::string_view typed) {
    if (Trimmed(typed).empty()) return Refused{"Please enter a Field ID Code!", "Missing Field ID", Given::FieldId};
    if (!Latin1FromUtf8(typed) || HasControlCharacter(typed))
        return Refused{"The Field ID Code has a character that no field file can hold.", InputError, Given::FieldId};
    if (IdIsTaken(typed))
        return Refused{"You have already used this Field ID Code. Please select another!", "Duplicate Field ID",
                       Given::FieldId};
    return std::nullopt;
}

OrRefused<JulianValue> TakePlantDate(Ask& ask, std::string& typed) {
    std::string text(Trimmed(typed));
    const JulianValue day = ValidateDate(ask, text);
    if (day == 0) return Refused{{}, {}, Given::Date};
    typed = text;
    // File names of weather carry two digits of the year.
    if (YearOf(day) <= YearOf(ask.Now()) - 100)
        return Refused{"The planting date is too far in the past.", "Date input error", Given::Date};
    return day;
}

std::int16_t Percent(std::string_view typed) { return ToInteger16(Numeric(typed).value_or(0), "a percentage"); }

void StoreCommon(const FieldEntry& entry, JulianValue plantDay) {
    HeaderCommon& header = State.Header();
    header.PlantDay = plantDay;
    header.StationCode = State.StationCode;
    header.FieldId = entry.FieldId;
    header.IrrEff = ToSingle(Numeric(entry.Efficiency).value_or(0) / 100, "the irrigation efficiency");
    header.MAD = Percent(entry.Mad);
}

void StoreHay(const FieldEntry& entry) {
    State.Hay.MADCritical = Percent(entry.MadCritical);
    State.Hay.RootMax = EnteredDepth(Numeric(entry.RootDepth).value_or(0));
    State.Hay.DryDays = ToInteger16(Numeric(entry.DryDays).value_or(0), "the drying time");
}

/// Refused where the new depth lies below the crop's own.
std::optional<Refused> StoreRootDepth(const FieldEntry& entry) {
    const double entered = Numeric(entry.RootDepth).value_or(0);
    const float depth = entered > 0 ? EnteredDepth(entered) : entry.CropRootMax;
    if (depth > entry.CropRootMax)
        return Refused{"New value must be less than the default maximum rooting depth.", InputError, Given::RootDepth};
    State.Field.RootMax = depth;
    return std::nullopt;
}

}  // namespace

OrRefused<int> RowForNewField() {
    const int row = LowestFreeRow();
    if (row == 0) return DirectoryIsFull();
    return row;
}

std::optional<int> CropCalled(std::string_view name) {
    const std::vector<std::string>& crops = State.CropNames;
    const std::string_view wanted = Trimmed(name);
    auto found = std::ranges::find_if(crops, [&](const std::string& crop) { return Trimmed(crop) == wanted; });
    if (found == crops.end())
        found = std::ranges::find_if(
            crops, [&](const std::string& crop) { return LowerCase(Trimmed(crop)) == LowerCase(wanted); });
    if (found == crops.end()) return std::nullopt;
    return static_cast<int>(found - crops.begin()) + 1;
}

std::string DepthText(float metres) {
    return State.EnglishUnits ? Masked(metres / MetresPerFoot * InchesPerFoot, "00.0") : Masked(metres * 1000.0, "000");
}

FieldEntry StartingEntry() {
    FieldEntry entry;
    // The clock's own date, also where the user has put another in its place.
    entry.PlantDate = DateBoxText(ClockDate());
    entry.CropRootMax = State.Header().RootMax;
    if (State.IsHay) {
        entry.DryDays = Plain(State.Hay.DryDays);
        entry.RootDepth = DepthText(entry.CropRootMax);
    }
    return entry;
}

std::optional<Refused> CheckPlantDate(std::string_view typed) {
    if (IsCalendarDay(Trimmed(typed))) return std::nullopt;
    return Refused{"Planting date needs to be in mm/dd/yyyy format!", "INVALID DATE", Given::Date};
}

std::optional<Refused> CheckMad(std::string_view typed) { return CheckPercent(typed, Given::Mad); }
std::optional<Refused> CheckEfficiency(std::string_view typed) { return CheckPercent(typed, Given::Efficiency); }
std::optional<Refused> CheckMadCritical(std::string_view typed) { return CheckPercent(typed, Given::CriticalMad); }

std::optional<Refused> CheckHayRootDepth(std::string_view typed) {
    // The limits are the same in inches and in mm.
    constexpr std::string_view text = "Please enter a positive value";
    return RefusedUnless1To100(typed, Given::RootDepth, text, text);
}

std::optional<Refused> CheckDryDays(std::string_view typed) {
    return RefusedUnless1To100(typed, Given::DryDays, "Please enter a positive integer",
                               "Please enter a positive integer between 1 and 100");
}

std::optional<Refused> PickStation(int number, StationPick how) {
    if (number == 0)
        return Refused{"Please select a location from the drop-down list", "Nothing selected", Given::Station};
    const std::span<const int> offLine =
        how == StationPick::Clicked ? std::span<const int>(OffLineForClick) : std::span<const int>(OffLineForTyping);
    if (std::ranges::find(offLine, number) != offLine.end())
        return Refused{"Please select a site that isn't off-line!", "Bad selection", Given::Station};
    TakeStation(number);
    return std::nullopt;
}

std::optional<Refused> DescribeField(Ask& ask, FieldEntry& entry) {
    if (State.IsHay)  // its critical MAD starts empty
        if (std::optional<Refused> refused = CheckMadCritical(entry.MadCritical)) return refused;
    if (std::optional<Refused> refused = CheckFieldId(entry.FieldId)) return refused;
    if (entry.Station == 0)
        return Refused{"Please select a Weather Station from the drop-down list", "Nothing selected", Given::Station};
    TakeStation(entry.Station);
    const OrRefused<JulianValue> plantDay = TakePlantDate(ask, entry.PlantDate);
    if (!plantDay.IsDone()) return plantDay.Why();
    StoreCommon(entry, *plantDay);
    if (State.IsHay)
        StoreHay(entry);
    else if (std::optional<Refused> refused = StoreRootDepth(entry))
        return refused;
    State.Stat[State.CurrentField].FieldId = State.Header().FieldId;
    return std::nullopt;
}

bool FindWeather(Ask& ask) {
    if (CheckWeather(ask, YearOf(State.Header().PlantDay)) == WeatherCheck::Ready) return true;
    State.DownloadFailed = false;
    State.ReportCancelled = false;
    return false;
}

StartedField StartField(Ask& ask, const EnteredSoil& soil) {
    HeaderCommon& header = State.Header();
    header.CapacityTop = header.ContentTop = static_cast<std::int16_t>(soil.Top);
    header.CapacityInterval = header.ContentInterval = soil.Interval;
    FieldFile file;
    file.IsHay = State.IsHay;
    file.Field = State.Field;
    file.Hay = State.Hay;
    file.Soil = soil.Profile;
    FieldInHand field = NewField(file);
    State.MadExceededDay = 0;  // those of the field that was in work before; a run sets them
    State.DriedOutDay = 0;
    files::ChangeSet asOne;
    const FieldRun run = RunField(ask, field, State.TodayJulian);
    StoreField(ask, field);
    asOne.Commit();
    LeaveInState(field, run);
    State.FieldCount = static_cast<std::int16_t>(RowsInUse().size());
    return {State.CurrentField, run.Outcome};
}

}  // namespace veraqua
