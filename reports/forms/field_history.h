#pragma once

#include <array>
#include <string>
#include <vector>

#include "reports/forms/shown_field.h"
#include "reports/forms/shown_text.h"
#include "screen/form.h"

/// The field history: the days of the field in work, on the screen. Ordinary crops and hay have a form each, which
/// differ in their columns only.
namespace veraqua {

struct FieldHistory : Form {
    FieldHistory() { Caption = "Field History"; }

    std::array<Label, 15> lblHd;  ///< column headings
    ShownText txtData{
        "\n\n"
        "                   Please be patient...\n"
        "                   Loading & formatting Field Data\n"
        "                   Thank you!"};
    Label lblID{"Field ID:"};
    ShownText txtID;
    Label lblCropName{"Crop:"};
    ShownText txtCropName;
    Label lblPDate{"Planted:"};
    ShownText txtPDate;
    Label lblIDate{"Next Irrigation:"};
    ShownText txtIDate;
    Label lblIrrAmnt{"Amount:"};
    ShownText txtIrrAmnt;
    Label Label4{"Note: with excess water in the soil the depletion column shows \"FULL\"."};
    Button cmdPrint{"Print Screen"};
    Button cmdPrintAll{"Print Field History"};
    Button Cmd_Exit{"<-GO BACK"};

    std::vector<std::string> Lines;  ///< of the table, as shown
    ShownField Shown;
};

struct frmFieldHistory : FieldHistory {};
struct frmHayFieldHistory : FieldHistory {};

FormTable TableOf(frmFieldHistory& form);
FormTable TableOf(frmHayFieldHistory& form);

}  // namespace veraqua
