#include "reports/prediction_text.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

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
    {30, Day(11), 0, Day(9), false,
     "07-11-26 / 1.18 inches, green", "07-11-26 / 1.18 inches", "07-11-26 / 1.18 inches", "07-11-26 / 1.18 inches"},
    {30, Today, 0, Day(9), true,
     "Exceeded MAD: 07-09-26. WATER! / 1.18 inches, red", "Exceeded MAD: 07-09-26. WATER! / 1.18 inches, red",
     "Exceeded MAD: 07-09-26. Water TODAY! / 1.18 inches, red", "07-10-26 / 1.18 inches"},
    {30, Day(9), 0, NoDay, false,
     "Exceeded MAD!  WATER! / 1.18 inches, red", "Exceeded MAD!  WATER! / 1.18 inches, red",
     "Exceeded MAD!  Water TODAY! / 1.18 inches, red", "07-09-26 / 1.18 inches"},
    {-1, Day(9), Day(20), 0, true,
     "Cut field on 07-20-26 / Not required!", "Cut field on 07-20-26 / Not required!",
     "Harvest on 07-09-26! / Not required!", "Harvest Soon! / 0"},
    {-1, NoDay, 0, 0, true,
     "Harvest as soon as possible! / Not required!", "Harvest as soon as possible! / Not required!",
     "Harvest as soon as possible! / Not required!", "Harvest Soon! / 0"},
    {-1, Day(9), Day(20), 0, false,
     "Harvest on 07-09-26! / Not required!", "Harvest on 07-09-26! / Not required!",
     "Harvest on 07-09-26! / Not required!", "Harvest Soon! / 0"},
    {-2, 0, 0, Day(9), true,
     "No Irrigation Required! / 0", "No Irrigation Required! / Not required!",
     "No Irrigation Required! / Not required!", "Not Required / 0"},
    {0, 0, 0, 0, false,
     "No Data Yet! / Unknown!", "No Data Yet! / Unknown!", "No Data Yet! / Unknown!", "No Data Yet! / 0"},
};
// clang-format on

TEST(Prediction, IsWordedByEachScreenInItsOwnWay) {
    for (const Case& field : Cases) {
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

}  // namespace
}  // namespace veraqua
