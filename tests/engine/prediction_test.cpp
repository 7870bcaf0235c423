#include "engine/prediction.h"

#include <array>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

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
        Limits.MADCritical = 70;
        Result.Row.NextIrrAmount = 7;
    }

    void Day(JulianValue day, int depletion, float gddSum = 390) {
        if (!Checks) Checks.emplace(Limits);
        const auto percent = static_cast<float>(depletion);
        Checks->Check({day, percent, 50, 100, 100 - percent, Efficiency, gddSum}, Result);
    }

    void Play(const std::vector<Step>& story) {
        for (const Step& step : story) {
            Day(step.Day, step.Depletion, step.GddSum);
            EXPECT_EQ(Result.Row.NextIrrDay, step.NextIrrDay) << "day " << step.Day;
            EXPECT_EQ(Result.Row.NextIrrAmount, step.Amount) << "day " << step.Day;
        }
    }

    SeasonLimits Limits;
    double Efficiency = 0.5;
    std::optional<PredictionChecks> Checks;
    Outlook Result;
};

TEST_F(Prediction, FollowsTheDepletionOfTheDays) {
    for (const std::vector<Step>& story : std::vector<std::vector<Step>>{
             {{10, 48, 0, 7},
              {11, 49, 0, 7},
              {12, 50, 12, 100},
              {13, 55, 12, 100}},  // the first forecast day at the MAD
             // That of a real day is wiped by the next, but its amount stays; that of the last one stays.
             {{8, 60, 8, 120}, {9, 40, 0, 120}, {10, 50, 10, 100}, {11, 60, 10, 100}},
             {{9, 100, 0, 7}, {10, 100, 10, 200}},  // for a dried-out field on the last real day only
             {{10, 49, 0, 7}, {11, 100, 0, 7}, {12, 99, 12, 198}},
             {{11, 51, 11, 102}, {12, 20, 0, 102}, {13, 53, 13, 106}}}) {  // refuted by water dated in the future
        Checks.reset();
        Result = {};
        Result.Row.NextIrrAmount = 7;
        Play(story);
    }
    EXPECT_EQ(Result.Row.LastDay, 0);
    Day(10, 48);
    EXPECT_EQ(Result.Row.LastDay, 10);
    EXPECT_EQ(Result.Row.Depletion, 48);
    EXPECT_EQ(Result.Row.MadNow, 50);
}

TEST_F(Prediction, OfAnEarlierRunGoesWhereItLiesAheadOrTheMadIsNotReached) {
    Result.Row.NextIrrDay = 20;
    Play({{11, 60, 11, 120}});
    for (const JulianValue day : {5, 12}) {  // a run without a real day keeps what does not ...
        Result.Row.NextIrrDay = day;
        Play({{12, 70, day, 120}});
    }
    Play({{13, 10, 0, 120}});  // ... until a day below the MAD
}

TEST_F(Prediction, NeedsAnEfficiencyAndIsRoundedHalfToEven) {
    Efficiency = 0;
    EXPECT_FAILURE(Day(12, 50), HasSubstr("irrigation efficiency"));
    for (const auto& [available, amount] : {std::pair{97.5F, 2}, {96.5F, 4}}) {
        PredictIrrigation({12, 50, 50, 100, available, 1, 0}, Result);
        EXPECT_EQ(Result.Row.NextIrrAmount, amount);
    }
}

TEST_F(Prediction, TellsTheFirstDayOfThePresentSpellOfDryness) {
    // Depletion, then the days since when the MAD has been exceeded and the field dried out.
    const std::vector<std::array<int, 3>> days{{49, 0, 0},  {50, 21, 0},  {99, 21, 22}, {100, 21, 22},
                                               {98, 21, 0}, {99, 21, 25}, {49, 0, 0},   {99, 27, 27}};
    JulianValue day = 20;
    for (const auto& [depletion, madExceeded, driedOut] : days) {
        Day(day++, depletion);
        EXPECT_EQ(Result.MadExceededDay, madExceeded) << day;
        EXPECT_EQ(Result.DriedOutDay, driedOut) << day;
    }
    for (const auto& [gddSum, seasonEnd] : {std::pair{400.0F, 0}, {400.5F, 29}, {420.0F, 29}}) {
        Day(day++, 10, gddSum);
        EXPECT_EQ(Result.SeasonEndDay, seasonEnd);  // the first day past the harvest's heat sum
    }
}

