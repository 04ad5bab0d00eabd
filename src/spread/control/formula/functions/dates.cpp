#include <array>

#include "spread/control/formula/functions/date_family.h"
#include "spread/control/formula/functions/families.h"

namespace formula {
namespace {

constexpr std::array<FunctionSpec, 25> rows{{
    {"DATE", 3, 3, "v", date, plain, "year, month, day",
     "The day number of a date; months and days beyond their range run on into the next."},
    {"DATEDIF", 3, 3, "v", dateDifference, plain, "start, end, unit",
     "Whole years (\"y\"), months (\"m\") or days (\"d\") between two dates; \"ym\", \"md\" and "
     "\"yd\" give what is left of them."},
    {"DATEVALUE", 1, 1, "v", dateValue, plain, "text", "The day number of a date given as text."},
    {"DAY", 1, 1, "v", day, plain, "date", "The day of the month, 1 to 31."},
    {"DAYS", 2, 2, "v", days, plain, "end, start", "The days between two dates."},
    {"DAYS360", 2, 3, "v", days360, plain, "start, end, [european]",
     "The days between two dates in a year of twelve months of 30 days."},
    {"EDATE", 2, 2, "v", monthsLater, plain, "start, months",
     "The date so many months later, or at the end of that month where it is shorter."},
    {"EOMONTH", 2, 2, "v", endOfMonth, plain, "start, months",
     "The last day of the month so many months later."},
    {"HOUR", 1, 1, "v", hour, plain, "time", "The hour of a time, 0 to 23."},
    {"ISOWEEKNUM", 1, 1, "v", isoWeekNumber, plain, "date",
     "The week of the year by ISO 8601, 1 to 53."},
    {"MINUTE", 1, 1, "v", minute, plain, "time", "The minute of a time, 0 to 59."},
    {"MONTH", 1, 1, "v", month, plain, "date", "The month of a date, 1 to 12."},
    {"NETWORKDAYS", 2, 3, "vva", networkDays, plain, "start, end, [holidays]",
     "The working days from Monday to Friday between two dates, both included."},
    {"NETWORKDAYS.INTL", 2, 4, "vvva", networkDaysIntl, plain, "start, end, [weekend], [holidays]",
     "As NETWORKDAYS with other weekends: a number, or seven digits from Monday on with 1 for a "
     "day off."},
    {"NOW", 0, 0, "", now, isVolatile, "", "The day number and time of now."},
    {"SECOND", 1, 1, "v", second, plain, "time", "The second of a time, 0 to 59."},
    {"TIME", 3, 3, "v", time, plain, "hour, minute, second", "A time as a fraction of a day."},
    {"TIMEVALUE", 1, 1, "v", timeValue, plain, "text", "A time given as text, as part of a day."},
    {"TODAY", 0, 0, "", today, isVolatile, "", "The day number of today."},
    {"WEEKDAY", 1, 2, "v", weekday, plain, "date, [numbering]",
     "The day of the week: 1 for Sunday, or with numbering 2 for Monday; 3 counts from 0 for "
     "Monday; "
     "11 to 17 begin at Monday to Sunday."},
    {"WEEKNUM", 1, 2, "v", weekNumber, plain, "date, [numbering]",
     "The week of the year that begins on Sunday (1), Monday (2), Monday to Sunday (11 to 17), or "
     "by ISO 8601 (21)."},
    {"WORKDAY", 2, 3, "vva", workday, plain, "start, days, [holidays]",
     "The date so many working days later."},
    {"WORKDAY.INTL", 2, 4, "vvva", workdayIntl, plain, "start, days, [weekend], [holidays]",
     "As WORKDAY with other weekends, see NETWORKDAYS.INTL."},
    {"YEAR", 1, 1, "v", year, plain, "date", "The year of a date."},
    {"YEARFRAC", 2, 3, "v", yearFraction, plain, "start, end, [basis]",
     "The part of a year between two dates: basis 0 American 30/360, 1 actual days, 2 actual/360, "
     "3 actual/365, 4 European 30/360."},
}};

}  // namespace

std::span<const FunctionSpec> dateFunctions() {
    return rows;
}

}  // namespace formula
