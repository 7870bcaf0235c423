#pragma once

#include "screen/form.h"

namespace veraqua {

/// Lists one year of the station's weather, on the screen and on the printer.
struct frmViewWeather : Form {
    Label lblKESTA{"Please select an KESTA Weather Station!"};
    ComboBox ComboKESTA;
    Label lbldates{"Data from:"};

    // Headings of the columns, with their units
    Label Label10{"Date"};
    Label lblday{"Day No."};
    Label Label1{"Max Temp"};
    Label lblm1;
    Label Label2{"Min Temp"};
    Label lblm2;
    Label Label6{"Max Rel Humid."};
    Label Label12;
    Label Label5{"Min Rel. Humid."};
    Label Label13;
    Label Label4{"Wind Speed"};
    Label lblw1;
    Label Label3{"Day/Night Wind Ratio"};
    Label lblw2;
    Label Label7{"Solar Rad."};
    Label lbls;
    Label Label8{"Pot. ET"};
    Label lble;

    TextBox txtData{"Enter the desired year below and click on [OK]."};
    Label Label9{"Enter Year:"};
    TextBox txtYear;
    Button cmdOK{"OK"};
    Button cmdPrint{"Print Screen"};
    Button cmdPrintAll{"Print Weather File"};
    Button Cmd_Exit{"<-GO BACK"};
    StatusBar StatusBar1;

    int OpenedAt = -1;  ///< row of the station that the list opened at
};

FormTable TableOf(frmViewWeather& form);

}  // namespace veraqua
