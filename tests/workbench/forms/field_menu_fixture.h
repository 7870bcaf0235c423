#pragma once

#include <functional>

#include <gmock/gmock.h>

#include "data/embedded.h"
#include "reports/forms/forms.h"
#include "screen/headless.h"
#include "shell/forms/forms.h"
#include "tests/support/builders.h"
#include "tests/support/script_screen.h"
#include "weather/forms/forms.h"
#include "workbench/forms/field_menu.h"
#include "workbench/forms/forms.h"
#include "workbench/forms/new_field.h"

namespace veraqua {

/// The user at the workbench on 15 July 2003, with measured weather of station 06 through yesterday.
struct FieldMenuTest : FormTest {
    static constexpr JulianValue Today = JulianFromDate(7, 15, 2003);
    static constexpr JulianValue Planting = JulianFromDate(5, 1, 2003);  ///< that of `AField`
    static constexpr int ThroughYesterday = Today - Planting;            ///< day rows from planting on
    static constexpr int IntoTheForecast = ThroughYesterday + 5;

    frmField& Form = The<frmField>();
    At Menu{(AddWorkbenchForms(), AddReportForms(), AddShellForms(), FormName::frmField)};

    FieldMenuTest() {
        for (const char* shipped : {"weathdef.dat", "crop.dat"}) Directory.Put(shipped, EmbeddedFile(shipped));
        StartUp(User);
        AWeatherYear("06", 2003).Through(195).Store();
        Show(FormName::frmField);
    }

    /// A field at `row` of the directory, computed through `lastDay`.
    void Plant(const AField& field, int row, JulianValue lastDay = Today - 1) {
        field.StoreAt(row);
        State.Stat[row].LastDay = lastDay;
        SaveFieldRow(User, row);
    }

    void Select(int position) { Menu.Click("mnuSelect").Pick("ComboField", position); }

    /// All files but the weather, which is made by looking.
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> contents;
        for (const std::string& name : files::Names())
            if (!name.starts_with("weather")) contents[name] = Directory.Raw(name);
        return contents;
    }
};

/// The user who enters a new field. Its crops as shipped: maize roots to 1 m (39 in), alfalfa to 1.2 m.
struct NewFieldTest : FieldMenuTest {
    enum Crop { Maize = 0, Alfalfa = 24 };
    enum Soil { Fixed, Variable };

    frmLoadField& Entry = The<frmLoadField>();

    NewFieldTest() { AddWeatherForms(); }

    void Begin(Crop crop = Maize, Soil soil = Fixed) {
        Menu.Click("mnuNew").Pick("comboCrops", crop).Pick("Combo_Soils", soil).Click("cmd_OK");
    }

    static At AtEntry() { return At(FormName::frmLoadField); }

    /// What has no start value: ID, planting on 1 May 2003, station 06; on hay the critical MAD.
    static At Describe(const char* id = "EAST") {
        At form = AtEntry();
        form.Type("txtFieldID", id).Type("TxtPlantDate", "5/1/2003").Pick("ComboKESTA", 5);
        if (State.IsHay) form.Type("txtMADcritical", "65");
        return form;
    }

    /// Goes on to the soil form, where the user does `doing`; left open, it is closed by its frame.
    void EnterSoil(FormName form, const std::function<void(At&)>& doing) {
        bool reached = false;
        User.WhenShown(form, [&, form] {
            reached = true;
            At soil(form);
            doing(soil);
        });
        AtEntry().Click("cmd_OK");
        User.WhenShown(form, [] {});
        EXPECT_TRUE(reached);
    }
};

}  // namespace veraqua
