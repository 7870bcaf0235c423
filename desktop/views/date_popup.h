#pragma once

#include <QCalendarWidget>
#include <QLineEdit>

namespace veraqua {

/// Takes the week numbers and the red of the weekends off a calendar: neither means anything to a field.
void MakePlain(QCalendarWidget& calendar);

/// Adds a calendar button to an input for dates. The day picked is typed into it as "mm-dd-yyyy".
void AddDatePopup(QLineEdit& line);

}  // namespace veraqua
