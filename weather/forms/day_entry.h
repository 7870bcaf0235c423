#pragma once

#include "weather/forms/weather_menu.h"

/// The hand entry of one day of the last two calendar years.
namespace veraqua {

/// Begins an entry. Days between the last day of weather and yesterday become default weather before it.
void mnu_enter_Click(frmWeather& form);

void cmd_Calendar_Click(frmWeather& form);
void Cal1_Click(frmWeather& form);
void cmd_DateOK_Click(frmWeather& form);

/// Whether box `index` holds a number within its limits; if not, the user has been told, and stays in it.
bool txt_w_Leave(frmWeather& form, int index);

void cmd_OK_Click(frmWeather& form);

}  // namespace veraqua
