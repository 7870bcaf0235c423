#pragma once

#include <string>

#include "screen/controls.h"

/// How every window names the field in work.
namespace veraqua {

/// "Field=CORN.   ID=EAST.   Planted: 04-20-26.    Kesta Location: ...", for the window's title.
std::string FieldTitle();

/// Crop and ID, planting date, and weather station, for the three panels.
void ShowFieldIn(StatusBar& bar);

/// The third panel alone.
std::string StationPanel();

/// Crop and ID of the field in work, without trailing blanks.
std::string CropInWork();
std::string IdInWork();

/// Its planting date, for hay the onset of growth, as "mm-dd-yy".
std::string PlantingDateInWork();

}  // namespace veraqua
