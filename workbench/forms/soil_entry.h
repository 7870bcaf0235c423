#pragma once

#include "screen/controls.h"
#include "workbench/refused.h"

/// What the two soil forms of a new field share.
namespace veraqua {

/// Tells the user why the content of `box` was refused, and selects it.
void RefuseEntry(TextBox& box, const Refused& refused);

/// Names the new field on a soil form and in the title of the workbench.
void ShowNewField(StatusBar& bar);

}  // namespace veraqua
