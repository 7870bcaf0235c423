#include "catch_up/weather_commands.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/catch_up/catch_up_fixture.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using Message = ScriptAsk::Message;

const Message DownloadFailedMessage{"No weather data was saved, try loading default data", "DOWNLOAD FAILED"};
constexpr auto Append = WeatherCommand::Append;
constexpr auto Overwrite = WeatherCommand::Overwrite;

struct WeatherCommands : CatchUpTest {
    CommandReport Bring(WeatherCommand command, const std::string& text) {
        return BringWeather(User, command, [&] {
            Fetched.push_back(NetworkFileName());
            StoreNetworkText(text);
            State.DownloadFailed = false;
        });
    }

    std::vector<std::string> Fetched;
};

TEST_F(WeatherCommands, EndYesterdayAndAskBeforeTheyOverwrite) {
    struct Range {
        WeatherCommand Command;
        int Stored;  ///< days in the file before; day 195 is yesterday
        bool MayOverwrite;
        int From;  ///< first day brought in; 0: the user declined
        int WantedBefore = 0;
    };
    const JulianValue dayZero = JulianFromDate(1, 1, 2003) - 1;
    const ScriptAsk::Question upToDate{"Your weather data is already up-to-date\n  Do you want to overwrite it?",
                                       "Weather Info", Icon::Question, true};
    for (const Range& range : {Range{Append, 0, false, 1}, Range{Append, 194, false, 195}, Range{Append, 195, false, 0},
                               Range{Append, 195, false, 0, 200}, Range{Append, 195, true, 1},
                               Range{Overwrite, 190, false, 1}, Range{Overwrite, 195, false, 1}}) {
        SCOPED_TRACE(testing::Message() << "to " << range.Stored << " from " << range.From);
        AWeatherYear("06", 2003).Through(range.Stored).Every(AWeatherDay().From("old")).Store();
        State.WeatherNeedTo = range.WantedBefore > 0 ? dayZero + range.WantedBefore : 0;
        State.DownloadFailed = true;  // of an earlier try
        User.OtherAnswer = range.MayOverwrite;
        User.Asked.clear();
        Fetched.clear();
        const CommandReport report = Bring(range.Command, NetworkDays(1, 195));
        const bool asks = range.Command == Append && range.Stored == 195;
        EXPECT_EQ(User.Asked, std::vector<ScriptAsk::Question>(asks ? 1 : 0, upToDate));
        EXPECT_TRUE(User.Told.empty());
        EXPECT_EQ(State.WeatherLastJulian, dayZero + std::max(195, range.WantedBefore));
        const int from = range.From > 0 ? range.From : 196;
        for (int day = 1; day <= 195; ++day) EXPECT_EQ(SourceOf(day), day < from ? "old" : "kesta") << day;
        if (range.From == 0) {
            EXPECT_EQ(report.Ending, CommandEnding::Declined);
            EXPECT_TRUE(Fetched.empty());
            continue;
        }
        EXPECT_EQ(report.Ending, CommandEnding::Done);
        EXPECT_FALSE(State.DownloadFailed);
        EXPECT_THAT(Fetched, ElementsAre("0603rd.txt"));
        EXPECT_EQ(report.Status,
                  "Weather file updated from KESTA between " + JulianToShortText(dayZero + from) + " and 07-14-03");
    }
}

TEST_F(WeatherCommands, KeepTheTextUnderBothNames) {
    Bring(Append, "\n\t2003,1,6\n\n2003,2,6");
    EXPECT_EQ(Directory.Raw("0603rd.txt"), "\r\n2003,1,6\r\n2003,2,6");
    EXPECT_EQ(Directory.Raw("kesta.03"), Directory.Raw("0603rd.txt"));
}

