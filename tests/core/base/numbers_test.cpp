#include "core/base/numbers.h"

#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

/// The binary values of 2.675 and 1.005 lie below the half, the decimal forms on it; a single has 7 digits: 0.145 is
/// 0.14499999582 in binary, 16.05 is 16.04999923. What rounds to 0 has no sign, overflow shows all digits.
TEST(Numbers, AMaskRoundsHalvesOfTheDecimalFormAwayFromZero) {
    EXPECT_EQ(Masked(0.145F, "0.00"), "0.15");
    EXPECT_EQ(Masked(16.05F, "00.0"), "16.1");
    using Row = std::pair<double, const char*>;
    for (const auto& [mask, rows] : std::vector<std::pair<std::string, std::vector<Row>>>{
             {"0.00", {{2.675, "2.68"}, {1.005, "1.01"}, {-2.675, "-2.68"}, {-0.004, "0.00"}}},
             {"0", {{2.5, "3"}, {-0.5, "-1"}, {0.49999, "0"}, {1e15, "1000000000000000"}}},
             {"00.0", {{99.96, "100.0"}, {123456.7, "123456.7"}}},
             {"000.0", {{5, "005.0"}, {-5, "-005.0"}}},
             {" 000", {{-7, " -007"}, {7, " 007"}}}})
        for (const auto& [value, text] : rows) EXPECT_EQ(Masked(value, mask), text) << mask;
}

TEST(Numbers, WithoutAMaskHaveSevenDigitsAndNoExponent) {
    for (const auto& [value, text] : std::vector<std::pair<double, const char*>>{
             {0.85F * 100, "85"}, {-0.25, "-0.25"}, {-0.0, "0"}, {123456789, "123456800"}, {0.00001234, "0.00001234"}})
        EXPECT_EQ(Plain(value), text);
    EXPECT_EQ(Shortest(0.1F + 0.2F), "0.3") << "the sum is the single nearest to 0.3";
}

TEST(Numbers, TypedOnesAreReadWholeOrNotAtAll) {
    for (const auto& [text, value] :
         std::vector<std::pair<std::string, double>>{{" 12 ", 12}, {"+1.5", 1.5}, {"5.", 5}, {"-.5", -0.5}, {"007", 7}})
        EXPECT_EQ(Numeric(text), std::optional(value)) << text;
    for (const std::string text : {"", " ", ".", "-", "- 5", "1.2.3", "1,5", "1e3", "0x10", "5 mm", "1 2", "inf", "5-"})
        EXPECT_EQ(Numeric(text), std::nullopt) << text;
    EXPECT_EQ(Numeric(std::string(400, '9')), std::nullopt) << "not finite";
    EXPECT_EQ(WholeNumber(" -12. "), -12);
    for (const std::string text : {"1.5", "2147483648", "x"}) EXPECT_EQ(WholeNumber(text), std::nullopt) << text;
}

TEST(Numbers, AreStoredAsIntegersWithHalvesToEvenOrFailNamingTheQuantity) {
    for (const auto& [value, rounded] : std::vector<std::pair<double, int>>{
             {2.5, 2}, {3.5, 4}, {-2.5, -2}, {2.51, 3}, {32767.4, 32767}, {-32768.5, -32768}})
        EXPECT_EQ(ToInteger16(value, "x"), rounded) << value;
    EXPECT_EQ(HundredthsOfInches(0.127), 0) << "half a hundredth of an inch";
    EXPECT_EQ(HundredthsOfInches(40), 1.57) << "40 / 0.254 = 157.48";
    for (const double value : {32767.5, -32768.51, 1e300, -Infinity, NotANumber})
        EXPECT_FAILURE(ToInteger16(value, "the depletion"), HasSubstr("the depletion"));
    for (const double value : {3.5e38, -1e300, Infinity, NotANumber})
        EXPECT_FAILURE(ToSingle(value, "the heat sum"), HasSubstr("the heat sum"));
}

}  // namespace
}  // namespace veraqua
