#pragma once

namespace veraqua {

/// Makes the forms of this room known.
void AddReportForms();

}  // namespace veraqua
