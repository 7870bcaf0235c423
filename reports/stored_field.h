#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/ask.h"
#include "core/base/failure.h"
#include "core/field_file.h"

/// Field files as the reports read them: into locals, whatever field is in work.
namespace veraqua {

/// The file of the field in row `row` of the directory. Nothing if it is missing, after the user has been told.
/// RunTimeFailure, naming the file, if it is damaged.
std::optional<FieldFile> StoredField(Ask& ask, int row);

/// What `compute` gives. Where the numbers of the file `name` can't be computed with, the RunTimeFailure names it.
template <class Compute>
auto ComputedFrom(const std::string& name, Compute compute) {
    try {
        return compute();
    } catch (const RunTimeFailure& failure) {
        throw RunTimeFailure(name + ": " + failure.what());
    }
}

/// Visits the fields of the directory in its order. One whose file is missing, damaged or can't be computed with is
/// left out, after the user has been told.
void ForEachStoredField(Ask& ask, const std::function<void(int row, const FieldFile& file)>& visit);

}  // namespace veraqua
