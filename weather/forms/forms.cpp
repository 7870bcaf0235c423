#include "weather/forms/forms.h"

#include "screen/forms.h"
#include "weather/forms/download.h"
#include "weather/forms/station_chooser.h"
#include "weather/forms/weather_menu.h"
#include "weather/forms/weather_viewer.h"

namespace veraqua {

void AddWeatherForms() {
    AddForm<frmWeather>();
    AddForm<frmKESTA>();
    AddForm<frmDownload>();
    AddForm<frmViewWeather>();
}

}  // namespace veraqua
