#pragma once

namespace veraqua {

/// Shows the bars of all fields and hides the workbench, or tells that there are none.
void ShowFieldDisplays();

}  // namespace veraqua
