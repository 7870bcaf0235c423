#include "desktop/start_options.h"

#include <cstdlib>
#include <iostream>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/state.h"
#include "shell/data_search.h"

namespace veraqua {

namespace {

constexpr int BadUsage = 2;

}  // namespace

StartOptions ReadStartOptions(int argumentCount, char** arguments) {
    StartOptions options;
    CLI::App app("Irrigation scheduling for up to 100 fields. Without options the usual data directory is opened.",
                 "veraqua");
    app.set_version_flag("--version", "veraqua " + State.VersionString);
    app.add_option("--data", options.DataDirectory, "open this data directory")->type_name("DIR");
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& end) {  // the help and the version, too
        options.ExitStatus = app.exit(end, std::cout, std::cerr) == 0 ? 0 : BadUsage;
        return options;
    }
    if (!options.DataDirectory) return options;
    try {
        if (IsDataDirectory(*options.DataDirectory)) return options;
        std::cerr << fmt::format("There is no data directory (one with {}) at {}. \"veraqua-cli init\" makes one.\n",
                                 DataDirectoryMarker, *options.DataDirectory);
    } catch (const RunTimeFailure& failure) {  // it is there, but not for this user
        std::cerr << failure.what() << '\n';
    }
    options.ExitStatus = EXIT_FAILURE;
    return options;
}

}  // namespace veraqua
