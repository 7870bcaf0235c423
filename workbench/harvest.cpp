#include "workbench/harvest.h"

#include <algorithm>

#include <fmt/format.h>

#include "catch_up/field_updates.h"
#include "core/backup_name.h"
#include "core/backups.h"
#include "core/base/archive.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// "NORTH 30  _300626_ 1.row" beside "NORTH 30  _300626_ 1.dat".
std::string RowFileName(const std::string& backupName) { return backupName.substr(0, backupName.rfind('.')) + ".row"; }

std::string RowFileBytes(int row) {
    const HarvestedRow harvested{State.Stat[row], State.Updates[row]};
    std::string bytes;
    Writer writer(bytes);
    Layout(writer, harvested);
    return bytes;
}

/// Nothing if the backup has none.
std::optional<HarvestedRow> ReadRowFile(const std::string& backupName) {
    const std::string name = RowFileName(backupName);
    const auto bytes = files::Read(name);
    if (!bytes) return std::nullopt;
    HarvestedRow harvested;
    Reader reader(*bytes, name);
    Layout(reader, harvested);
    const StatRecord& row = harvested.Row;
    for (const JulianValue day : {row.LastDay, row.NextIrrDay, row.NextCutDay, harvested.DepletionDay})
        if (!IsPossibleDay(day) || row.LastDay == 0) FailIn(name, "the days of the field can't be true.");
    return harvested;
}

FixedText<10> IdToHarvest(Ask& ask, int row, DamagedField damaged) {
    try {
        return LoadFieldFile(row).Header().FieldId;
    } catch (const RunTimeFailure& failure) {  // the user may wish to be rid of it
        if (damaged == DamagedField::Fails || !files::Exists(FieldFileName(row))) throw;
        ask.Tell(failure.what(), ProgramTitle, Icon::Stop);
        return State.Stat[row].FieldId;
    }
}

/// Rows 1 to n for the n fields that are left when `ended` goes; gaps close.
void RenumberWithout(int ended) {
    std::vector<int> left = RowsInUse();
    left.erase(std::remove(left.begin(), left.end(), ended), left.end());
    WriteDirectory(left);
    int row = 0;
    for (const int old : left)
        if (++row != old) files::Rename(FieldFileName(old), FieldFileName(row));
}

/// What the directory says of a field that has not been run yet.
HarvestedRow RowAtPlanting(const FieldFile& file) {
    HarvestedRow start;
    start.Row.LastDay = file.Header().PlantDay;
    start.Row.MadNow = file.Header().MAD;
    return start;
}

/// A name that the user typed could be that of any file, also of a field in use.
bool IsBackup(const std::string& name) {
    const std::vector<Backup> backups = FindBackups();
    return std::any_of(backups.begin(), backups.end(), [&](const Backup& backup) { return backup.FileName == name; });
}

bool IsIdInUse(const FixedText<10>& id) {
    const std::vector<int> rows = RowsInUse();
    return std::any_of(rows.begin(), rows.end(),
                       [&](int row) { return State.Stat[row].FieldId.UpperCase() == id.UpperCase(); });
}

/// Puts the backup back as the field of `row`, as one set of changes. Gives what else there is to be said.
std::string_view PutBack(Ask& ask, const std::string& backupName, const FieldFile& file, int row) {
    const std::optional<HarvestedRow> kept = ReadRowFile(backupName);
    const HarvestedRow harvested = kept ? *kept : RowAtPlanting(file);
    files::ChangeSet changes;
    files::Rename(backupName, FieldFileName(row));
    files::Remove(RowFileName(backupName));
    State.Stat[row] = harvested.Row;
    State.Stat[row].FieldId = file.Header().FieldId;
    State.Stat[row].CropName = file.Header().CropName;
    State.Updates[row] = harvested.DepletionDay;
    SaveFieldRow(ask, row);
    const bool hasRun = kept || UpdateRows(ask, {row}).front() == UpdateStatus::Done;
    changes.Commit();
    State.FieldCount = static_cast<std::int16_t>(RowsInUse().size());
    if (kept) return "";
    return hasRun ? "\nIts depletion date was not kept. It was run from planting."
                  : "\nIts depletion date was not kept. It has to be run from planting.";
}

/// Behind the last field; where there is no room, in the place of one whose file got lost. 0 where all rows are in use.
int RowToRestore() {
    const std::vector<int> rows = RowsInUse();
    const int last = rows.empty() ? 0 : rows.back();
    return last < MaxFields ? last + 1 : LowestFreeRow();
}

}  // namespace

bool IsDamaged(int row) {
    if (!files::Exists(FieldFileName(row))) return false;
    try {
        LoadFieldFile(row);
    } catch (const RunTimeFailure&) {  // which is the answer
        return true;
    }
    return false;
}

OrRefused<Harvested> HarvestField(Ask& ask, int row, DamagedField damaged) {
    const FixedText<10> id = IdToHarvest(ask, row, damaged);
    if (!ask.YesNo("Please confirm you wish to harvest/delete Field ID = " + id.Whole(), "Delete Confirmation",
                   Icon::Question, true))
        return Refused{};
    constexpr std::string_view notBackedUp = "Your field was NOT backed up.  ";
    const std::string backup = FreeBackupName(id, ask.Now());
    std::string failing(notBackedUp);
    try {
        files::ChangeSet changes;
        files::Rename(FieldFileName(row), backup);
        files::Write(RowFileName(backup), RowFileBytes(row));
        failing = "Field file renumbering error (for files past deleted one).  ";
        RenumberWithout(row);
        failing = notBackedUp;
        changes.Commit();
        ask.Tell("Your field was deleted and backed up to " + backup, "Field Harvested/Deleted");
    } catch (const RunTimeFailure& failure) {  // told in words of its own
        // A change that is recorded and will be completed counts: it is what the files are read as.
        const bool isRecorded = files::Exists(backup);
        const Refused refused{(isRecorded ? "" : failing) + failure.what(), "File Error"};
        if (!isRecorded) return refused;
        Tell(ask, refused);
        StartDirectory();
        return Harvested{backup, false};
    }
    StartDirectory();
    return Harvested{backup};
}

OrRefused<int> RestoreField(Ask& ask, const std::string& backupName) {
    if (!IsBackup(backupName)) return Refused{backupName + " is no harvested field in the data directory."};
    const FieldFile file = LoadBackup(backupName);
    const std::string id = file.Header().FieldId.Text();
    const int row = RowToRestore();
    if (row == 0) return DirectoryIsFull();
    if (IsIdInUse(file.Header().FieldId))
        return Refused{"A field in use has the Field ID Code " + id + ". Harvest it before you restore this one.",
                       "Duplicate Field ID"};
    std::string_view remark;
    try {
        remark = PutBack(ask, backupName, file, row);
    } catch (const RunTimeFailure&) {  // memory is to say what the files say
        StartDirectory();
        throw;
    }
    ask.Tell(fmt::format("Field ID = {} was restored from {}{}", id, backupName, remark), "Field Restored");
    return row;
}

}  // namespace veraqua
