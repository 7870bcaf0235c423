#include <cstdint>
#include <set>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/cli/program.h"
#include "tests/support/failing_disks.h"

namespace veraqua {
namespace {

const std::string Stories = VERAQUA_TEST_DATA "/cli/";

/// FNV-1a, 32 bits.
std::uint32_t Checksum(const std::string& bytes) {
    std::uint32_t sum = 2166136261U;
    for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
    return sum;
}

/// Each line of `text` behind `mark`.
std::string Marked(char mark, const std::string& text) {
    std::string marked;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) marked += mark + (line.empty() ? "" : " " + line) + "\n";
    return marked;
}

/// The sample farm on 15 July 2003, in a directory of the story's own.
struct Transcript : testing::TestWithParam<std::string> {
    Transcript() {
        files::Close();
        RunCli({"--data", Directory.Path(), "--today", "07-15-2003", "init", "--sample"});
        Directory.Put("VERAGUIDE.doc", "");  // as large as all else, and no command touches it
    }

    /// What a command left, as the stories' README describes it.
    std::string OutcomeOf(const std::string& command) const {
        const files::Contents before = files::ContentsOf(Directory.Path());
        const Ran ran = RunLine("--data . --today 07-15-2003 " + command, Directory.Path());
        const files::Contents after = files::ContentsOf(Directory.Path());
        std::string outcome = Marked('|', ran.Out) + Marked('!', ran.Err) + fmt::format("-> {}\n", ran.Status);
        for (const auto& [name, bytes] : after)
            if (!before.contains(name) || before.at(name) != bytes)
                outcome += fmt::format("{} {:08x} {}\n", before.contains(name) ? '~' : '+', Checksum(bytes), name);
        for (const auto& [name, bytes] : before)
            if (!after.contains(name)) outcome += "- " + name + "\n";
        return outcome;
    }

    /// The story with the outcomes of this run.
    std::string Play(const std::string& story) const {
        std::string played;
        std::istringstream lines(story);
        for (std::string line; std::getline(lines, line);) {
            if (line.empty() || line.starts_with("#")) played += line + "\n";
            if (line.starts_with("$ ")) played += line + "\n" + OutcomeOf(line.substr(2));
            if (!line.starts_with("% ")) continue;
            played += line + "\n";
            EXPECT_EQ(std::system(("cd " + Directory.Path() + " && " + line.substr(2)).c_str()), 0) << line;
        }
        return played;
    }

    TestDirectory Directory;
};

// Made by the commands themselves, then read line by line.
TEST_P(Transcript, IsRepeatedLineByLine) {
    const std::string path = Stories + GetParam() + ".txt";
    const std::string expected = TextOf(path);
    const std::string played = Play(expected);
    if (std::getenv("VERAQUA_WRITE_TRANSCRIPTS") != nullptr)
        std::ofstream(path, std::ios::binary) << played;
    else
        EXPECT_EQ(played, expected);
}

std::set<std::string> Names() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Stories))
        if (entry.path().extension() == ".txt") names.insert(entry.path().stem());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Of, Transcript, testing::ValuesIn(Names()),
                         [](const testing::TestParamInfo<std::string>& story) { return story.param; });

}  // namespace
}  // namespace veraqua