TEST_F(Prediction, OfACuttingIsTheFirstDayAtItsHeatSumUntilItIsCut) {
    Limits.IsHay = true;
    Limits.DryDays = 5;
    Result.HayNextCutDay = 40;  // of an earlier run, ahead of this one
    const std::vector<std::tuple<JulianValue, float, JulianValue>> days{
        {20, 399, 0}, {21, 400, 21}, {22, 410, 21}, {23, 12, 0}};
    for (const auto& [day, gddSum, cutting] : days) {
        Play({{day, 10, 0, 7, gddSum}});  // without an irrigation in sight none is moved
        EXPECT_EQ(Result.Row.NextCutDay, cutting);
        EXPECT_EQ(Result.HayNextCutDay, cutting);
    }
}

// From day 18 on the depletion rises by 2 % a day, from 42 %, and comes to the MAD on day 22. The cutting follows.
TEST_F(Prediction, OfAnIrrigationGivesWayToTheDryingOfTheHay) {
    Limits.IsHay = true;
    Limits.DryDays = 5;
    for (const Step& cutting : {Step{25, 70, 26, 140, 400},     // not above the critical MAD: behind the cutting
                                Step{25, 71, 20, 92, 400},      // else ahead of the drying, by the need of that day
                                Step{27, 70, 22, 100, 400}}) {  // just the 5 days
        Checks.reset();
        Result = {};
        for (JulianValue day = 18; day < cutting.Day; ++day) Day(day, 42 + 2 * (day - 18));
        Play({cutting});
    }
    Play({{28, 10, 0, 100, 12}, {29, 60, 29, 120, 400}});  // on the day of the cutting
}

TEST_F(Prediction, RemembersTheNeedsOfUpToAHundredDaysOfDrying) {
    Limits.IsHay = true;
    Limits.DryDays = 100;
    Day(20, 33);
    for (JulianValue day = 21; day < 120; ++day) Day(day, day < 100 ? 40 : 50);
    Play({{120, 75, 20, 66, 400}});
    Limits.DryDays = 101;
    EXPECT_FAILURE(PredictionChecks{Limits}, HasSubstr("101 days"));
}

// Planted on day 100 for at most 160 days and 1000 degree days.
TEST(SeasonsClose, TellsWhetherTheCropIsOverOrNeedsNoWater) {
    struct Closing {
        JulianValue Today;
        JulianValue LastDay;
        float GddSum;
        int Amount;
        JulianValue SeasonEnd;
    };
    for (const Closing& c :
         {Closing{249, 260, 900, AmountNotRequired, 0},  // the longest season, and over ten days ahead
          {249, 260, 1001, AmountNotRequired, 0},
          {250, 260, 900, AmountHarvest, 260},   // within ten days
          {150, 259, 1001, AmountHarvest, 259},  // ended by heat, however far ahead
          {250, 259, 1000, 33, 0}})              // neither: as it was
        for (const bool isHay : {false, true}) {
            Outlook outlook;
            outlook.Row.NextIrrAmount = 33;
            DayEnd end;
            end.Day = c.LastDay;
            end.GddSum = c.GddSum;
            CloseSeason({isHay, 100, 120, 1000, 160, 0, 0}, end, c.Today, outlook);
            EXPECT_EQ(outlook.Row.NextIrrAmount, c.Amount) << c.Today << " " << c.LastDay << " " << c.GddSum;
            EXPECT_EQ(outlook.SeasonEndDay, isHay ? 0 : c.SeasonEnd);
        }
}

}  // namespace
}  // namespace veraqua
