#include "reports/field_history.h"
#include "reports/field_summary.h"
#include "tests/reports/expected_text.h"
#include "tests/reports/report_forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

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

    State.TodayJulian = MayDay(5);  // the weather lies two days back
    State.WeatherLastJulian = 0;
    State.MadExceededDay = MayDay(5);
    Fill(FormName::frmFieldData);
    const frmFieldData& form = The<frmFieldData>();
    EXPECT_EQ(form.Label4.Caption, "Water Depletion as of  05-03-03:");
    EXPECT_EQ(form.txtWeather.Text, "");
    EXPECT_EQ(form.txtIrrDate.Text, "Exceeded MAD: 05-05-03. Water TODAY!");
    EXPECT_EQ(form.txtIrrDate.Background, colours::Red);

    At(FormName::frmFieldData).Click("cmdPrint").Click("cmdExit");
    EXPECT_THAT(form.lblPrinted.Caption, HasSubstr("Field=Sugar Beets.   ID=North Ñ.   Planted: 05-01-03.    Kesta"));
    EXPECT_THAT(User.PrintedForms, ElementsAre(FormName::frmFieldData));
    EXPECT_FALSE(IsLoaded(FormName::frmFieldData));
}

TEST_F(FieldScreen, DetailsOfACropAreAsExpected) {
    Stored(3, SmallCrop(), 43, MayDay(5)).Depletion = 45;
    EXPECT_EQ(Shown(FormName::frmFieldDetails), ExpectedText("details_crop"));

    SmallCrop().Capacity({0, 0, 0}).StoreAt(3);  // nothing can be told of it
    EXPECT_THROW(Fill(FormName::frmFieldDetails), RunTimeFailure);
    EXPECT_EQ(ShownOn(FormName::frmFieldDetails), ExpectedText("details_crop"));
}

TEST_F(FieldScreen, DetailsOfHayAreAsExpected) {
    State.EnglishUnits = false;
    AField meadow = InLayers(SmallHay());
    for (std::int16_t day = 2; day <= 12; ++day) meadow.Rain(MayDay(day), day);
    Stored(3, meadow, AmountHarvest).NextCutDay = MayDay(30);
    EXPECT_EQ(Shown(FormName::frmFieldDetails), ExpectedText("details_hay"));

    // Rain that comes to nothing is not shown.
    Stored(3, meadow.Rain(MayDay(13), -77), 0);
    EXPECT_THAT(Shown(FormName::frmFieldDetails),
                testing::AllOf(HasSubstr("txtRAIN: None\n"), Not(HasSubstr("lblRDate")),
                               HasSubstr("txtHayCut: No Data Yet!\n")));
}

TEST_F(FieldScreen, HistoryOfACropIsAsExpected) {
    Stored(3, SmallCrop(), 43, MayDay(5));
    EXPECT_EQ(Shown(FormName::frmFieldHistory), ExpectedText("history_crop"));
    EXPECT_TRUE(The<frmFieldHistory>().Caption.starts_with("Field=Sugar Beets.   ID=North Ñ."));
}

TEST_F(FieldScreen, HistoryOfHayHasItsCuttingsAndNoRoots) {
    State.EnglishUnits = false;
    Stored(3, SmallHay(), AmountHarvest);
    Shown(FormName::frmHayFieldHistory);
    EXPECT_EQ(The<frmHayFieldHistory>().txtIDate.Text, "Harvest Soon!");
    At(FormName::frmHayFieldHistory).Click("cmdPrintAll");
    EXPECT_EQ(OnPaper(User.Printed.back()), ExpectedText("history_print_hay"));
}

TEST_F(FieldScreen, HistoryAsksForAFieldFirst) {
    Show(FormName::frmFieldHistory);
    Fill(FormName::frmFieldHistory);
    EXPECT_EQ(User.LastSaid(), "Information Message: Please select or initialize a field before choosing this option");
}

}  // namespace
}  // namespace veraqua
