#pragma once

#include <array>

#include "core/calendar.h"
#include "core/records.h"
#include "screen/form.h"

/// The weather workbench: from its menu weather is downloaded, made up from the default, entered by hand and looked at,
/// and its panels show the last day written.
namespace veraqua {

struct frmWeather : Form {
    frmWeather() { Caption = "Weather Data"; }

    // The station
    Label lblKESTA{"Please select an KESTA Weather Station!"};
    ComboBox ComboKESTA;

    // A day of weather
    Label lbl_kesta{"KESTA DATA"};
    Label lbl_EditWeather{"EDIT WEATHER DATA"};
    std::array<Label, 1> lbl_info;
    std::array<Label, 8> lbl_d;
    std::array<Label, 8> lbl_az;
    std::array<TextBox, 7> txt_w;  ///< in the order of `DayRow`; reference ET is computed

    // The day to enter
    Label lbl_SelectDate{"SELECT DATE:"};
    TextBox txtDate;
    Button cmd_Calendar{"CAL."};
    Calendar Cal1;
    Button cmd_DateOK{"OK"};

    // Always there
    Button cmd_OK{"OK/Update"};
    Button Cmd_Exit{"<-GO BACK"};
    Label lblUpdate;
    StatusBar StatusBar1;

    // The menu
    MenuItem mnu_weather{"Add Weather Data"};
    MenuItem mnu_kesta{"Download KESTA Data", 2};
    MenuItem mnu_AppendWeather{"Append to Existing Weather Data", 3};
    MenuItem mnu_OverwriteWeather{"Overwrite Weather from January 1 thru Today", 3};
    MenuItem mnu_enter{"Enter/Edit Weather Data", 2};
    MenuItem mnu_default{"Load Default Weather Data", 2};
    MenuItem mnu_KESTAloc{"Select KESTA Station"};
    MenuItem mnu_view{"View Weather Data"};
    MenuItem mnu_return{"<-GO BACK"};

    // What the screen remembers
    int OpenedAt = -1;         ///< row of the station that the list opened at
    DayRange Wanted;           ///< by the station chooser, if it has called
    JulianValue EntryDay = 0;  ///< the day that is being entered
    WeatherDay Entered;        ///< its weather, as read
};

FormTable TableOf(frmWeather& form);

/// Hides all but the menu, the way out and the status bar.
void ClearPanels(frmWeather& form);

/// Shows the panels of a day.
void ShowPanels(frmWeather& form);

/// Enables the menus that an entry by hand keeps away, or disables them.
void EnableMenus(frmWeather& form, bool enabled = true);

/// Opens the list of stations for choosing. An entry that is under way is given up.
void mnu_KESTAloc_Click(frmWeather& form);

void mnu_AppendWeather_Click(frmWeather& form);
void mnu_OverwriteWeather_Click(frmWeather& form);

/// Writes default weather: for the range of the station chooser if it has called, else for this year through yesterday.
/// Measured days are replaced only if the user agrees.
void mnu_default_Click(frmWeather& form);

/// Shows the window for the station chooser, with the default weather of the days `wanted` written, until the user has
/// seen it.
void ShowDefaultWeather(const DayRange& wanted);

/// Whether the station chooser shows the window.
bool ChooserHasCalled();

/// Whether a station is chosen; if not, the user is told and the list of stations opens. The downloads have words of
/// their own for it.
bool HasStation(frmWeather& form);

}  // namespace veraqua
