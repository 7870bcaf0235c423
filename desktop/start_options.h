#pragma once

#include <optional>
#include <string>

namespace veraqua {

/// What the program was started with.
struct StartOptions {
    std::optional<std::string> DataDirectory;  ///< to open in the place of the usual one
    std::optional<int> ExitStatus;             ///< where all is said and no window is to come
};

/// Reads the words of the command line. What they ask for, or what is wrong with them, is printed at once; no display
/// is needed for that.
StartOptions ReadStartOptions(int argumentCount, char** arguments);

}  // namespace veraqua
