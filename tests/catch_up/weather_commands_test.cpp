#include "catch_up/weather_commands.h"

#include <algorithm>
#include <string>

#include <gmock/gmock.h>

#include "tests/catch_up/catch_up_fixture.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

using enum WeatherCommand;

struct WeatherCommands : CatchUpTest {
    CommandReport Bring(WeatherCommand command, const std::string& text, OpenDays openDays = OpenDays::Tell) {
        const auto store = [&](int year) {
            StoreNetworkText(year, text);
            return true;
        };
        return BringWeather(User, command, store, openDays);
    }
};

TEST_F(WeatherCommands, EndYesterdayAndAskBeforeTheyOverwrite) {
    struct Range {
        const char* Case;
        WeatherCommand Command;
        int Stored;  ///< days in the file before; day 195 is yesterday
        bool MayOverwrite;
        int From;  ///< first day brought in; 196: the user declined
    };
    for (const Range& range :
         {Range{"append to nothing", Append, 0, false, 1}, Range{"append a day", Append, 194, false, 195},
          Range{"append, declined", Append, 195, false, 196}, Range{"append, confirmed", Append, 195, true, 1},
          Range{"overwrite", Overwrite, 195, false, 1}}) {
        SCOPED_TRACE(range.Case);
        AWeatherYear("06", 2003).Through(range.Stored).Every(AWeatherDay().From("old")).Store();
        State.WeatherNeedTo = 0;
        User.OtherAnswer = range.MayOverwrite;
        User.Asked.clear();
        const CommandReport report = Bring(range.Command, NetworkDays(1, 195));
        EXPECT_EQ(User.Asked.size(), range.Command == Append && range.Stored == 195 ? 1U : 0U);
        EXPECT_EQ(State.WeatherLastJulian, Yesterday);
        for (int day = 1; day <= 195; ++day) EXPECT_EQ(SourceOf(day), day < range.From ? "old" : "kesta") << day;
        EXPECT_EQ(report.Ending, range.From > 195 ? CommandEnding::Declined : CommandEnding::Done);
    }
    EXPECT_EQ(Directory.Raw("kesta.03"), Directory.Raw("0603rd.txt"));
}

TEST_F(WeatherCommands, BringTheLastDaysOfTheOldYearFromItsOwnText) {
    const auto bring = [&](JulianValue today) {
        User.Asked.clear();
        User.Told.clear();
        State.TodayJulian = User.Today = today;
        return BringWeather(User, Append, [&](int year) {
            const std::string of = std::to_string(year);
            std::string text;
            for (int day = 1; day <= (year == 2003 ? 365 : 2); ++day) text += ANetworkLine(day).Year(of);
            StoreNetworkText(year, text);
            return true;
        });
    };
    const JulianValue newYear = JulianFromDate(1, 1, 2004);
    AWeatherYear("06", 2003).Through(364).Store();
    EXPECT_EQ(bring(newYear).Range, (DayRange{newYear - 1, newYear - 1}));
    EXPECT_EQ(SourceOf(365), "kesta");
    EXPECT_EQ(bring(newYear).Ending, CommandEnding::Declined);  // no day is missing
    EXPECT_THAT(User.Texts(), ElementsAre("There is no weather of 2004 to bring in yet."));
    AWeatherYear("06", 2003).Through(363).Store();
    const CommandReport report = bring(newYear + 2);
    EXPECT_EQ(report.Status, "Weather file updated from KESTA between 12-30-03 and 01-02-04");
    EXPECT_EQ(SourceOf(364) + SourceOf(365), "kestakesta");
    EXPECT_EQ(WeatherFile("06", 2004).Days(), 2);
    EXPECT_TRUE(User.Told.empty());
}

TEST_F(WeatherCommands, SayWhereAnImportHasEndedEarly) {
    // Day 192, 11 July, lacks a value; the text of the second case ends on it and one default day follows.
    const std::string bad = NetworkDays(1, 191) + ANetworkLine(192).Bad() + NetworkDays(193, 195);
    for (const auto& [text, told] : {std::pair<std::string, const char*>{
                                         bad,
                                         "The import has ended before 07-11-03: the text lacks a value of that day. "
                                         "Weather is there through 07-10-03."},
                                     {NetworkDays(1, 192),
                                      "The import has ended before 07-13-03: the text has no line for it. "
                                      "Weather is there through 07-12-03."}}) {
        AWeatherYear("06", 2003).Through(190).Store();
        User.OtherAnswer = true;
        User.Told.clear();
        Bring(Append, text);
        EXPECT_THAT(User.Texts(), ElementsAre(testing::StartsWith(told)));
        EXPECT_LT(WeatherFile("06", 2003).Days(), 195);
        Bring(Append, text, OpenDays::Offer);
        EXPECT_EQ(WeatherFile("06", 2003).Days(), 195);
        EXPECT_EQ(User.Told.size(), 1U);
    }
}

