#pragma once

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "core/files/disk.h"
#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/bytes.h"
#include "tests/support/data_directory.h"

namespace veraqua {

/// What a run of the program has left. One that is killed has the status 128 and the signal's number, as in a shell.
struct Ran {
    int Status = -1;
    std::string Out;
    std::string Err;
};

/// Runs the built program in `directory`, in a process of its own, for a minute at most and without the variables of
/// the outside. `line` is what a shell would be given behind the program's name.
inline Ran RunLine(const std::string& line, const std::string& directory = ".") {
    const files::Descriptor out(memfd_create("out", 0));
    const files::Descriptor err(memfd_create("err", 0));
    const auto path = [](const files::Descriptor& file) { return "/proc/self/fd/" + std::to_string(file.Number()); };
    const std::string command = "cd " + directory + " && { timeout 60 env -i " VERAQUA_CLI " " + line + "; }";
    const int status = std::system((command + " >" + path(out) + " 2>" + path(err)).c_str());
    return {WEXITSTATUS(status), TextOf(path(out)), TextOf(path(err))};
}

/// The same, word for word. No word may hold an apostrophe.
inline Ran RunCli(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) line += "'" + word + "' ";
    return RunLine(line);
}

/// A data directory on 15 July 2003: maize in row 1, hay in row 2, both of station 06 and planted on 1 May, and the
/// station's weather through 13 July.
struct CliTest : testing::Test {
    CliTest() {
        for (const char* name : {"weathdef.dat", "crop.dat"}) Directory.Put(name, EmbeddedFile(name));
        AWeatherYear("06", 2003).Through(194).Store();
        AField().StoreAt(1);
        const JulianValue planted = JulianFromDate(5, 1, 2003);
        AField().Hay().Rain(planted + 2, 12).Irrigation(planted + 3, 25).Cutting(planted + 50, 1).StoreAt(2);
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
