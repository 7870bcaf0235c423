#include "reports/prediction_text.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "reports/change_line.h"

namespace veraqua {
namespace {

constexpr JulianValue Day(int day) { return JulianFromDate(7, day, 2026); }
constexpr JulianValue Today = Day(10);
constexpr JulianValue NoDay = BeforeAnyRealDay;

std::string Said(const PredictionText& text) {
    constexpr std::array colours{"", ", green", ", red"};
    return text.Date + " / " + text.Amount + colours.at(static_cast<std::size_t>(text.Colour));
}

/// A row of the directory, and what the screens say of it.
struct Case {
    const char* Name;
    std::int16_t Amount;
    JulianValue Irrigate;
    JulianValue Cut;
    JulianValue MadExceeded;
    bool Hay;
    std::string Water;
    std::string Details;
    std::string Summary;
    std::string Cuts;
};

// clang-format off
const std::vector<Case> Cases{
    {"ahead", 30, Day(11), 0, Day(9), false,
     "07-11-26 / 1.18 inches, green", "07-11-26 / 1.18 inches", "07-11-26 / 1.18 inches", "07-11-26 / 1.18 inches"},
    {"due today", 30, Today, 0, Day(9), true,
     "Exceeded MAD: 07-09-26. WATER! / 1.18 inches, red", "Exceeded MAD: 07-09-26. WATER! / 1.18 inches, red",
     "Exceeded MAD: 07-09-26. Water TODAY! / 1.18 inches, red", "07-10-26 / 1.18 inches"},
    {"overdue, the day unknown", 30, Day(9), 0, NoDay, false,
     "Exceeded MAD!  WATER! / 1.18 inches, red", "Exceeded MAD!  WATER! / 1.18 inches, red",
     "Exceeded MAD!  Water TODAY! / 1.18 inches, red", "07-09-26 / 1.18 inches"},
    {"hay to be cut", -1, Day(9), Day(20), 0, true,
     "Cut field on 07-20-26 / Not required!", "Cut field on 07-20-26 / Not required!",
     "Harvest on 07-09-26! / Not required!", "Harvest Soon! / 0"},
    {"hay at an unknown day", -1, NoDay, 0, 0, true,
     "Harvest as soon as possible! / Not required!", "Harvest as soon as possible! / Not required!",
     "Harvest as soon as possible! / Not required!", "Harvest Soon! / 0"},
    {"ripe", -1, Day(9), Day(20), 0, false,
     "Harvest on 07-09-26! / Not required!", "Harvest on 07-09-26! / Not required!",
     "Harvest on 07-09-26! / Not required!", "Harvest Soon! / 0"},
    {"not required", -2, 0, 0, Day(9), true,
     "No Irrigation Required! / 0", "No Irrigation Required! / Not required!",
     "No Irrigation Required! / Not required!", "Not Required / 0"},
    {"no data", 0, 0, 0, 0, false,
     "No Data Yet! / Unknown!", "No Data Yet! / Unknown!", "No Data Yet! / Unknown!", "No Data Yet! / 0"},
};
// clang-format on

TEST(Prediction, IsWordedByEachScreenInItsOwnWay) {
    for (const Case& field : Cases) {
        SCOPED_TRACE(field.Name);
        StatRecord row;
        row.NextIrrAmount = field.Amount;
        row.NextIrrDay = field.Irrigate;
        row.NextCutDay = field.Cut;
        EXPECT_EQ(Said(WaterPrediction(row, field.Hay, Today, field.MadExceeded, true)), field.Water);
        EXPECT_EQ(Said(DetailsPrediction(row, field.Hay, Today, field.MadExceeded, true)), field.Details);
        EXPECT_EQ(Said(SummaryPrediction(row, Today, field.MadExceeded, true)), field.Summary);
        EXPECT_EQ(Said(CutPrediction(row, true)), field.Cuts);
    }
}

TEST(Prediction, IsHeldAgainstTheOneBeforeAChange) {
    const auto row = [](std::int16_t amount, JulianValue irrigate, JulianValue cut) {
        StatRecord made;
        made.NextIrrAmount = amount, made.NextIrrDay = irrigate, made.NextCutDay = cut;
        return made;
    };
    const StatRecord known = row(30, Day(11), Day(20));
    EXPECT_EQ(ChangeLine(known, known, true), "Next irrigation stays: 07-11-26.");
    EXPECT_EQ(ChangeLine(known, row(43, Day(12), 0), true),
              "Next irrigation moves from 07-11-26 to 07-12-26. Its amount changes from 1.18 inches to 1.69 inches. "
              "Next cutting moves from 07-20-26 to not known.");
    EXPECT_EQ(ChangeLine(row(AmountHarvest, Day(9), 0), row(AmountNotRequired, 0, 0), false),
              "Next irrigation moves from harvest instead to not required.");
    EXPECT_EQ(ChangeLine(row(AmountNoDataYet, Day(9), 0), row(43, Day(9), 0), false),
              "Next irrigation moves from not known to 07-09-26.");
}

}  // namespace
}  // namespace veraqua