TEST_F(WeatherCommands, GatherEqualMessagesOfTheCatchUp) {
    AWeatherYear("06", 2003).Through(190).Store();
    for (const int row : {1, 2}) AField().Days(10).StoreAt(row);
    const std::string bad = NetworkDays(1, 191) + ANetworkLine(192).Bad() + NetworkDays(193, 195);
    User.OtherAnswer = false;
    Bring(Append, bad, OpenDays::Offer);  // 11 July stays open
    EXPECT_THAT(User.Texts(), ElementsAre(testing::HasSubstr("\nStation 06, day 07-11-03. Fields ")));
    User.Told.clear();
    Bring(Append, bad);  // a script hears of each field
    EXPECT_EQ(std::count_if(User.Told.begin(), User.Told.end(),
                            [](const auto& told) { return told.Title == "Weather File Error"; }),
              2);
}

TEST_F(WeatherCommands, AskAboutDaysThatTheTextLacks) {
    for (const bool answer : {false, true}) {
        AWeatherYear("06", 2003).Through(188).Store();
        User.Answers = {answer};
        EXPECT_EQ(Bring(Append, NetworkDays(1, 190)).Ending, answer ? CommandEnding::Done : CommandEnding::Declined);
        // 189 and 190 are measured and one default day follows.
        EXPECT_EQ(WeatherFile("06", 2003).Days(), answer ? 191 : 188);
        EXPECT_EQ(State.WeatherLastJulian, answer ? Yesterday : Yesterday - 7);
    }
    EXPECT_EQ(SourceOf(190) + SourceOf(191), "kestadefault");
    EXPECT_EQ(
        User.Asked.at(0).Text,
        "KESTA data is missing 5 days worth of data.\nDo you wish to continue and use default data for the missing days?");
}

TEST_F(WeatherCommands, RefuseAForeignTextEachInItsWords) {
    AWeatherYear("06", 2003).Through(190).Store();
    for (const auto& [command, end] : {std::pair{Append, ""}, {Overwrite, "!"}}) {
        User.Told.clear();
        User.OtherAnswer = true;
        EXPECT_EQ(Bring(command, ANetworkLine(191).Year("2002")).Ending, CommandEnding::Failed);
        EXPECT_EQ(Bring(command, ANetworkLine(191).Station("8")).Ending, CommandEnding::Failed);
        EXPECT_THAT(User.Texts(), ElementsAre(std::string("Wrong YEAR found in Weather download.  Try again") + end,
                                              std::string("Wrong KESTA station downloaded.  Try again") + end));
        EXPECT_EQ(WeatherFile("06", 2003).Days(), 190);
    }
}

TEST_F(WeatherCommands, LeaveTheEarlierTextInPlaceOfOneThatCannotBeUsed) {
    AWeatherYear("06", 2003).Through(190).Store();
    const std::string earlier = NetworkDays(1, 190);
    User.OtherAnswer = false;
    for (const std::string& text :
         {std::string(ANetworkLine(191).Year("2002")), std::string(ANetworkLine(191).Station("8")), std::string("\n"),
          std::string("<html>")}) {
        Directory.Put("kesta.03", earlier);
        Bring(Append, text);
        EXPECT_EQ(Directory.Raw("kesta.03"), earlier) << text;
        EXPECT_NE(Directory.Raw("0603rd.txt"), earlier);
    }
    Bring(Append, NetworkDays(1, 191));  // can be used, only the days that it lacks were declined
    EXPECT_EQ(Directory.Raw("kesta.03"), Directory.Raw("0603rd.txt"));
}

TEST_F(WeatherCommands, TellOnceThatNothingWasSaved) {
    User.OtherAnswer = true;
    EXPECT_EQ(Bring(Overwrite, "").Ending, CommandEnding::Failed);  // a text without a line
    const auto failing = [](int year) { return year != 2003; };
    const CommandReport report = BringWeather(User, Overwrite, failing);
    EXPECT_EQ(report.Ending, CommandEnding::Failed);
    EXPECT_EQ(report.Range, (DayRange{JulianFromDate(1, 1, 2003), Yesterday}));
    EXPECT_TRUE(State.DownloadFailed);
    const std::string said = "No weather data was saved, try loading default data";
    EXPECT_THAT(User.Texts(), ElementsAre(said, said));
    EXPECT_EQ(WeatherFile("06", 2003).Days(), 0);
}

TEST_F(WeatherCommands, NameDaysWithoutWindOnceAfterTheImport) {
    const std::string windless = ANetworkLine(193).Column(19, "999") + ANetworkLine(195).Column(19, "999");
    User.OtherAnswer = true;
    EXPECT_EQ(Bring(Append, NetworkDays(1, 192) + windless).Ending, CommandEnding::Done);
    EXPECT_THAT(User.Texts(), ElementsAre(testing::StartsWith("No wind was measured on 07-12-03 07-14-03.")));
}

}  // namespace
}  // namespace veraqua
