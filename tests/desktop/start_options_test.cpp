#include "desktop/start_options.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/data_directory.h"

namespace veraqua {

namespace {

/// What came of the start with `words`, and what was printed to stdout and stderr.
struct Started {
    StartOptions Options;
    std::string Out;
    std::string Err;
};

Started Start(std::vector<std::string> words) {
    words.insert(words.begin(), "veraqua");
    std::vector<char*> arguments;
    arguments.reserve(words.size());
    for (std::string& word : words) arguments.push_back(word.data());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Started started;
    started.Options = ReadStartOptions(static_cast<int>(arguments.size()), arguments.data());
    started.Out = testing::internal::GetCapturedStdout();
    started.Err = testing::internal::GetCapturedStderr();
    return started;
}

}  // namespace

TEST(StartOptionsTest, HelpVersionAndSlipsComeWithoutAWindow) {
    EXPECT_EQ(Start({}).Options.ExitStatus, std::nullopt);
    const Started help = Start({"--help"});
    EXPECT_EQ(help.Options.ExitStatus, 0);
    EXPECT_THAT(help.Out, testing::HasSubstr("--data DIR"));
    EXPECT_THAT(Start({"--version"}).Out, testing::StartsWith("veraqua "));
    const Started slip = Start({"--dta", "x"});
    EXPECT_EQ(slip.Options.ExitStatus, 2);
    EXPECT_THAT(slip.Err, testing::HasSubstr("--dta"));
}

TEST(StartOptionsTest, OpensTheDirectoryThatIsNamedOrSaysWhyNot) {
    const TestDirectory directory;
    files::Close();  // a start opens it itself
    const Started nothing = Start({"--data", directory.Path()});
    EXPECT_EQ(nothing.Options.ExitStatus, 1);
    EXPECT_THAT(nothing.Err, testing::HasSubstr("There is no data directory (one with weathdef.dat) at"));
    directory.Put("weathdef.dat", "");
    const Started there = Start({"--data", directory.Path()});
    EXPECT_EQ(there.Options.ExitStatus, std::nullopt);
    EXPECT_EQ(there.Options.DataDirectory, directory.Path());
}

}  // namespace veraqua
