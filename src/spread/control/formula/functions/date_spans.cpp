#include <algorithm>
#include <string>
#include <utility>

#include "platform/encodings.h"
#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/date_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;
using calendar::Date;

bool isLastOfMonth(const Date& date) {
    return date.day == calendar::daysInMonth(date.year, date.month);
}

bool isEndOfFebruary(const Date& date) {
    return date.month == 2 && isLastOfMonth(date);
}

/// Days between two dates that a year of twelve months of 30 days has.
int daysOf360(const Date& start, const Date& end) {
    return (end.year - start.year) * 360 + (end.month - start.month) * 30 + end.day - start.day;
}

int europeanDays360(Date start, Date end) {
    start.day = std::min(start.day, 30);
    end.day = std::min(end.day, 30);
    return daysOf360(start, end);
}

/// The day of a moment rounded to seconds: half a second before midnight is the next day.
int nearestDay(double number) {
    return std::min(wholeDay(number + 0.5 / calendar::secondsPerDay), calendar::lastDay);
}

/// DAYS360 looks at the end of February only where the time begins.
int americanDays360(Date start, Date end) {
    if (isLastOfMonth(start)) start.day = 30;
    // The 31st behind an earlier day counts as the first of the next month, so it stays.
    if (end.day == 31 && start.day >= 30) end.day = 30;
    return daysOf360(start, end);
}

/// YEARFRAC looks at it at both ends.
int americanDaysOfYear(Date start, Date end) {
    if (isEndOfFebruary(start)) {
        if (isEndOfFebruary(end)) end.day = 30;
        start.day = 30;
    }
    if (end.day == 31 && start.day >= 30) end.day = 30;
    start.day = std::min(start.day, 30);
    return daysOf360(start, end);
}

/// The mean length of the years that the time from `start` to `end` touches.
double meanYear(const Date& start, const Date& end, int startDay, int endDay) {
    if (start.year == end.year) return calendar::isLeapYear(start.year) ? 366 : 365;
    const bool isWithinAYear =
        start.year + 1 == end.year &&
        (start.month > end.month || (start.month == end.month && start.day >= end.day));
    if (isWithinAYear) {
        for (const int year : {start.year, end.year}) {
            if (!calendar::isLeapYear(year)) continue;
            const int leapDay = calendar::dayNumber({year, 2, 29});
            if (startDay <= leapDay && leapDay <= endDay) return 366;
        }
        return 365;
    }
    const int days = calendar::daysBeforeYear(end.year + 1) - calendar::daysBeforeYear(start.year);
    return static_cast<double>(days) / (end.year - start.year + 1);
}

/// The day `months` after `day`, by `adjust` put into its month; nothing outside the calendar.
template <class Adjust>
Value shifted(Calculation& c, Arguments args, Adjust&& adjust) {
    ArgumentReader read(c, args);
    const double number = read.strictNumber(0);
    const double shift = std::trunc(read.strictNumber(1));
    if (read.failed()) return read.error();
    if (!isInCalendar(number) || std::fabs(shift) > 120000) return ErrorCode::num;
    const Date start = calendar::dateOf(wholeDay(number));
    const int months = start.year * 12 + start.month - 1 + static_cast<int>(shift);
    if (months < 1900 * 12 || months > 9999 * 12 + 11) return ErrorCode::num;
    Date end{months / 12, months % 12 + 1, start.day};
    end.day = adjust(end.day, calendar::daysInMonth(end.year, end.month));
    return dayOrError(calendar::dayNumber(end));
}

int wholeMonths(const Date& start, const Date& end) {
    return (end.year - start.year) * 12 + end.month - start.month - (end.day < start.day ? 1 : 0);
}

/// Days since the start's day of the month came last.
int daysPastMonths(const Date& start, const Date& end) {
    if (end.day >= start.day) return end.day - start.day;
    const int year = end.month == 1 ? end.year - 1 : end.year;
    const int month = end.month == 1 ? 12 : end.month - 1;
    return end.day - start.day + calendar::daysInMonth(year, month);
}

/// Days since the start's day of the year came last.
int daysPastYears(const Date& start, const Date& end, int endDay) {
    int anniversary = calendar::dayNumber({end.year, start.month, start.day});
    if (anniversary > endDay)
        anniversary = calendar::dayNumber({end.year - 1, start.month, start.day});
    return endDay - anniversary;
}

}  // namespace

Value days(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double end = read.number(0);
    const double start = read.number(1);
    if (read.failed()) return read.error();
    if (!isInCalendar(start) || !isInCalendar(end)) return ErrorCode::num;
    return static_cast<double>(wholeDay(end) - wholeDay(start));
}

Value days360(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double start = read.number(0);
    const double end = read.number(1);
    const bool isEuropean = read.truth(2, false);
    if (read.failed()) return read.error();
    if (!isInCalendar(start) || !isInCalendar(end)) return ErrorCode::num;
    const Date from = calendar::dateOf(nearestDay(start));
    const Date to = calendar::dateOf(nearestDay(end));
    return static_cast<double>(isEuropean ? europeanDays360(from, to) : americanDays360(from, to));
}

Value dateDifference(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double first = read.number(0);
    const double last = read.number(1);
    const std::string unit = encodings::lowered(read.text(2));
    if (read.failed()) return read.error();
    if (!isInCalendar(first) || !isInCalendar(last) || wholeDay(first) > wholeDay(last))
        return ErrorCode::num;
    const int startDay = wholeDay(first);
    const int endDay = wholeDay(last);
    const Date start = calendar::dateOf(startDay);
    const Date end = calendar::dateOf(endDay);
    int result = 0;
    if (unit == "d")
        result = endDay - startDay;
    else if (unit == "m")
        result = wholeMonths(start, end);
    else if (unit == "y")
        result = wholeMonths(start, end) / 12;
    else if (unit == "ym")
        result = wholeMonths(start, end) % 12;
    else if (unit == "md")
        result = daysPastMonths(start, end);
    else if (unit == "yd")
        result = daysPastYears(start, end, endDay);
    else
        return ErrorCode::num;
    return static_cast<double>(result);
}

Value yearFraction(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    double first = read.strictNumber(0);
    double last = read.strictNumber(1);
    const int basis = read.has(2) ? read.strictWhole(2) : 0;
    if (read.failed()) return read.error();
    if (!isInCalendar(first) || !isInCalendar(last)) return ErrorCode::num;
    if (first > last) std::swap(first, last);
    const int startDay = wholeDay(first);
    const int endDay = wholeDay(last);
    const Date start = calendar::dateOf(startDay);
    const Date end = calendar::dateOf(endDay);
    switch (basis) {
        case 0:
            return americanDaysOfYear(start, end) / 360.0;
        case 1:
            return (endDay - startDay) / meanYear(start, end, startDay, endDay);
        case 2:
            return (endDay - startDay) / 360.0;
        case 3:
            return (endDay - startDay) / 365.0;
        case 4:
            return europeanDays360(start, end) / 360.0;
        default:
            return ErrorCode::num;
    }
}

Value monthsLater(Calculation& c, Arguments args) {
    return shifted(c, args, [](int day, int daysInMonth) { return std::min(day, daysInMonth); });
}

Value endOfMonth(Calculation& c, Arguments args) {
    return shifted(c, args, [](int, int daysInMonth) { return daysInMonth; });
}

}  // namespace formula
