#pragma once

namespace veraqua {

/// The whole program: reads the command line, runs its command and returns the exit status.
int RunProgram(int argumentCount, const char* const* arguments);

}  // namespace veraqua
