#include "catch_up/weather_commands.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/catch_up/catch_up_fixture.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

const std::string Url = "http://kesta.example/kesta/data/0603rd.txt";
const ScriptAsk::Message DownloadFailedMessage{"No weather data was saved, try loading default data",
                                               "DOWNLOAD FAILED"};
const ScriptAsk::Question UpToDateQuestion{"Your weather data is already up-to-date\n  Do you want to overwrite it?",
                                           "Weather Info", Icon::Question, true};

struct WeatherCommands : CatchUpTest {
    void Serve(const std::string& text) { User.Pages[Url] = {true, 200, "", text}; }

    CommandReport Bring(WeatherCommand command) {
        return BringWeather(User, command, [this](std::string_view state) { States.emplace_back(state); });
    }

    std::vector<std::string> States;
};

struct Range {
    const char* Name;
    WeatherCommand Command;
    int Stored;  ///< days in the file before; day 195 is yesterday
    bool Overwrite = false;
    int From = 0;  ///< first day brought in; 0: the user declined
    int WantedBefore = 0;
};

struct RangeOf : WeatherCommands, testing::WithParamInterface<Range> {};

INSTANTIATE_TEST_SUITE_P(Of, RangeOf,
                         testing::Values(Range{"AppendingToNothing", WeatherCommand::Append, 0, false, 1},
                                         Range{"Appending", WeatherCommand::Append, 190, false, 191},
                                         Range{"AppendingYesterday", WeatherCommand::Append, 194, false, 195},
                                         Range{"AppendingToAllThatCanBe", WeatherCommand::Append, 195, false, 0},
                                         Range{"AppendingAfterALongerWish", WeatherCommand::Append, 195, false, 0, 200},
                                         Range{"AppendingAllTheSame", WeatherCommand::Append, 195, true, 1},
                                         Range{"Overwriting", WeatherCommand::Overwrite, 190, false, 1},
                                         Range{"OverwritingAllThatCanBe", WeatherCommand::Overwrite, 195, false, 1}),
                         [](const auto& row) { return row.param.Name; });

TEST_P(RangeOf, EndsYesterdayAndAsksBeforeItOverwrites) {
    const Range& range = GetParam();
    const JulianValue newYear = JulianFromDate(1, 1, 2003);
    if (range.Stored > 0) AWeatherYear("06", 2003).Through(range.Stored).Every(AWeatherDay().From("old")).Store();
    if (range.WantedBefore > 0) State.WeatherNeedTo = newYear + range.WantedBefore - 1;
    State.DownloadFailed = true;  // of an earlier try
    User.OtherAnswer = range.Overwrite;
    Serve(NetworkDays(1, 195));
    const CommandReport report = Bring(range.Command);

    const bool asks = range.Command == WeatherCommand::Append && range.Stored == 195;
    EXPECT_EQ(User.Asked, std::vector<ScriptAsk::Question>(asks ? 1 : 0, UpToDateQuestion));
    EXPECT_TRUE(User.Told.empty());
    if (range.From == 0) {
        EXPECT_EQ(report.Ending, CommandEnding::Declined);
        EXPECT_TRUE(User.Fetched.empty());
        EXPECT_EQ(SourceOf(195), "old");
        EXPECT_EQ(State.WeatherLastJulian, newYear + std::max(195, range.WantedBefore) - 1);
        return;
    }
    EXPECT_EQ(report.Ending, CommandEnding::Done);
    EXPECT_FALSE(State.DownloadFailed);
    EXPECT_THAT(User.Fetched, ElementsAre(Url));
    EXPECT_EQ(State.WeatherNeedFrom, newYear + range.From - 1);
    EXPECT_EQ(State.WeatherNeedTo, Yesterday);
    EXPECT_EQ(State.WeatherLastJulian, Yesterday);
    EXPECT_EQ(report.Status, "Weather file updated from KESTA between " + JulianToShortText(newYear + range.From - 1) +
                                 " and 07-14-03");
    EXPECT_EQ(report.FieldsUpdated, "Fields updated: 00");
    for (int day = 1; day <= 195; ++day) EXPECT_EQ(SourceOf(day), day < range.From ? "old" : "kesta") << day;
}

TEST_F(WeatherCommands, KeepTheTextUnderBothNames) {
    User.NetworkStates = {"Connected..."};
    Serve("\n\t2003,1,6\n\n2003,2,6");
    const std::string kept = "\r\n2003,1,6\r\n2003,2,6";
    Bring(WeatherCommand::Append);
    EXPECT_EQ(Directory.Raw("0603rd.txt"), kept);
    EXPECT_EQ(Directory.Raw("kesta.03"), kept);
    EXPECT_THAT(States, ElementsAre("Connected...", "Copying data to weather file", "Download Succeeded"));
}

TEST_F(WeatherCommands, AskAboutDaysThatTheTextLacks) {
    Serve(NetworkDays(1, 190));
    for (const bool answer : {false, true}) {
        AWeatherYear("06", 2003).Through(188).Store();
        User.Answers = {answer};
        EXPECT_EQ(Bring(WeatherCommand::Append).Ending, answer ? CommandEnding::Done : CommandEnding::Declined);
        EXPECT_FALSE(State.DownloadFailed);
        // 189 and 190 are measured and one default day follows.
        EXPECT_EQ(StoredDays(), answer ? 191 : 188);
        EXPECT_EQ(State.WeatherLastJulian, answer ? Yesterday : Yesterday - 7);
    }
    EXPECT_EQ(SourceOf(190), "kesta");
    EXPECT_EQ(SourceOf(191), "default");
    const ScriptAsk::Question missing{
        "KESTA data is missing 5 days worth of data.\n"
        "Do you wish to continue and use default data for the missing days?",
        "Weather Info", Icon::Question, true};
    EXPECT_THAT(User.Asked, ElementsAre(missing, missing));
    EXPECT_TRUE(User.Told.empty());
}

