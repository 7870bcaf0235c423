#include "screen/field_caption.h"

#include <fmt/format.h>

#include "core/state.h"

namespace veraqua {

std::string CropInWork() { return State.Stat[State.CurrentField].CropName.Text(); }

std::string IdInWork() { return State.Stat[State.CurrentField].FieldId.Text(); }

std::string PlantingDateInWork() {
    const JulianValue day = State.Header().PlantDay;
    return day == 0 ? "" : JulianToShortText(day);
}

std::string StationPanel() { return fmt::format(" Kesta: {} ", State.StationName); }

std::string FieldTitle() {
    return fmt::format("Field={}.   ID={}.   Planted: {}.    Kesta Location: {}.    Veraqua {}", CropInWork(),
                       IdInWork(), PlantingDateInWork(), State.StationName, State.VersionString);
}

void ShowFieldIn(StatusBar& bar) {
    bar.Panels = {fmt::format("Field={}  ID={} ", CropInWork(), IdInWork()), " Planted: " + PlantingDateInWork(),
                  StationPanel()};
}

}  // namespace veraqua
