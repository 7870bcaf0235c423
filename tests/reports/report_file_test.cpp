#include "reports/report_file.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/data_directory.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Message = ScriptAsk::Message;

const Message NoName{"Please enter a file name", "Missing File Name"};
const Message TooLong{"Please enter a shorter file name", "Invalid File Name"};
const Message SpecialCharacter{"An invalid special character was found in your file name.", "Invalid File Name"};
const Message DataFile{"That is a data file of Veraqua. Please choose another name.", "Invalid File Name"};

Message NoDirectory(const std::string& name) {
    return {"The following directory was not found: " + name, "Directory Error"};
}

/// The data directory, with a directory "season" in it.
struct ReportName : DirectoryTest {
    ReportName() { std::filesystem::create_directory(Directory.Path() + "season"); }

    void ExpectRefused(const std::string& name, const Message& told) {
        User.Told.clear();
        EXPECT_EQ(ReportPath(User, name, BareName::InDataDirectory), std::nullopt) << name;
        EXPECT_THAT(User.Told, ElementsAre(told)) << name;
    }

    void ExpectPath(const std::string& name, const std::string& path) {
        User.Told.clear();
        EXPECT_EQ(ReportPath(User, name, BareName::InDataDirectory), path);
        EXPECT_THAT(User.Told, IsEmpty()) << name;
    }
};

TEST_F(ReportName, MeansAPathOrIsRefusedWithTheFirstReasonThatHolds) {
    const std::string& data = Directory.Path();
    ExpectPath("July.txt", data + "July.txt");
    ExpectPath(data + "season\\July", data + "season/July");
    ExpectPath("Rübenfeld Süd (2).txt", data + "Rübenfeld Süd (2).txt");
    for (const std::string blanks : {"", "  "})
        for (const std::string directory : {"", data.c_str()}) ExpectRefused(directory + blanks, NoName);
    ExpectRefused(data + "winter\\July'.txt", NoDirectory(data + "winter"));
    ExpectRefused(data + "stat.dat/July.txt", NoDirectory(data + "stat.dat"));
    ExpectRefused(std::string(256, ':'), TooLong);
    ExpectRefused(std::string(127, 'x').append("ÜÜ").append(125, 'x'), TooLong);
    const std::string season = data + "season/";
    for (const char* name : {"July'.txt", "Ju:ly", "|"}) ExpectRefused(season + name, SpecialCharacter);
}

TEST_F(ReportName, MayNotBeADataFileInTheDataDirectory) {
    for (const std::string name :
         {"stat.dat", "Updates.dat", "CROP.DAT", "weathdef.dat", "network.txt", "Field100.dat", "weather06.03",
          "KESTA.03", "0603rd.txt", "veraqua.lock", "veraqua.journal", "North     _040503_ 1.dat",
          "Año Ñ     _040503_ 12.dat", "VeraGuide.doc", "old letters to banks.dat"}) {
        ExpectRefused(name, DataFile);
        ExpectRefused(Directory.Path() + "season/../" + name, DataFile);
        ExpectPath(Directory.Path() + "season/" + name, Directory.Path() + "season/" + name);
    }
    for (const std::string name : {"field.dat", "my stat.dat", "weather6.03", "North     _040503_ .dat"})
        ExpectPath(name, Directory.Path() + name);
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(Directory.Path());
    EXPECT_EQ(ReportPath(User, "stat.dat", BareName::InWorkingDirectory), std::nullopt);
    std::filesystem::current_path(before);
}

}  // namespace
}  // namespace veraqua
