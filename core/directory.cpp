#include "core/directory.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/text_items.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

namespace {

constexpr std::string_view StatFile = "stat.dat";
constexpr std::string_view UpdatesFile = "updates.dat";
constexpr std::string_view DefaultWeatherFile = "weathdef.dat";

constexpr std::size_t StatWidth = StoredSize<StatRecord>();
constexpr std::size_t UpdatesWidth = sizeof(JulianValue);

void CheckDay(JulianValue day, std::string_view file, int row) {
    if (!IsPossibleDay(day)) FailIn(file, fmt::format("row {} has the impossible day number {}.", row, day));
}

void ReadStat(Reader& reader, DirectoryRows<StatRecord>& stat, int rows) {
    for (int row = 1; row <= rows; ++row) {
        StatRecord& record = stat[row];
        Layout(reader, record);
        for (const JulianValue day : {record.LastDay, record.NextIrrDay, record.NextCutDay})
            CheckDay(day, StatFile, row);
    }
}

void ReadUpdates(Reader& reader, DirectoryRows<JulianValue>& updates, int rows) {
    for (int row = 1; row <= rows; ++row) {
        reader(updates[row]);
        CheckDay(updates[row], UpdatesFile, row);
    }
}

/// Puts `record` at `row` of a file of records of one width; a shorter file is filled up with zeros.
void WriteRecord(std::string_view file, const std::string& record, int row) {
    std::string contents = *files::Read(file);
    const std::size_t offset = static_cast<std::size_t>(row - 1) * record.size();
    if (contents.size() < offset + record.size()) contents.resize(offset + record.size(), '\0');
    contents.replace(offset, record.size(), record);
    files::Write(file, std::move(contents));
}

void LoadStationNames() {
    State.DefaultStations.clear();
    const auto bytes = files::ReadExisting(DefaultWeatherFile);
    TextItems items(*bytes, DefaultWeatherFile);
    const int names = items.Integer16();
    if (names < 0) FailIn(DefaultWeatherFile, fmt::format("{} names of stations.", names));
    items.Integer16();
    for (int i = 0; i < names; ++i) State.DefaultStations.push_back(items.Text());
}

}  // namespace

bool IsStation(int number) { return number >= 1 && number <= static_cast<int>(State.DefaultStations.size()); }

std::string NoStationText(std::string_view typed) {
    return fmt::format("\"{}\" is no station of weathdef.dat.", typed);
}

std::string StationNameOf(std::string_view code) {
    const int number = WholeNumber(code).value_or(0);
    return IsStation(number) ? State.DefaultStations[static_cast<std::size_t>(number - 1)] : "UNKNOWN";
}

std::string FieldFileName(int row) { return fmt::format("field{}.dat", row); }

std::string FieldFileTitle(int row) {
    const std::string id = State.Stat[row].FieldId.Text();
    return id.empty() ? FieldFileName(row) : fmt::format("{} (field {})", FieldFileName(row), id);
}

std::vector<int> RowsInUse() {
    std::vector<int> rows;
    for (int row = 1; row <= MaxFields; ++row)
        if (State.Stat[row].LastDay > 0) rows.push_back(row);
    return rows;
}

int LowestFreeRow() {
    for (int row = 1; row <= MaxFields; ++row)
        if (State.Stat[row].LastDay == 0) return row;
    return 0;
}

void LoadFieldDirectory() {
    const auto stat = files::ReadExisting(StatFile);
    const std::size_t wholeRows = stat->size() / StatWidth;
    if (wholeRows > MaxFields)
        FailIn(StatFile, fmt::format("{} rows, but there are at most {}.", wholeRows, MaxFields));
    const int rows = static_cast<int>(wholeRows);

    DirectoryRows<StatRecord> loadedStat;
    DirectoryRows<JulianValue> loadedUpdates;
    Reader statReader(*stat, StatFile);
    ReadStat(statReader, loadedStat, rows);
    if (const auto updates = files::Read(UpdatesFile)) {
        Reader updatesReader(*updates, UpdatesFile);
        updatesReader.Expect(wholeRows * UpdatesWidth);
        ReadUpdates(updatesReader, loadedUpdates, rows);
    } else if (files::MayWrite()) {
        files::Write(UpdatesFile, BlankUpdatesFile(rows));
    }
    State.Stat = loadedStat;
    State.Updates = loadedUpdates;
}

void WriteFieldRow(Ask& ask, int row, const StatRecord& record, JulianValue depletionDay) {
    for (const auto& [file, text] : {std::pair{StatFile, "Need to create stat.dat - exiting system."},
                                     std::pair{UpdatesFile, "Need to create updates.dat - exiting system."}}) {
        if (!files::Exists(file)) {
            ask.Tell(text);
            ask.EndProgram();
        }
    }
    files::ChangeSet bothFiles;
    std::string bytes;
    Writer writer(bytes);
    Layout(writer, record);
    WriteRecord(StatFile, bytes, row);

    bytes.clear();
    writer(depletionDay);
    WriteRecord(UpdatesFile, bytes, row);
    bothFiles.Commit();
}

void SaveFieldRow(Ask& ask, int row) { WriteFieldRow(ask, row, State.Stat[row], State.Updates[row]); }

void WriteDirectory(const std::vector<int>& rows) {
    std::string stat = rows.empty() ? BlankStatFile(MaxFields) : "";
    std::string updates = rows.empty() ? BlankUpdatesFile(MaxFields) : "";
    Writer statWriter(stat);
    Writer updatesWriter(updates);
    for (const int row : rows) {
        Layout(statWriter, State.Stat[row]);
        updatesWriter(State.Updates[row]);
    }
    files::ChangeSet bothFiles;
    files::Write(StatFile, std::move(stat));
    files::Write(UpdatesFile, std::move(updates));
    bothFiles.Commit();
}

void StartDirectory() {
    State.Stat = {};
    State.Updates = {};
    State.FieldCount = 0;
    State.LatestLastDay = 0;
    State.CurrentField = 0;
    if (!files::Exists(StatFile)) {
        if (files::MayWrite()) WriteDirectory({});
        return;
    }
    LoadFieldDirectory();
    for (const int row : RowsInUse()) {
        State.LatestLastDay = std::max(State.LatestLastDay, State.Stat[row].LastDay);
        if (files::Exists(FieldFileName(row))) {
            ++State.FieldCount;
        } else {
            State.Stat[row].LastDay = 0;
            State.Updates[row] = 0;
        }
    }
}

void StartUp(const Ask& ask) {
    State.IrrigationChanged = false;
    State.RainChanged = false;
    State.EnglishUnits = true;
    State.WeatherNeedFrom = 0;
    State.WeatherNeedTo = 0;
    State.DisplayDays = 12;
    State.TodayJulian = ask.Now();
    const ApplicationState nothingInWork;
    State.IsHay = nothingInWork.IsHay;
    State.VariableSoil = nothingInWork.VariableSoil;
    State.StationCode = nothingInWork.StationCode;
    State.StationName = nothingInWork.StationName;
    State.WeatherLastJulian = nothingInWork.WeatherLastJulian;
    StartDirectory();
    LoadStationNames();
}

std::string BlankStatFile(int rows) { return std::string(static_cast<std::size_t>(rows) * StatWidth, '\0'); }

std::string BlankUpdatesFile(int rows) { return std::string(static_cast<std::size_t>(rows) * UpdatesWidth, '\0'); }

}  // namespace veraqua
