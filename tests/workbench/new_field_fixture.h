#pragma once

#include <functional>

#include "tests/workbench/field_menu_fixture.h"
#include "weather/forms/forms.h"
#include "workbench/new_field.h"

namespace veraqua {

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
