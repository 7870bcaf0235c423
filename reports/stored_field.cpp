#include "reports/stored_field.h"

#include "core/directory.h"
#include "core/state.h"

namespace veraqua {

std::optional<FieldFile> StoredField(Ask& ask, int row) {
    const auto bytes = OpenField(ask, row);
    if (!bytes) return std::nullopt;
    return ParseFieldFile(*bytes, State.Stat[row].CropName.First() == HayMark, FieldFileName(row));
}

void ForEachStoredField(Ask& ask, const std::function<void(int, const FieldFile&)>& visit) {
    for (const int row : RowsInUse()) {
        try {
            if (const auto file = StoredField(ask, row)) ComputedFrom(FieldFileName(row), [&] { visit(row, *file); });
        } catch (const RunTimeFailure& failure) {
            ask.Tell(failure.what(), ProgramTitle, Icon::Stop);
        }
    }
}

}  // namespace veraqua
