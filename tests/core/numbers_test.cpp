#include "core/numbers.h"

#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/failure.h"

namespace veraqua {

namespace {

using testing::AllOf;
using testing::HasSubstr;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

template <class Value>
struct MaskCase {
    Value Number;
    std::string Mask;
    std::string Text;
};

template <class Value>
void ExpectMasked(const std::vector<MaskCase<Value>>& cases) {
    for (const auto& c : cases) EXPECT_EQ(Masked(c.Number, c.Mask), c.Text) << c.Number << " by \"" << c.Mask << '"';
}

TEST(Masks, RoundHalvesOfTheDecimalFormAwayFromZero) {
    // The binary value of 2.675 lies below the half, the decimal form on it. What rounds to 0 has no sign, overflow
    // shows all digits, and behind 15 digits there is no noise.
    ExpectMasked<double>({{2.675, "0.00", "2.68"},
                          {1.005, "0.00", "1.01"},
                          {-2.675, "0.00", "-2.68"},
                          {2.5, "0", "3"},
                          {-0.5, "0", "-1"},
                          {0.49999, "0", "0"},
                          {0.04, "0.0", "0.0"},
                          {99.96, "00.0", "100.0"},
                          {5, "000.0", "005.0"},
                          {-5, "000.0", "-005.0"},
                          {123456.7, "00.0", "123456.7"},
                          {1e15, "0", "1000000000000000"},
                          {0, "000", "000"},
                          {-0.004, "0.00", "0.00"},
                          {-0.0, "0.0", "0.0"},
                          {-7, " 000", " -007"},
                          {7, "000 ", "007 "},
                          {0.1 + 0.2, "0.000000000000000", "0.300000000000000"}});
    // A single has 7 digits: 0.145 is 0.14499999582 in binary, 2.675 is 2.67499995, 16.05 is 16.04999923.
    ExpectMasked<float>({{0.145F, "0.00", "0.15"},
                         {2.675F, "0.00", "2.68"},
                         {-0.125F, "0.00", "-0.13"},
                         {0.3F, "0.0000000000", "0.3000000000"},
                         {16.05F, "00.0", "16.1"}});
}

TEST(Numbers, WithoutMask) {
    for (const auto& [value, text] :
         std::vector<std::pair<double, std::string>>{{85, "85"},
                                                     {62.5, "62.5"},
                                                     {0.1, "0.1"},
                                                     {static_cast<double>(0.85F) * 100, "85"},
                                                     {-0.25, "-0.25"},
                                                     {-0.0, "0"},
                                                     {1200, "1200"},
                                                     {1234567.8, "1234568"},
                                                     {123456789, "123456800"},
                                                     {0.00001234, "0.00001234"},
                                                     {99999.996, "100000"}})
        EXPECT_EQ(Plain(value), text);
    EXPECT_EQ(Shortest(0.85F), "0.85");
    EXPECT_EQ(Shortest(1e-12F), "1e-12");
    EXPECT_EQ(Shortest(0.1F + 0.2F), "0.3") << "the sum is the single nearest to 0.3";
}

TEST(Numbers, Numeric) {
    for (const auto& [text, value] : std::vector<std::pair<std::string, double>>{
             {" 12 ", 12},
             {"+1.5", 1.5},
             {"5.", 5},
             {"-.5", -0.5},
             {"007", 7},
             {"123456789012345678901234567890", 123456789012345678901234567890.0}})
        EXPECT_EQ(Numeric(text), std::optional(value)) << text;
    for (const std::string text :
         {"", " ", ".", "-", "- 5", "--5", "1.2.3", "1,5", "1e3", "0x10", "$5", "5 mm", "1 2", "inf", "5-", "\t5", "٣"})
        EXPECT_EQ(Numeric(text), std::nullopt) << text;
    EXPECT_EQ(Numeric(std::string(400, '9')), std::nullopt) << "not finite";
    EXPECT_EQ(WholeNumber(" -12. "), -12);
    EXPECT_EQ(WholeNumber("2147483647"), 2147483647);
    for (const std::string text : {"1.5", "2147483648", "-2147483649", "x"})
        EXPECT_EQ(WholeNumber(text), std::nullopt) << text;
}

TEST(Rounding, ToIntegersGoesToTheNearestAndHalvesToEven) {
    for (const auto& [value, rounded] : std::vector<std::pair<double, int>>{
             {2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {2.51, 3}, {32767.4, 32767}, {-32768.5, -32768}}) {
        EXPECT_EQ(ToInteger16(value, "x"), rounded) << value;
        EXPECT_EQ(RoundHalfEven(value), rounded) << value;
        EXPECT_TRUE(FitsInteger16(value));
    }
    EXPECT_EQ(RoundedTo(0.125, 100), 0.12);
    EXPECT_EQ(RoundedTo(0.375, 100), 0.38);
    EXPECT_EQ(HundredthsOfInches(0.127), 0) << "half a hundredth of an inch";
    EXPECT_EQ(HundredthsOfInches(40), 1.57) << "40 / 0.254 = 157.48";
}

TEST(Rounding, WhatDoesNotFitIsAFailureThatNamesTheQuantity) {
    for (const double value : {32767.5, 40000.0, -32768.51, 1e300, Infinity, -Infinity, NotANumber}) {
        EXPECT_FALSE(FitsInteger16(value)) << value;
        EXPECT_FAILURE(ToInteger16(value, "the depletion"), AllOf(HasSubstr("Overflow"), HasSubstr("the depletion")));
    }
    for (const double value : {3.5e38, -1e300, Infinity, NotANumber}) {
        EXPECT_FALSE(FitsSingle(value)) << value;
        EXPECT_FAILURE(ToSingle(value, "the heat sum"), AllOf(HasSubstr("Overflow"), HasSubstr("the heat sum")));
    }
    EXPECT_EQ(ToSingle(0.1, "x"), 0.1F);
    EXPECT_EQ(ToSingle(1e-300, "x"), 0.0F);
}

}  // namespace

}  // namespace veraqua
