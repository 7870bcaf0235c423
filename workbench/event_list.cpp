#include "workbench/event_list.h"

#include <algorithm>

#include "core/base/numbers.h"

namespace veraqua {

ListChange ManageEvents(std::vector<EventRecord>& events, JulianValue day, std::optional<double> amount) {
    const auto place = std::find_if(events.begin(), events.end(), [day](const EventRecord& e) { return e.Day >= day; });
    const bool found = place != events.end() && place->Day == day;
    if (!amount) {
        if (!found) return ListChange::NoMatch;
        events.erase(place);
        return ListChange::Changed;
    }
    const std::int16_t whole = ToInteger16(*amount, "Amount of the day");
    if (!found) {
        events.insert(place, {day, whole});
        return ListChange::Changed;
    }
    if (place->Amount == whole) return ListChange::Unchanged;
    place->Amount = whole;
    return ListChange::Changed;
}

}  // namespace veraqua