TEST_F(WeatherCommands, AskAboutDaysThatTheTextLacks) {
    for (const bool answer : {false, true}) {
        AWeatherYear("06", 2003).Through(188).Store();
        User.Answers = {answer};
        EXPECT_EQ(Bring(Append, NetworkDays(1, 190)).Ending, answer ? CommandEnding::Done : CommandEnding::Declined);
        EXPECT_FALSE(State.DownloadFailed);
        // 189 and 190 are measured and one default day follows.
        EXPECT_EQ(StoredDays(), answer ? 191 : 188);
        EXPECT_EQ(State.WeatherLastJulian, answer ? Yesterday : Yesterday - 7);
    }
    EXPECT_EQ(SourceOf(190) + SourceOf(191), "kestadefault");
    const ScriptAsk::Question missing{
        "KESTA data is missing 5 days worth of data.\n"
        "Do you wish to continue and use default data for the missing days?",
        "Weather Info", Icon::Question, true};
    EXPECT_THAT(User.Asked, ElementsAre(missing, missing));
}

TEST_F(WeatherCommands, RefuseAForeignTextEachInItsWords) {
    const std::string otherYear = ANetworkLine(191).Year("2002");
    const std::string otherStation = ANetworkLine(191).Station("8");
    AWeatherYear("06", 2003).Through(190).Store();
    User.OtherAnswer = true;
    for (const auto& [command, end] : {std::pair{Append, ""}, {Overwrite, "!"}}) {
        for (const auto& [text, refusal] : {std::pair{otherYear, "Wrong YEAR found in Weather download.  Try again"},
                                            {otherStation, "Wrong KESTA station downloaded.  Try again"}}) {
            User.Told.clear();
            EXPECT_EQ(Bring(command, text).Ending, CommandEnding::Failed);
            EXPECT_TRUE(State.DownloadFailed);
            EXPECT_THAT(User.Told, ElementsAre(Message{std::string(refusal) + end, "Download Error"}));
            EXPECT_EQ(StoredDays(), 190);
        }
    }
}

TEST_F(WeatherCommands, SayWhichTextIsNotThere) {
    State.WeatherNeedFrom = State.WeatherNeedTo = JulianFromDate(6, 1, 2002);
    const std::string end = "\nTry again or download Default Weather Data.";
    EXPECT_EQ(ImportRange(User, Append, true).Ending, CommandEnding::Failed);
    EXPECT_EQ(ImportRange(User, Overwrite, false).Ending, CommandEnding::Failed);
    EXPECT_TRUE(State.DownloadFailed);
    EXPECT_THAT(User.Told, ElementsAre(Message{"Your KESTA data file for 02 was not downloaded" + end, "KESTA Warning"},
                                       Message{"Your KESTA data file for 02 was not downloaded!" + end, "Warning!"}));
}

TEST_F(WeatherCommands, NameDaysWithoutWindOnceAfterTheImport) {
    const std::string windless = ANetworkLine(193).Column(19, "999") + ANetworkLine(195).Column(19, "999");
    User.OtherAnswer = true;
    EXPECT_EQ(Bring(Append, NetworkDays(1, 192) + windless).Ending, CommandEnding::Done);
    ASSERT_EQ(User.Told.size(), 1U);
    EXPECT_EQ(User.Told[0].Title, "Weather Info");
    EXPECT_THAT(User.Told[0].Text, testing::StartsWith("No wind was measured on 07-12-03 07-14-03."));
}

TEST_F(WeatherCommands, ForTheChooserTakeItsRangeAndRunNoField) {
    AField().StoreAt(1);
    const auto field = Directory.Raw("field1.dat");
    Directory.Put("kesta.03", NetworkDays(1, 195));
    State.WeatherNeedFrom = State.WeatherNeedTo = Yesterday;
    EXPECT_EQ(AppendForChooser(User).Ending, CommandEnding::Done);
    EXPECT_EQ(SourceOf(194) + SourceOf(195), "defaultkesta");
    EXPECT_EQ(Directory.Raw("field1.dat"), field);
    State.DownloadFailed = true;
    EXPECT_EQ(AppendForChooser(User).Ending, CommandEnding::Failed);
    EXPECT_THAT(User.Told, ElementsAre(DownloadFailedMessage));
}

}  // namespace
}  // namespace veraqua
