#pragma once

#include <optional>
#include <vector>

#include "core/records.h"

/// A list of dated amounts as the user keeps it: rising by date, one entry per date.
namespace veraqua {

enum class ListChange {
    Changed,
    Unchanged,  ///< the same amount stood there already
    NoMatch,    ///< there is no entry of that day to remove
};

/// Puts `amount` on `day`, in place of what stood there; without an amount the entry of that day is removed. Amounts
/// are compared and stored as whole numbers. RunTimeFailure beyond 16 bits.
ListChange ManageEvents(std::vector<EventRecord>& events, JulianValue day, std::optional<double> amount);

}  // namespace veraqua
