#include "engine/prediction.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace veraqua {
namespace {

/// A day of a field's story, and the irrigation that is predicted behind it.
struct Step {
    JulianValue Day;
    int Depletion;
    JulianValue NextIrrDay;
    int Amount;
    float GddSum = 390;
};

/// A field seen day by day: the weather is real through day 10, the MAD is 50 %. The need of a day is twice its
/// depletion in mm, since the root zone holds 100 mm and half of the irrigation gets lost. Alfalfa is cut at 400 degree
/// days and has a critical MAD of 70 %.
struct Prediction : testing::Test {
    Prediction() {
        Limits.LastWeatherDay = 10;
        Limits.Gdd = 400;
        Limits.DryDays = 5;
        Limits.MADCritical = 70;
        Begin();
    }

    /// Of an earlier run stands the irrigation of `nextIrrDay`.
    void Begin(JulianValue nextIrrDay = 0) {
        Checks.reset();
        Result = {};
        Result.Row.NextIrrDay = nextIrrDay;
        Result.Row.NextIrrAmount = 7;
    }

    void Day(JulianValue day, int depletion, float gddSum = 390) {
        if (!Checks) Checks.emplace(Limits);
        const auto percent = static_cast<float>(depletion);
        Checks->Check({day, percent, 50, 100, 100 - percent, 0.5, gddSum}, Result);
    }

    void Play(const std::vector<Step>& story) {
        for (const Step& step : story) {
            Day(step.Day, step.Depletion, step.GddSum);
            EXPECT_EQ(Result.Row.NextIrrDay, step.NextIrrDay) << "day " << step.Day;
            EXPECT_EQ(Result.Row.NextIrrAmount, step.Amount) << "day " << step.Day;
        }
    }

    SeasonLimits Limits;
    std::optional<PredictionChecks> Checks;
    Outlook Result;
};

TEST_F(Prediction, FollowsTheDepletionOfTheDays) {
    for (const auto& [before, days] : std::vector<std::pair<JulianValue, std::vector<Step>>>{
             {0, {{10, 48, 0, 7}, {11, 49, 0, 7}, {12, 50, 12, 100}, {13, 55, 12, 100}}},
             // That of a real day is wiped by the next, but its amount stays; that of the last one stays.
             {0, {{8, 60, 8, 120}, {9, 40, 0, 120}, {10, 50, 10, 100}, {11, 60, 10, 100}}},
             {0, {{9, 100, 0, 7}, {10, 100, 10, 200}}},  // for a dried-out field on the last real day only
             {0, {{10, 49, 0, 7}, {11, 100, 0, 7}, {12, 99, 12, 198}}},
             {0, {{11, 51, 11, 102}, {12, 20, 0, 102}, {13, 53, 13, 106}}},  // refuted by water dated in the future
             {20, {{11, 60, 11, 120}}},                 // of an earlier run it goes where it lies ahead ...
             {5, {{12, 70, 5, 7}, {13, 10, 0, 7}}}}) {  // ... or on a day below the MAD
        Begin(before);
        Play(days);
    }
}

TEST_F(Prediction, OfACuttingIsTheFirstDayAtItsHeatSumUntilItIsCut) {
    Limits.IsHay = true;
    Result.HayNextCutDay = 40;  // of an earlier run, ahead of this one
    for (const auto& [day, gddSum, cutting] :
         std::vector<std::array<int, 3>>{{20, 399, 0}, {21, 400, 21}, {22, 410, 21}, {23, 12, 0}}) {
        Play({{day, 10, 0, 7, static_cast<float>(gddSum)}});  // without an irrigation in sight none is moved
        EXPECT_EQ(Result.Row.NextCutDay, cutting);
    }
}

// From day 18 on the depletion rises by 2 % a day, from 42 %, and comes to the MAD on day 22. The cutting follows.
TEST_F(Prediction, OfAnIrrigationGivesWayToTheDryingOfTheHay) {
    Limits.IsHay = true;
    for (const Step& cutting : {Step{25, 70, 26, 140, 400},     // not above the critical MAD: behind the cutting
                                Step{25, 71, 20, 92, 400},      // else ahead of the drying, by the need of that day
                                Step{27, 70, 22, 100, 400}}) {  // just the 5 days
        Begin();
        for (JulianValue day = 18; day < cutting.Day; ++day) Day(day, 42 + 2 * (day - 18));
        Play({cutting});
    }
}

// Planted on day 100 for at most 160 days and 1000 degree days.
TEST(SeasonsClose, TellsWhetherTheCropIsOverOrNeedsNoWater) {
    for (const auto& [today, lastDay, gddSum, amount, seasonEnd] : std::vector<std::array<int, 5>>{
             {249, 260, 1001, AmountNotRequired, 0},  // the longest season, over ten days ahead
             {250, 260, 900, AmountHarvest, 260},     // within ten days
             {150, 259, 1001, AmountHarvest, 259},    // ended by heat, however far ahead
             {250, 259, 1000, 33, 0}}) {              // neither: as it was
        Outlook outlook;
        outlook.Row.NextIrrAmount = 33;
        DayEnd end;
        end.Day = lastDay;
        end.GddSum = static_cast<float>(gddSum);
        CloseSeason({false, 100, 120, 1000, 160, 0, 0}, end, today, outlook);
        EXPECT_EQ(outlook.Row.NextIrrAmount, amount) << today << " " << lastDay << " " << gddSum;
        EXPECT_EQ(outlook.SeasonEndDay, seasonEnd);
    }
}

}  // namespace
}  // namespace veraqua
