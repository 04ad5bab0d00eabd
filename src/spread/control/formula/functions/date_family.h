// The date functions lie in three files: making and reading dates (date_parts.cpp), the time
// between two dates (date_spans.cpp) and working days (date_workdays.cpp). This is what dates.cpp
// needs to list them and what they share.
#pragma once

#include <cmath>
#include <span>

#include "spread/control/formula/calculation.h"
#include "spread/control/formula/calendar.h"

namespace formula {

using DateCall = Value(Calculation& c, std::span<const Value> args);

DateCall date, dateValue, day, hour, isoWeekNumber, minute, month, now, second, time, timeValue,
    today, weekday, weekNumber, year;
DateCall dateDifference, days, days360, endOfMonth, monthsLater, yearFraction;
DateCall networkDays, networkDaysIntl, workday, workdayIntl;

/// Whether a day number, its time of day aside, lies in the calendar.
inline bool isInCalendar(double number) {
    return number >= 0 && number < calendar::lastDay + 1.0;
}

/// The whole day of a number that is in the calendar.
inline int wholeDay(double number) {
    return static_cast<int>(std::floor(number));
}

inline Value dayOrError(double day) {
    return isInCalendar(day) ? Value(day) : Value(ErrorCode::num);
}

}  // namespace formula
