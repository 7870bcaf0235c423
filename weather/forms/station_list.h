#pragma once

#include <string_view>

#include "core/field_in_work.h"
#include "screen/controls.h"
#include "screen/form.h"

/// The stations as the weather windows offer them.
namespace veraqua {

/// The names of weathdef.dat in their order, each row standing for its station's number. The list opens at the station
/// in work, which isn't a pick: its row is returned, -1 without a station.
int FillStations(ComboBox& list);

/// Whether row `position`, from 0, is a station that the weather windows refuse as off-line. The new-field window
/// refuses others: it counts the rows of its list in its own way.
bool IsOffLine(int position);

/// Default-weather region of a station that the user has chosen on a weather window. It differs from the region that
/// runs and checks take: station 01 belongs to the first region and 33 to none.
std::string_view RegionOfChosenStation(std::string_view stationCode);

/// Makes the row selected in `list` the station in work and loads its default weather. False, after the user has been
/// told, where nothing or an off-line station is selected, with the focus on the list, or where the region is missing.
bool ChooseStation(ComboBox& list);

/// Takes the station up again that was in work `before`, with its default weather as runs take it. False, after the
/// user has been told, where its region is missing.
bool TakeUpStation(const InWork& before);

/// Titles a weather window and names the station on it, and the field in work if there is one.
void ShowStationOn(Form& form, StatusBar& bar);

}  // namespace veraqua
