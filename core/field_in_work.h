#pragma once

namespace veraqua {

/// After a failure: takes the row and the header of the field in work from disk again, so that memory says what the
/// files say. The field stays selected. The row of a field that is still being entered is not in use again.
void RereadFieldInWork();

}  // namespace veraqua
