#pragma once

namespace veraqua {

/// Makes the forms of this room known.
void AddShellForms();

}  // namespace veraqua
