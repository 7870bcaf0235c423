#pragma once

#include <algorithm>
#include <optional>

#include "screen/controls.h"
#include "workbench/refused.h"

/// What the two soil forms of a new field share.
namespace veraqua {

/// Tells the user why the content of `box` was refused, and selects it.
void RefuseEntry(TextBox& box, const Refused& refused);

/// Whether the user, asked, wants to go on with the entries of the form instead of leaving it. Without entries nothing
/// is asked.
bool KeepsEntries(bool anyEntered);

/// Whether the user has typed into one of `boxes` what still stands there.
template <class Boxes>
bool AnyEntered(const Boxes& boxes) {
    return std::ranges::any_of(boxes, [](const TextBox& box) { return box.Typed && !box.Text.empty(); });
}

/// Tells why `box` can't be left, with the focus in it. True if it can.
bool MayLeave(const TextBox& box, const std::optional<Refused>& refused);

/// Names the new field on a soil form and in the title of the workbench.
void ShowNewField(StatusBar& bar);

}  // namespace veraqua
