#include "desktop/days.h"

namespace veraqua {

QDate DateOf(JulianValue day) {
    const Date date = DateFromJulian(day);
    return {date.Year, date.Month, date.Day};
}

JulianValue DayOf(const QDate& date) { return JulianFromDate(date.month(), date.day(), date.year()); }

}  // namespace veraqua
