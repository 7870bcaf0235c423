// The field directory. The input is the size of stat.dat in two bytes, stat.dat, and updates.dat; where the size is
// more than there is, updates.dat is missing.

#include <algorithm>
#include <string>

#include "core/directory.h"
#include "core/field_file.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/support.h"
#include "reports/schedule.h"

namespace veraqua {

namespace {

constexpr std::size_t StatWidth = StoredSize<StatRecord>();

/// Writes the two files. Gives the rows that the first one has.
std::size_t Split(std::string_view bytes) {
    const auto byte = [bytes](std::size_t i) { return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U; };
    const std::size_t statSize = byte(0) | byte(1) << 8U;
    bytes.remove_prefix(std::min<std::size_t>(2, bytes.size()));
    files::Write("stat.dat", std::string(bytes.substr(0, statSize)));
    if (statSize <= bytes.size()) files::Write("updates.dat", std::string(bytes.substr(statSize)));
    return std::min(statSize, bytes.size()) / StatWidth;
}

void TakeDirectory(std::string_view bytes) {
    const MemoryDirectory directory;
    ScriptAsk user;
    const std::size_t rows = Split(bytes);
    const bool starts = EndsWell([] { StartDirectory(); });
    Require(EndsWell([] { LoadFieldDirectory(); }) == starts, "a directory is read the first time or the second only");
    if (!starts) return;

    for (const int row : RowsInUse()) Require(!SelectField(user, row), "a field without a file can be selected");
    ScheduleText(user);
    const auto stat = files::Read("stat.dat");
    const auto updates = files::Read("updates.dat");
    for (std::size_t row = 1; row <= rows; ++row) SaveFieldRow(user, static_cast<int>(row));
    Require(*files::Read("stat.dat") == *stat, "a row comes back as another");
    Require(*files::Read("updates.dat") == *updates, "a depletion date comes back as another");
}

}  // namespace

}  // namespace veraqua

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    veraqua::TakeDirectory(veraqua::TextOf(data, size));
    return 0;
}
