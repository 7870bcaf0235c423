#pragma once

namespace veraqua {

/// Makes the forms of this room known.
void AddWorkbenchForms();

}  // namespace veraqua
