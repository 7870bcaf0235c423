#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/records.h"

/// The field directory: stat.dat and updates.dat on disk, `Stat` and `Updates` in memory. A field has no number but its
/// row, which is also the number in its file's name.
namespace veraqua {

/// "field7.dat" for row 7.
std::string FieldFileName(int row);

/// The same with the field's ID, for messages: "field7.dat (field NORTH 30)".
std::string FieldFileTitle(int row);

/// Whether weathdef.dat names a weather station with the code `number`.
bool IsStation(int number);

/// Why a station isn't taken that the user has `typed`.
std::string NoStationText(std::string_view typed);

/// Name of the weather station with the two-digit code `code`; "UNKNOWN" where weathdef.dat names none.
std::string StationNameOf(std::string_view code);

/// Rows in use, rising. A field whose file got lost leaves a gap.
std::vector<int> RowsInUse();

/// The lowest row that is free for a new field, or 0 when all are in use.
int LowestFreeRow();

/// What the user is told in that case.
constexpr std::string_view NoFreeRowText = "Veraqua keeps at most 100 fields.";

/// Reads stat.dat and updates.dat into `Stat` and `Updates` and clears the rows above those read. A missing updates.dat
/// is made anew with zeros: it costs only the depletion dates. RunTimeFailure on a file that can't be true.
void LoadFieldDirectory();

/// Writes row `row` of both files. If one of them has vanished it tells so and ends the program.
///   depletionDay  day of the last depletion set by hand; 0: never
void WriteFieldRow(Ask& ask, int row, const StatRecord& record, JulianValue depletionDay);

/// The same with the row that memory has.
void SaveFieldRow(Ask& ask, int row);

/// Writes both files anew with `rows` of memory as the rows 1, 2 and so on; without any they are as on a first start.
void WriteDirectory(const std::vector<int>& rows);

/// Sets the directory's state to its start and loads it, making both files on a first start. A row whose field file is
/// missing is cleared in memory. This is what is left to do after the last field has gone.
void StartDirectory();

/// All that happens when the program starts and the data directory is open: today, the units, the directory, the names
/// of the weather stations; nothing is in work then. RunTimeFailure if weathdef.dat is short.
void StartUp(const Ask& ask);

/// Contents of new directory files of `rows` rows without fields.
std::string BlankStatFile(int rows);
std::string BlankUpdatesFile(int rows);

}  // namespace veraqua
