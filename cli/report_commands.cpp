#include "cli/commands.h"
#include "core/directory.h"

namespace veraqua {
int RunInit(Session&, bool) { return 0; }
int RunSchedule(Session&, const std::string&) { return 0; }
int RunReport(Session&, int, const std::string&) { return 0; }
}  // namespace veraqua
