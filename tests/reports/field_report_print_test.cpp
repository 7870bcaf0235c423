#include "reports/report_roads.h"
#include "tests/reports/expected_text.h"
#include "tests/reports/report_forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

TEST_F(ReportForms, FieldReportOnPaperIsAsExpectedToTheLastBlank) {
    Stored(2, SmallCrop(), 43, MayDay(5));
    State.CurrentField = 2;
    RunFieldReport("printer");
    EXPECT_EQ(OnPaper(User.Printed.back()), ExpectedText("field_print_crop"));
    EXPECT_EQ(User.LastSaid(), "Veraqua: Field Histroy Report was sent to your default printer");
}

TEST_F(ReportForms, FieldReportOnPaperNamesTheLayersOfHay) {
    State.EnglishUnits = false;
    Stored(2, InLayers(SmallHay()), AmountNotRequired);
    State.CurrentField = 2;
    RunFieldReport("printer");
    EXPECT_THAT(OnPaper(User.Printed.back()), HasSubstr("Courier New 12| CROP Planted On:  05-01-03\n"));
    EXPECT_THAT(OnPaper(User.Printed.back()), HasSubstr("Courier New 12| Soil Layers\n"
                                                        "Courier New 12| Layer 1:   152.40 millimeters\n"
                                                        "Courier New 12| Layer 2:   304.80 millimeters\n"
                                                        "Courier New 12| Layer 3:   508.00 millimeters\n"
                                                        "Courier New 12|\n"
                                                        "Courier New 12| Soil Water Capacity\n"));
}

TEST_F(ReportForms, FieldReportIsNotSaidToBeSentWhereItWasNot) {
    Stored(2, SmallCrop(), 43, MayDay(5));
    State.CurrentField = 3;
    RunFieldReport("printer");  // there is no file
    State.CurrentField = 2;
    User.Printer = {PrintEnding::Left, ""};
    RunFieldReport("printer");
    User.Printer = {PrintEnding::Failed, "out of paper"};
    RunFieldReport("printer");
    RunFieldReport("screen");
    EXPECT_THAT(User.Texts(), ElementsAre(HasSubstr("Your field file is missing"), "out of paper",
                                          "Error - No choice to save or print report. Contact OLK."));
    EXPECT_THAT(User.Printed, SizeIs(2));
}

}  // namespace
}  // namespace veraqua
