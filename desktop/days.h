#pragma once

#include <QDate>

#include "core/calendar.h"

/// Days between the records and the toolkit's calendar.
namespace veraqua {

QDate DateOf(JulianValue day);
JulianValue DayOf(const QDate& date);

}  // namespace veraqua
