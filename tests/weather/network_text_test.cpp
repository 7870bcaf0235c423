#include "weather/network_text.h"

#include <array>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "tests/support/network_line.h"

namespace veraqua {
namespace {

NetworkLine FirstLine(const std::string& text) { return NetworkText(text, 2003).Next().value_or(NetworkLine{}); }

TEST(NetworkText, TakesTheColumnsByTheirPlace) {
    // Column n holds n and a quarter, but for the whole numbers in front.
    std::string wanted = " 2002 , 12 ,06,4.25,5.25";
    for (int column = 6; column <= 25; ++column) wanted += ", " + std::to_string(column) + ".25 ";
    const std::string text = "\n \r\n" + wanted + ",26,x\r\n   \n";  // empty lines don't count
    NetworkText reader(text, 2002);
    const auto line = reader.Next();
    ASSERT_TRUE(line);
    EXPECT_EQ(std::tuple(line->Year, line->DayOfYear, line->Station), std::tuple("2002", 12, 6));
    EXPECT_EQ(
        (std::array{line->TempMax, line->TempMin, line->HumidityMax, line->HumidityMin, line->Radiation, line->Wind}),
        (std::array{4.25F, 5.25F, 7.25F, 8.25F, 11.25F, 19.25F}));
    EXPECT_EQ(line->Rain, 12.25F);
    EXPECT_EQ(LineOfDay("2002,12,06,4.25", {61, 2028}), "2028,61,06,4.25");
    EXPECT_FALSE(line->Bad || line->WindMissing);
    EXPECT_FALSE(reader.Next());
}

TEST(NetworkText, MakesALineBadByTheValuesThatADayNeeds) {
    const auto bad = [](std::size_t n, const char* text) { return FirstLine(ANetworkLine(1).Column(n, text)).Bad; };
    for (const std::size_t column : {4U, 5U, 7U, 8U, 11U, 24U})
        for (const char* text : {" 999.0 ", "", "12 C"}) EXPECT_TRUE(bad(column, text)) << column << ": " << text;
    for (const std::size_t column : {6U, 9U, 10U, 12U, 18U, 20U, 23U, 25U, 28U})
        EXPECT_FALSE(bad(column, "999")) << column;
    EXPECT_FALSE(bad(4, "998.9999"));  // the mark is compared exactly
    EXPECT_TRUE(FirstLine(ANetworkLine(1).Columns(23)).Bad) << "a line that is cut off";
    EXPECT_TRUE(bad(19, "calm") && !bad(19, "999"));  // wind that bears the mark doesn't count
}

}  // namespace
}  // namespace veraqua