TEST_F(WeatherCommands, SaveNothingOfAFailedDownload) {
    for (const WeatherCommand command : {WeatherCommand::Append, WeatherCommand::Overwrite}) {
        User.Told.clear();
        State.DownloadFailed = false;
        const CommandReport report = Bring(command);
        EXPECT_EQ(report.Ending, CommandEnding::Failed);
        EXPECT_EQ(report.FieldsUpdated, "");
        EXPECT_TRUE(State.DownloadFailed);
        EXPECT_THAT(User.Told,
                    ElementsAre(ScriptAsk::Message{"404: Not Found", "Download Error"}, DownloadFailedMessage));
    }
    EXPECT_FALSE(Directory.Has("0603rd.txt"));
    EXPECT_FALSE(Directory.Has("kesta.03"));
    EXPECT_EQ(StoredDays(), 0);
}

TEST_F(WeatherCommands, RefuseAForeignTextEachInItsWords) {
    struct Row {
        WeatherCommand Command;
        std::string Text;
        const char* Refusal;
    };
    const std::string otherYear = ANetworkLine(191).Year("2002");
    const std::string otherStation = ANetworkLine(191).Station("8");
    User.OtherAnswer = true;
    for (const Row& row : {Row{WeatherCommand::Append, otherYear, "Wrong YEAR found in Weather download.  Try again"},
                           {WeatherCommand::Append, otherStation, "Wrong KESTA station downloaded.  Try again"},
                           {WeatherCommand::Overwrite, otherYear, "Wrong YEAR found in Weather download.  Try again!"},
                           {WeatherCommand::Overwrite, otherStation, "Wrong KESTA station downloaded.  Try again!"}}) {
        AWeatherYear("06", 2003).Through(190).Store();
        User.Told.clear();
        State.DownloadFailed = false;
        Serve(row.Text);
        EXPECT_EQ(Bring(row.Command).Ending, CommandEnding::Failed);
        EXPECT_TRUE(State.DownloadFailed);
        EXPECT_THAT(User.Told, ElementsAre(ScriptAsk::Message{row.Refusal, "Download Error"}));
        EXPECT_EQ(StoredDays(), 190);
        EXPECT_EQ(State.WeatherLastJulian, Yesterday - 5);
    }
}

TEST_F(WeatherCommands, SayWhichTextIsNotThere) {
    State.WeatherNeedFrom = JulianFromDate(6, 1, 2002);
    State.WeatherNeedTo = JulianFromDate(6, 2, 2002);
    const std::string end = "\nTry again or download Default Weather Data.";
    EXPECT_EQ(ImportRange(User, WeatherCommand::Append, true).Ending, CommandEnding::Failed);
    EXPECT_TRUE(State.DownloadFailed);
    EXPECT_EQ(ImportRange(User, WeatherCommand::Overwrite, false).Ending, CommandEnding::Failed);
    EXPECT_THAT(User.Told,
                ElementsAre(ScriptAsk::Message{"Your KESTA data file for 02 was not downloaded" + end, "KESTA Warning"},
                            ScriptAsk::Message{"Your KESTA data file for 02 was not downloaded!" + end, "Warning!"}));
}

TEST_F(WeatherCommands, NameDaysWithoutWindOnceAfterTheImport) {
    AWeatherYear("06", 2003).Through(190).Store();
    Serve(NetworkDays(1, 192) + ANetworkLine(193).Column(19, "999") + ANetworkLine(194) +
          ANetworkLine(195).Column(19, "999"));
    EXPECT_EQ(Bring(WeatherCommand::Append).Ending, CommandEnding::Done);
    ASSERT_EQ(User.Told.size(), 1U);
    EXPECT_EQ(User.Told[0].Title, "Weather Info");
    EXPECT_THAT(User.Told[0].Text, testing::StartsWith("No wind was measured on 07-12-03 07-14-03."));
}

TEST_F(WeatherCommands, ForTheChooserTakeItsRangeAndRunNoField) {
    AField().StoreAt(1);
    const auto field = Directory.Raw("field1.dat");
    Directory.Put("kesta.03", NetworkDays(1, 195));
    State.WeatherNeedFrom = Yesterday - 1;
    State.WeatherNeedTo = Yesterday;
    const CommandReport report = AppendForChooser(User);
    EXPECT_EQ(report.Ending, CommandEnding::Done);
    EXPECT_FALSE(report.CatchUp);
    EXPECT_EQ(SourceOf(194) + SourceOf(195), "kestakesta");
    EXPECT_EQ(SourceOf(193), "default");
    EXPECT_EQ(Directory.Raw("field1.dat"), field);
    EXPECT_TRUE(User.Asked.empty());

    State.DownloadFailed = true;
    EXPECT_EQ(AppendForChooser(User).Ending, CommandEnding::Failed);
    EXPECT_THAT(User.Told, ElementsAre(DownloadFailedMessage));
}

}  // namespace
}  // namespace veraqua
