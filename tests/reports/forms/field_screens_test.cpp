#include "core/field_in_work.h"
#include "reports/forms/field_history.h"
#include "reports/forms/field_summary.h"
#include "reports/forms/report_roads.h"
#include "reports/forms/season_chart.h"
#include "tests/reports/expected_text.h"
#include "tests/reports/forms/report_forms.h"
#include "weather/default_weather.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

struct FieldScreen : ReportForms {
    /// Shows `form` with the field of row 3 in work and gives what can be read on it.
    std::string Shown(FormName form) {
        SelectField(User, 3);
        State.StationName = "LUNA FLATS";
        Show(form);
        Fill(form);
        return ShownOn(form);
    }
};

TEST_F(FieldScreen, SummaryTellsTheStateAndTheNextIrrigation) {
    StatRecord& row = Stored(3, SmallCrop(), 43, MayDay(5));
    row.Depletion = -5;
    row.MadNow = 45;
    EXPECT_EQ(Shown(FormName::frmFieldData), ExpectedText("summary_crop"));
    row.NextIrrDay = MayDay(4);
    EXPECT_THAT(Shown(FormName::frmFieldData), HasSubstr("\ntxtIrrDate: Exceeded MAD!  Water TODAY! (red)\n"));
    EXPECT_THAT(Shown(FormName::frmFieldDetails), HasSubstr("\ntxtIrrDate: Exceeded MAD!  WATER! (red)\nlbl_amount: "));
    row.NextIrrDay = MayDay(5);
    EXPECT_EQ(Shown(FormName::frmFieldData), ExpectedText("summary_crop"));
    WriteDefaultWeather({MayDay(2), MayDay(3)});
    EXPECT_THAT(Shown(FormName::frmFieldData), HasSubstr("\nlblDefault: The last 2 days stand on default weather.\n"));
    Shown(FormName::frmSeasonChart);
    EXPECT_THAT(The<frmSeasonChart>().Chart1.Marks, testing::Contains(ChartMark{"Default weather (2)", MayDay(2)}));
}

TEST_F(FieldScreen, DetailsOfACropAreAsExpected) {
    Stored(3, SmallCrop(), 43, MayDay(5)).Depletion = 45;
    EXPECT_EQ(Shown(FormName::frmFieldDetails), ExpectedText("details_crop"));

    SmallCrop().Capacity({0, 0, 0}).StoreAt(3);  // nothing can be told of it
    EXPECT_THROW(Fill(FormName::frmFieldDetails), RunTimeFailure);
    EXPECT_EQ(ShownOn(FormName::frmFieldDetails), ExpectedText("details_crop"));
}

TEST_F(FieldScreen, StaysWithTheFieldAndTheUnitsThatItShows) {
    Stored(3, SmallCrop(), 43, MayDay(5));
    Stored(4, SmallCrop().Id("OTHER"), 43, MayDay(6));
    const std::vector<FormName> windows{FormName::frmFieldData, FormName::frmFieldDetails, FormName::frmFieldHistory,
                                        FormName::frmSeasonChart};
    for (const FormName form : windows) Shown(form);
    const auto anyEvent = [] {
        Show(FormName::frmReportOptions);
        At(FormName::frmReportOptions).Click("cmd_cancel");
    };

    State.EnglishUnits = false;
    anyEvent();
    EXPECT_EQ(The<frmFieldHistory>().lblHd[2].Caption, "AWC (cm)");
    At(FormName::frmFieldHistory).Click("cmdPrintAll");
    EXPECT_THAT(OnPaper(User.Printed.back()), HasSubstr("(cm)      %    (C)"));
    SmallCrop().Rain(MayDay(4), 9).StoreAt(3);
    anyEvent();
    EXPECT_THAT(ShownOn(FormName::frmFieldDetails), HasSubstr("05-04-03     9.0 mm"));

    SelectField(User, 4);
    anyEvent();
    for (const FormName form : windows) EXPECT_FALSE(IsLoaded(form));
}

TEST_F(FieldScreen, DoesNotComeUpWhereItCannotBeFilled) {
    Stored(3, SmallCrop().Capacity({0, 0, 0}), 43, MayDay(5));
    SelectField(User, 3);
    for (const FormName form : {FormName::frmFieldDetails, FormName::frmFieldHistory, FormName::frmSeasonChart}) {
        EXPECT_THROW(ShowFilled(form), RunTimeFailure);
        files::Remove("field3.dat");
        ShowFilled(form);  // the user is told that it is missing
        EXPECT_FALSE(IsLoaded(form));
        SmallCrop().Capacity({0, 0, 0}).StoreAt(3);
    }
    EXPECT_EQ(User.Told.size(), 3U);
    EXPECT_THAT(User.Presented, testing::IsEmpty());
}

TEST_F(FieldScreen, DetailsOfHayAreAsExpected) {
    State.EnglishUnits = false;
    AField meadow = InLayers(SmallHay());
    for (std::int16_t day = 2; day <= 12; ++day) meadow.Rain(MayDay(day), day);
    Stored(3, meadow, AmountHarvest).NextCutDay = MayDay(30);
    EXPECT_EQ(Shown(FormName::frmFieldDetails), ExpectedText("details_hay"));
}

TEST_F(FieldScreen, HistoryOfACropIsAsExpected) {
    Stored(3, SmallCrop(), 43, MayDay(5));
    EXPECT_EQ(Shown(FormName::frmFieldHistory), ExpectedText("history_crop"));
}

TEST_F(FieldScreen, HistoryOfHayHasItsCuttingsAndNoRoots) {
    State.EnglishUnits = false;
    Stored(3, SmallHay(), AmountHarvest);
    Shown(FormName::frmHayFieldHistory);
    EXPECT_EQ(The<frmHayFieldHistory>().txtIDate.Text, "Harvest Soon!");
    At(FormName::frmHayFieldHistory).Click("cmdPrintAll");
    EXPECT_EQ(OnPaper(User.Printed.back()), ExpectedText("history_print_hay"));
}

TEST_F(ReportForms, FieldReportOnPaperIsAsExpectedToTheLastBlank) {
    Stored(2, SmallCrop(), 43, MayDay(5));
    State.CurrentField = 2;
    RunFieldReport(ReportDestination::Printer);
    EXPECT_EQ(OnPaper(User.Printed.back()), ExpectedText("field_print_crop"));
    EXPECT_EQ(User.LastSaid(), "Veraqua: Field Histroy Report was sent to your default printer");
}

TEST_F(ReportForms, FieldReportIsNotSaidToBeSentWhereItWasNot) {
    Stored(2, SmallCrop(), 43, MayDay(5));
    State.CurrentField = 3;
    RunFieldReport(ReportDestination::Printer);  // there is no file
    State.CurrentField = 2;
    User.Printer = {PrintEnding::Left, ""};
    RunFieldReport(ReportDestination::Printer);
    User.Printer = {PrintEnding::Failed, "out of paper"};
    RunFieldReport(ReportDestination::Printer);
    RunFieldReport(ReportDestination::None);
    EXPECT_THAT(User.Texts(), testing::ElementsAre(testing::HasSubstr("Your field file is missing"), "out of paper",
                                                   "Error - No choice to save or print report. Contact OLK."));
}

}  // namespace
}  // namespace veraqua
