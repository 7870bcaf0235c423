#include "weather/forms/station_list.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/state.h"
#include "screen/field_caption.h"
#include "screen/screen.h"
#include "weather/default_weather.h"

namespace veraqua {

namespace {

constexpr std::array OffLinePositions{16, 17, 24};

}  // namespace

int FillStations(ComboBox& list) {
    list.Clear();
    int number = 0;
    for (const std::string& name : State.DefaultStations) list.Add(name, ++number);
    const int inWork = WholeNumber(State.StationCode).value_or(0);
    list.Select(IsStation(inWork) ? inWork - 1 : -1);
    return list.Index;
}

bool IsOffLine(int position) { return std::ranges::find(OffLinePositions, position) != OffLinePositions.end(); }

std::string_view RegionOfChosenStation(std::string_view stationCode) {
    if (stationCode == "01") return "SORA VALLEY";
    if (stationCode == "33") return {};
    return RegionOfStation(stationCode);
}

bool ChooseStation(ComboBox& list) {
    const ListItem* row = list.Selected();
    if (row == nullptr) {
        TheScreen().Tell("Please select a location from the drop-down list", "Nothing selected");
        Focus(list);
        return false;
    }
    if (IsOffLine(list.Index)) {
        TheScreen().Tell("Please select a site that isn't off-line!", "Bad selection");
        list.Select(-1);
        Focus(list);
        return false;
    }
    State.StationCode = fmt::format("{:02}", row->Data);
    State.StationName = row->Text;
    State.WeatherLastJulian = 0;  // that of the station before says nothing about this one
    return LoadWeatherCoefficients(TheScreen(), RegionOfChosenStation(State.StationCode));
}

bool TakeUpStation(const InWork& before) {
    if (before.HasStation()) return true;
    before.ReturnStation();
    return LoadWeatherCoefficients(TheScreen(), RegionOfStation(State.StationCode));
}

void ShowStationOn(Form& form, StatusBar& bar) {
    form.Caption = "Weather Data, Veraqua " + State.VersionString;
    if (State.CurrentField > 0) {
        ShowFieldIn(bar);
        form.Caption = FieldTitle();
    }
    bar.Panels[2] = StationPanel();
}

}  // namespace veraqua
