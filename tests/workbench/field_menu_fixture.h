#pragma once

#include <gmock/gmock.h>

#include "data/embedded.h"
#include "reports/forms.h"
#include "screen/headless.h"
#include "shell/forms.h"
#include "tests/support/builders.h"
#include "tests/support/script_screen.h"
#include "workbench/field_menu.h"
#include "workbench/forms.h"

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

}  // namespace veraqua
