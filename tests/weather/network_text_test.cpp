#include "weather/network_text.h"

#include <array>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/network_line.h"

namespace veraqua {
namespace {

NetworkLine FirstLine(const std::string& text, int year = 2003) {
    NetworkText reader(text, year);
    return reader.Next().value_or(NetworkLine{});
}

TEST(NetworkText, TakesTheColumnsByTheirPlace) {
    // Column n holds n and a quarter, but for the whole numbers in front.
    std::string wanted = " 2002 , 12 ,06,4.25,5.25";
    for (int column = 6; column <= 25; ++column) wanted += ", " + std::to_string(column) + ".25 ";
    for (const char* rest : {"\n", "\r\n", "", ",26,x,28,29\n"}) {
        const std::string text = wanted + rest;
        NetworkText reader(text, 2002);
        const auto line = reader.Next();
        ASSERT_TRUE(line);
        EXPECT_EQ(std::tuple(line->Year, line->DayOfYear, line->Station), std::tuple("2002", 12, 6));
        EXPECT_EQ((std::array{line->TempMax, line->TempMin, line->HumidityMax, line->HumidityMin, line->Radiation,
                              line->Wind}),
                  (std::array{4.25F, 5.25F, 7.25F, 8.25F, 11.25F, 19.25F}));
        EXPECT_FALSE(line->Bad || line->WindMissing);
        EXPECT_FALSE(reader.Next());
    }
}

TEST(NetworkText, MakesALineBadByTheValuesThatADayNeeds) {
    for (const std::size_t column : {4U, 5U, 7U, 8U, 11U, 24U})
        for (const char* text : {"999", "999.0", " 999 ", "", "--", "12 C"})
            EXPECT_TRUE(FirstLine(ANetworkLine(1).Column(column, text)).Bad) << column << ": " << text;
    for (const std::size_t column : {6U, 9U, 10U, 12U, 18U, 20U, 23U, 25U, 28U})
        for (const char* text : {"999", "", "garbage"})
            EXPECT_FALSE(FirstLine(ANetworkLine(1).Column(column, text)).Bad) << column << ": " << text;
    for (const char* text : {"999.01", "998.9999", "-999"})  // the mark is compared exactly
        EXPECT_FALSE(FirstLine(ANetworkLine(1).Column(4, text)).Bad) << text;
    EXPECT_TRUE(FirstLine(ANetworkLine(1).Columns(23)).Bad) << "a line that is cut off";
    // Wind that bears the mark doesn't count, wind that is no number does.
    EXPECT_FALSE(FirstLine(ANetworkLine(1).Column(19, "999")).Bad);
    EXPECT_TRUE(FirstLine(ANetworkLine(1).Column(19, "999")).WindMissing);
    for (const char* text : {"", "calm"}) EXPECT_TRUE(FirstLine(ANetworkLine(1).Column(19, text)).Bad) << text;
}

TEST(NetworkText, KnowsTheDaysOfItsYear) {
    for (const auto& [text, year, day] : std::vector<std::tuple<const char*, int, int>>{{"1", 2003, 1},
                                                                                        {"365", 2003, 365},
                                                                                        {"366", 2003, 0},
                                                                                        {"366", 2004, 366},
                                                                                        {"367", 2004, 0},
                                                                                        {"0", 2003, 0},
                                                                                        {"-3", 2003, 0},
                                                                                        {"x", 2003, 0},
                                                                                        {"4294967297", 2003, 0},
                                                                                        {"007", 2003, 7}})
        EXPECT_EQ(FirstLine(ANetworkLine(1).Column(2, text), year).DayOfYear, day) << text;
}

TEST(NetworkText, PassesOverEmptyLines) {
    const std::string text = "\n \r\n\n" + ANetworkLine(1) + "\r\n   \n" + ANetworkLine(2) + "\n";
    EXPECT_EQ(CountLines(text), 2);
    NetworkText reader(text, 2003);
    EXPECT_EQ(reader.Next()->DayOfYear, 1);
    EXPECT_EQ(reader.Next()->DayOfYear, 2);
    EXPECT_FALSE(reader.Next());
    EXPECT_EQ(CountLines("\r\n\n"), 0);
}

TEST(Download, IsKeptWithARunOfControlCharactersAsOneLineEnd) {
    using namespace std::string_literals;
    for (const auto& [body, kept] :
         std::vector<std::pair<std::string, std::string>>{{"", ""},
                                                          {"a\r\nb\r\n", "a\r\nb\r\n"},
                                                          {"\n\n\na\r\r\n\n\t\x1A\nb", "\r\na\r\nb"},
                                                          {"\r\n\0\f"s, "\r\n"},
                                                          {"\x7F\xE9 \x80"s, "\x7F\xE9 \x80"s}})
        EXPECT_EQ(WithPlainLineEnds(body), kept);
}

}  // namespace
}  // namespace veraqua
