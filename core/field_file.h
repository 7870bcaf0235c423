#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/files/files.h"
#include "core/records.h"

/// The field files: one per field, with its header, its soil, a row per day since planting and the lists of events that
/// shaped those days. docs/formats.md has the byte tables of both kinds, ordinary crop and hay.
namespace veraqua {

/// Water capacity and water content of a field's zones. `Bounds[0]` above 0 says that they are layers of those
/// thicknesses; otherwise they are zones of the header's two intervals.
struct SoilProfile {
    Zones Capacity{};
    Zones Content{};
    LayerBounds Bounds{};

    bool operator==(const SoilProfile&) const = default;
};

/// The lists of a field file, each in rising order of its days.
struct FieldLists {
    std::vector<ProfileRecord> History;               ///< profiles that were in force up to the `Day` of their record
    std::vector<EventRecord> Leaching;                ///< mm that left the soil
    std::vector<EventRecord> MadChanges;              ///< percent
    std::vector<EfficiencyRecord> EfficiencyChanges;  ///< fraction
    std::vector<EventRecord> DepletionChanges;        ///< mm that replace the water in the root zone
    std::vector<EventRecord> Rain;                    ///< mm
    std::vector<EventRecord> Cuttings;                ///< number of the cutting; hay only
    std::vector<EventRecord> Irrigation;              ///< mm, gross

    bool operator==(const FieldLists&) const = default;
};

/// A whole field file. Of the two headers only that of the file's kind counts.
struct FieldFile {
    bool IsHay = false;
    FieldHeader Field;
    HayHeader Hay;
    SoilProfile Soil;
    std::vector<DayRecord> Days;  ///< row i is the day `PlantDay` + i; never empty
    FieldLists Lists;

    HeaderCommon& Header() { return IsHay ? static_cast<HeaderCommon&>(Hay) : Field; }
    const HeaderCommon& Header() const { return IsHay ? static_cast<const HeaderCommon&>(Hay) : Field; }
    bool VariableSoil() const { return Soil.Bounds[0] > 0; }
};

/// Nothing in the file tells its kind. RunTimeFailure, naming `fileName`, if its counts and sizes can't be true or a
/// number is not finite; bytes behind the last list are ignored.
FieldFile ParseFieldFile(std::string_view bytes, bool isHay, std::string_view fileName);

/// RunTimeFailure if a list or the number of day rows doesn't fit a signed 16-bit count.
files::Bytes FieldFileBytes(const FieldFile& file);

/// What a field file says as of one day.
struct DayView {
    JulianValue Day = 0;  ///< the day asked for, moved into the rows of the file
    std::size_t Row = 0;  ///< its row
    Zones Content{};      ///< the water content profile of that day
};

DayView AsOf(const FieldFile& file, JulianValue day);

/// The day whose row shows the present state of the field with this row of the directory: the day after the last one
/// with weather, but no later than today.
JulianValue StateDay(const StatRecord& row, JulianValue today);

/// Sum of a list's amounts, mm, as the single that `RainTotal` and `IrrigationTotal` are.
float TotalAmount(const std::vector<EventRecord>& events);

/// The field file of `row`, its kind taken from the row's crop name; the state stays as it is. RunTimeFailure if it is
/// missing or damaged.
FieldFile LoadFieldFile(int row);

/// The same. Nothing if it is missing, after the user has been told.
std::optional<FieldFile> OpenField(Ask& ask, int row);

/// What a writer brings for a field file. Rows and lists that come in empty are carried over from the file.
struct FieldChanges {
    JulianValue StartDay = 0;     ///< the day of `Days[0]`
    std::vector<DayRecord> Days;  ///< replace the rows from `StartDay` on; the file ends with the last of them
    bool Merge = false;  ///< Leaching and History are merged: records up to and on `SeamDay` stay, new ones follow
    JulianValue SeamDay = 0;
    FieldLists Lists;          ///< Leaching and History hold the new records; the other lists replace those of the file
    bool RainRemoved = false;  ///< an empty list means that the user has removed all its records
    bool CutsRemoved = false;
    bool IrrigationRemoved = false;
};

/// Brings `changes` into `file`. From the first list on that has new content (in file order; with new rows all lists) a
/// list that is left with one record of value 0 loses it: a lone 0 stands for no record.
void WriteField(FieldFile& file, const FieldChanges& changes);

/// `FieldFileBytes` into the file of `row`.
void StoreFieldFile(int row, const FieldFile& file);

}  // namespace veraqua
