#include "engine/prediction.h"

#include <array>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

/// A field seen day by day: the weather is real through day 10, the MAD is 50 %. The need of a day is twice its
/// depletion in mm, since the root zone holds 100 mm and half of the irrigation gets lost.
struct Prediction : testing::Test {
    Prediction() {
        Limits.LastWeatherDay = 10;
        Limits.Gdd = 400;
        Result.Row.NextIrrAmount = 7;
    }

    /// Alfalfa cut at 400 degree days that must dry for so many days before, with a critical MAD of 70 %.
    void UseHay(int dryDays = 5) {
        Limits.IsHay = true;
        Limits.DryDays = dryDays;
        Limits.MADCritical = 70;
    }

    void Day(JulianValue day, int depletion, float gddSum = 0) {
        if (!Checks) Checks.emplace(Limits);
        const auto percent = static_cast<float>(depletion);
        Checks->Check({day, percent, 50, 100, 100 - percent, Efficiency, gddSum}, Result);
    }

    /// From day 18 on the depletion rises by 2 % a day, from 42 %, and comes to the MAD on day 22.
    void DaysOfGrowth(JulianValue last) {
        for (JulianValue day = 18; day <= last; ++day) Day(day, 42 + 2 * (day - 18), 390);
    }

    void ExpectIrrigation(JulianValue day, int amount) const {
        EXPECT_EQ(Result.Row.NextIrrDay, day);
        EXPECT_EQ(Result.Row.NextIrrAmount, amount);
    }

    SeasonLimits Limits;
    double Efficiency = 0.5;
    std::optional<PredictionChecks> Checks;
    Outlook Result;
};

TEST_F(Prediction, IsTheFirstForecastDayAtTheMad) {
    Day(10, 48);
    Day(11, 49);
    ExpectIrrigation(0, 7);
    Day(12, 50);
    Day(13, 55);
    ExpectIrrigation(12, 100);
    EXPECT_EQ(Result.Row.LastDay, 10);
    EXPECT_EQ(Result.Row.Depletion, 48);
    EXPECT_EQ(Result.Row.MadNow, 50);
}

TEST_F(Prediction, OfARealDayIsWipedByTheNextButItsAmountStays) {
    Day(8, 60);
    ExpectIrrigation(8, 120);
    Day(9, 40);
    ExpectIrrigation(0, 120);
    Day(10, 50);  // that of the last one stays
    Day(11, 60);
    ExpectIrrigation(10, 100);
}

TEST_F(Prediction, IsMadForADriedOutFieldOnTheLastRealDayOnly) {
    Day(9, 100);
    ExpectIrrigation(0, 7);
    Day(10, 100);
    ExpectIrrigation(10, 200);
}

TEST_F(Prediction, SkipsAForecastThatJumpsOverNinetyNinePercent) {
    Day(10, 49);
    Day(11, 100);
    ExpectIrrigation(0, 7);
    Day(12, 99);
    ExpectIrrigation(12, 198);
}

TEST_F(Prediction, IsRefutedByWaterDatedInTheFuture) {
    Day(11, 51);
    Day(12, 20);
    ExpectIrrigation(0, 102);
    Day(13, 53);
    ExpectIrrigation(13, 106);
}

TEST_F(Prediction, OfAnEarlierRunGoesWhereItLiesAheadOrTheMadIsNotReached) {
    Result.Row.NextIrrDay = 20;
    Day(11, 60);
    ExpectIrrigation(11, 120);
    for (const JulianValue day : {5, 12}) {  // a run without a real day keeps what does not ...
        Result.Row.NextIrrDay = day;
        Day(12, 70);
        ExpectIrrigation(day, 120);
    }
    Day(13, 10);  // ... until a day below the MAD
    ExpectIrrigation(0, 120);
}

TEST_F(Prediction, NeedsAnEfficiency) {
    Efficiency = 0;
    Day(11, 49);
    EXPECT_FAILURE(Day(12, 50), HasSubstr("irrigation efficiency"));
}

TEST(IrrigationNeeded, IsRoundedHalfToEven) {
    Outlook outlook;
    PredictIrrigation({12, 50, 50, 100, 97.5F, 1, 0}, outlook);
    EXPECT_EQ(outlook.Row.NextIrrAmount, 2);
    PredictIrrigation({12, 50, 50, 100, 96.5F, 1, 0}, outlook);
    EXPECT_EQ(outlook.Row.NextIrrAmount, 4);
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
}

