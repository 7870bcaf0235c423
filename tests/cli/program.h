#pragma once

#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"

namespace veraqua {

/// What a run of the program has left. A killed one has the status 128 and the signal's number, as in a shell.
struct Ran {
    int Status = -1;
    std::string Out;
    std::string Err;
};

/// Runs the built program in a process of its own, for a minute at most, with nothing but `environment` of the outside.
///   output  file that stands in for stdout; `Out` stays empty then
Ran RunCli(const std::vector<std::string>& arguments, const std::vector<std::string>& environment = {},
           const std::string& output = {});

/// A data directory on 15 July 2003: maize in row 1, hay in row 2, both of station 06 and planted on 1 May, and the
/// station's weather through 13 July.
struct CliTest : testing::Test {
    CliTest() {
        for (const char* name : {"weathdef.dat", "crop.dat"}) Directory.Put(name, EmbeddedFile(name));
        AWeatherYear("06", 2003).Through(194).Store();
        AField().StoreAt(1);
        const JulianValue planted = JulianFromDate(5, 1, 2003);
        AField()
            .Hay()
            .Rain(planted + 2, 12)
            .Irrigation(planted + 3, 25)
            .Cutting(planted + 50, 1)
            .With([&](FieldFile& file) {
                file.Lists.History = {{planted + 2, {130, 120, 110, 100}}};
            })
            .StoreAt(2);
        files::Close();
    }

    /// Runs a command, its words parted by blanks, on the directory and the day.
    Ran Run(const std::string& command, std::vector<std::string> options = {}) const {
        options.insert(options.end(), {"--data", Directory.Path(), "--today", "07-15-2003"});
        std::istringstream words(command);
        for (std::string word; words >> word;) options.push_back(word);
        return RunCli(options);
    }

    /// Every file of the directory with its bytes, but for the lock.
    std::map<std::string, std::string> Everything() const {
        std::map<std::string, std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(Directory.Path()))
            if (const std::string name = entry.path().filename(); name != "veraqua.lock")
                all[name] = Directory.Raw(name);
        return all;
    }

    TestDirectory Directory;
};

}  // namespace veraqua
