#include "shell/forms/about.h"

#include <string_view>

#include "core/files/files.h"
#include "core/state.h"
#include "screen/forms.h"

namespace veraqua {

namespace {

constexpr std::string_view Licence =
    "Veraqua is free software under the GNU General Public License, version 3 or any later one. It comes without any "
    "warranty.";

/// In short what the readme of the data says in full.
constexpr std::string_view Sources =
    "Reference evapotranspiration: the modified Penman equation of Doorenbos and Pruitt, 1977, FAO Irrigation and "
    "Drainage Paper 24.\n\n"
    "Crops: crop coefficients and root depths after Allen, Pereira, Raes and Smith, 1998, FAO Irrigation and Drainage "
    "Paper 56; heat sums after the AquaCrop crop parameters (FAO) and publications of universities and their "
    "extension services. Hay: FAO papers 24 and 56.\n\n"
    "Default weather of the regions, fitted to measured series: CIMIS, California Department of Water Resources "
    "(Davis); CoAgMET, Colorado State University (Holyoke); AgriMet, US Bureau of Reclamation (Fallon); Royal "
    "Netherlands Meteorological Institute, KNMI, CC BY 4.0 (De Bilt); USDA Agricultural Research Service, CC0 "
    "(Greeley); a station at Reno, Nevada. The names of the regions and stations are invented.\n\n"
    "Weather of the sample: CIMIS station 6, Davis, 2002; USDA Agricultural Research Service, Greeley, 2022, CC0.\n\n"
    "Programs that Veraqua stands on: Qt, libfmt, fontconfig, zlib; on the command line CLI11, nlohmann-json and "
    "libcurl.";

void Load(frmAbout& form) {
    form.lblVersion.Caption = State.VersionString;
    form.txtDirectory.Text = files::DirectoryPath();
}

void cmdExit_Click(frmAbout&) { Unload(FormName::frmAbout); }

}  // namespace

frmAbout::frmAbout() {
    Caption = "About Veraqua";
    txtLicence.Text = Licence;
    txtSources.Text = Sources;
    for (TextBox* box : {&txtDirectory, &txtLicence, &txtSources}) box->ReadOnly = true;
}

FormTable TableOf(frmAbout& form) {
    FormFor table(form, FormName::frmAbout, "frmAbout");
    table.Add("lblTitle", form.lblTitle);
    table.Add("lblVersion", form.lblVersion);
    table.Add("lblDirectory", form.lblDirectory);
    table.Add("txtDirectory", form.txtDirectory);
    table.Add("lblLicence", form.lblLicence);
    table.Add("txtLicence", form.txtLicence);
    table.Add("lblSources", form.lblSources);
    table.Add("txtSources", form.txtSources);
    table.Add("cmdExit", form.cmdExit).Click(cmdExit_Click).Exit();
    table.Load(Load).Close(cmdExit_Click);
    return table.Done();
}

}  // namespace veraqua