TEST_F(Prediction, MarksTheFirstDayPastTheHarvestHeatSum) {
    Day(11, 10, 400);
    EXPECT_EQ(Result.SeasonEndDay, 0);
    Day(12, 10, 400.5F);
    Day(13, 10, 420);
    EXPECT_EQ(Result.SeasonEndDay, 12);
}

TEST_F(Prediction, OfACuttingIsTheFirstDayAtItsHeatSumUntilItIsCut) {
    UseHay();
    Result.HayNextCutDay = Result.Row.NextCutDay = 40;  // of an earlier run, ahead of this one
    Day(20, 10, 399);
    EXPECT_EQ(Result.Row.NextCutDay, 0);
    Result.HayNextCutDay = Result.Row.NextCutDay = 40;
    Day(21, 10, 400);
    Day(22, 10, 410);
    EXPECT_EQ(Result.Row.NextCutDay, 21);
    EXPECT_EQ(Result.HayNextCutDay, 21);
    ExpectIrrigation(0, 7);  // without an irrigation in sight none is moved
    Day(23, 10, 12);
    EXPECT_EQ(Result.Row.NextCutDay, 0);
    EXPECT_EQ(Result.HayNextCutDay, 0);
}

// The irrigation falls due on day 22, 3 days before the cutting on day 25: the field would still be wet.
TEST_F(Prediction, PutsAnIrrigationBehindTheCuttingWhereTheCropCanWait) {
    UseHay();
    DaysOfGrowth(24);
    ExpectIrrigation(22, 100);
    Day(25, 70, 400);  // not above the critical MAD
    ExpectIrrigation(26, 140);
}

TEST_F(Prediction, PutsAnIrrigationAheadOfTheDryingWhereTheCropCannotWait) {
    UseHay();
    DaysOfGrowth(24);
    Day(25, 71, 400);
    ExpectIrrigation(20, 2 * 46);  // 5 days ahead of the cutting, by the need of that day
}

TEST_F(Prediction, LeavesAnIrrigationThatGivesTheFieldTimeToDryOrFallsOnTheCutting) {
    UseHay();
    DaysOfGrowth(26);
    Day(27, 70, 400);
    ExpectIrrigation(22, 100);  // just the 5 days
    Day(28, 10, 12);
    Day(29, 60, 400);
    ExpectIrrigation(29, 120);
}

TEST_F(Prediction, RemembersTheNeedsOfUpToAHundredDaysOfDrying) {
    UseHay(100);
    Day(20, 33, 390);
    for (JulianValue day = 21; day < 120; ++day) Day(day, day < 100 ? 40 : 50, 390);
    Day(120, 75, 400);
    ExpectIrrigation(20, 66);
    UseHay(101);
    EXPECT_FAILURE(PredictionChecks{Limits}, HasSubstr("101 days"));
}

struct ClosingCase {
    JulianValue Today;
    JulianValue LastDay;
    float GddSum;
    int Amount;
    JulianValue SeasonEnd;
};

// Planted on day 100 for at most 160 days and 1000 degree days.
TEST(SeasonsClose, TellsWhetherTheCropIsOverOrNeedsNoWater) {
    const std::vector<ClosingCase> cases{
        {249, 260, 900, AmountNotRequired, 0},  // the longest season, and more than ten days ahead
        {249, 260, 1001, AmountNotRequired, 0}, {250, 260, 900, AmountHarvest, 260},  // within ten days
        {150, 259, 1001, AmountHarvest, 259},                             // ended by heat, however far ahead
        {250, 259, 1001, AmountHarvest, 259},   {250, 259, 1000, 33, 0},  // neither: as it was
    };
    for (const bool isHay : {false, true}) {
        const SeasonLimits limits{isHay, 100, 120, 1000, 160, 0, 0};
        for (const ClosingCase& c : cases) {
            Outlook outlook;
            outlook.Row.NextIrrAmount = 33;
            DayEnd end;
            end.Day = c.LastDay;
            end.GddSum = c.GddSum;
            CloseSeason(limits, end, c.Today, outlook);
            EXPECT_EQ(outlook.Row.NextIrrAmount, c.Amount) << c.Today << " " << c.LastDay << " " << c.GddSum;
            EXPECT_EQ(outlook.SeasonEndDay, isHay ? 0 : c.SeasonEnd);
        }
    }
}

}  // namespace
}  // namespace veraqua
