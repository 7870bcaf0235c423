#include "reports/stored_field.h"

#include "core/directory.h"

namespace veraqua {

void ForEachStoredField(Ask& ask, const std::function<void(int, const FieldFile&)>& visit) {
    for (const int row : RowsInUse()) {
        try {
            if (const auto file = OpenField(ask, row)) InFile(FieldFileTitle(row), [&] { visit(row, *file); });
        } catch (const RunTimeFailure& failure) {  // one field of many
            ask.Tell(failure.what(), ProgramTitle, Icon::Stop);
        }
    }
}

}  // namespace veraqua
