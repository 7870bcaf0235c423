#include "reports/stored_field.h"

#include "core/directory.h"
#include "core/state.h"

namespace veraqua {

std::optional<FieldFile> StoredField(Ask& ask, int row) {
    const auto bytes = OpenField(ask, row);
    if (!bytes) return std::nullopt;
    return ParseFieldFile(*bytes, State.Stat[row].CropName.First() == HayMark, FieldFileName(row));
}

}  // namespace veraqua
