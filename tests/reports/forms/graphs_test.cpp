#include "reports/forms/graphs.h"

#include <fmt/format.h>

#include "tests/reports/forms/report_forms.h"
#include "workbench/forms/forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

/// Five fields on 4 May, each on another of its rows: SmallCrop then stands at 45, 63, -5 and 28 %, SmallHay at 3 %.
struct Bars : ReportForms {
    frmGraphs& Form = The<frmGraphs>();

    Bars() {
        AddWorkbenchForms();
        Put(1, SmallCrop().Id("OAK").Crop("MAIZE").PlantedOn(MayDay(1)), 43, MayDay(9), 45);
        Put(2, SmallHay().Id("ELM").Crop("@ALFALFA").PlantedOn(MayDay(1) - 2), AmountHarvest, 0, 55);
        Put(3, SmallCrop().Id("ASH").Crop("WHEAT").PlantedOn(MayDay(1) - 1), 43, MayDay(6), 60);
        Put(4, SmallCrop().Id("FIR").Crop("BEAN").PlantedOn(MayDay(2)), AmountNoDataYet, 0, 38);
        Put(5, SmallCrop().Id("YEW").Crop("BEAN").PlantedOn(MayDay(3)), 43, MayDay(6), 23);
    }

    static void Put(int row, const AField& field, std::int16_t amount, JulianValue irrigation, std::int16_t mad) {
        Stored(row, field, amount, irrigation).MadNow = mad;
    }

    /// What `panel` gives of the panels on display.
    template <class Panel>
    std::vector<std::string> Shown(Panel panel) const {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < Form.Panels.size(); ++i)
            if (Form.Children[i]->Shown) texts.push_back(panel(*Form.Panels[i]));
        return texts;
    }

    /// The rows of the directory on display after `item`, "3 4".
    std::string After(std::string_view item) const {
        At(FormName::frmGraphs).Click(item);
        return fmt::format("{}", fmt::join(Shown([](const frmFieldGraph& panel) { return panel.lbl_k.Caption; }), " "));
    }
};

TEST_F(Bars, AreSortedAndPagedThrough) {
    State.DisplayDays = 2;
    ShowFieldDisplays();
    const auto sorted = [this](std::string_view item) {
        std::string all = After(item);
        for (int page = 2; page <= 3; ++page) all += ", " + After("m_next12");
        return After("m_prior12"), After("m_prior12"), all;
    };
    EXPECT_EQ(sorted("m_Field"), "3 2, 4 1, 5");
    EXPECT_EQ(sorted("m_crop"), "2 4, 5 1, 3");
    EXPECT_EQ(sorted("m_irr"), "2 4, 5 3, 1");  // harvest, no data, then days; of equal ones the one that stood first
    EXPECT_EQ(sorted("m_plant"), "2 3, 1 4, 5");
    EXPECT_EQ(After("m_prior12"), "2 3");
    After("m_next12"), After("m_next12");
    EXPECT_EQ(After("m_next12"), "5");
    EXPECT_THAT(User.Texts(), ElementsAre("You're already displaying your first 2 fields.",
                                          "You've displayed all your fields.  You have 5 fields planted."));
}

TEST_F(Bars, FollowTheFieldsWhileTheyAreOpen) {
    ShowFieldDisplays();
    After("m_Field");
    Stored(5, SmallCrop().Id("YEW"), 43);  // from 28 to 45 %
    EXPECT_EQ(After("m_prior12"), "3 2 4 1 5");
    EXPECT_EQ(Form.Panels[4]->lbl_depl.Caption, "Depletion:  45.0%");
}

TEST_F(Bars, OfEqualKeysMayChangePlaces) {
    std::vector<GraphRow> rows(3);
    std::int16_t number = 0;
    for (GraphRow& row : rows) row.FieldId = ++number == 3 ? "A" : "B", row.Row = number;
    // The gap of two brings the last one to the front, and the first behind the second.
    SortGraphRows(rows, GraphOrder::FieldId);
    EXPECT_EQ(rows[0].Row * 100 + rows[1].Row * 10 + rows[2].Row, 321);
}

TEST_F(Bars, TellWaterAndWarnOfDepletionAndLeaveTheDirectory) {
    const auto before = State.Stat;
    ShowFieldDisplays();
    const auto panels = Shown([](const frmFieldGraph& panel) {
        std::string text = fmt::format("{}; {:.1f}; {}; {}; {}", panel.Caption, panel.PBar.Value,
                                       panel.lbl_WaterContent.Caption, panel.lbl_MAD.Caption, panel.lbl_depl.Caption);
        for (const auto& colour : {panel.Background, panel.lbl_depl.Background}) text += ColourName(colour);
        return text;
    });
    EXPECT_THAT(panels, ElementsAre("MAIZE -- ID: OAK; 55.0; 55.0%; MAD:  45.0%; Depletion:  45.0%",
                                    "@ALFALFA -- ID: ELM; 96.9; 96.9%; MAD:  55.0%; Depletion:  3.0%",
                                    "WHEAT -- ID: ASH; 36.8; 36.8%; MAD:  60.0%; Depletion:  63.0% (yellow) (yellow)",
                                    "BEAN -- ID: FIR; 100.0; 100.0%; MAD:  38.0%; Depletion:  -5.0%",
                                    "BEAN -- ID: YEW; 72.5; 72.5%; MAD:  23.0%; Depletion:  28.0% (red) (red)"));
    for (const int row : {1, 2, 3, 4, 5}) EXPECT_EQ(State.Stat[row], before[row]);
}

}  // namespace
}  // namespace veraqua
