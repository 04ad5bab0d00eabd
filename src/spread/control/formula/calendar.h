// Days as the well-known spreadsheet programs count them: day 1 is 1900-01-01, and a 1900-02-29
// that never was is day 60. Day 0 reads as 1900-01-00. Everything here is whole days; the time of
// day is the fraction of a day number.
#pragma once

#include <optional>

namespace formula::calendar {

inline constexpr int lastDay = 2958465;  // 9999-12-31
inline constexpr int secondsPerDay = 86400;

struct Date {
    int year;
    int month;  // 1 to 12
    int day;    // 1 to 31; 0 for day number 0
};

/// Of the real calendar; 1900 is none.
constexpr bool isLeapYear(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// February 1900 has 29 days here.
constexpr int daysInMonth(int year, int month) {
    if (month == 2) return isLeapYear(year) || year == 1900 ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// Days before the first of January of `year` of the real calendar, counted from year 1.
constexpr int daysBeforeYear(int year) {
    const int past = year - 1;
    return past * 365 + past / 4 - past / 100 + past / 400;
}

/// Day number of a date of the years 1900 to 9999 that is in the calendar. The day may lie
/// outside its month: it is counted from the month's first.
constexpr int dayNumber(const Date& date) {
    int days = daysBeforeYear(date.year) - daysBeforeYear(1900);
    for (int month = 1; month < date.month; ++month) days += daysInMonth(date.year, month);
    // Behind January and February 1900 the count already holds the day that never was.
    if (date.year > 1900) ++days;
    return days + date.day;
}

/// The date of day 0 to lastDay.
constexpr Date dateOf(int day) {
    if (day == 0) return {1900, 1, 0};
    int year = 1900 + (day - 1) / 366;
    while (year < 9999 && dayNumber({year + 1, 1, 1}) <= day) ++year;
    int rest = day - dayNumber({year, 1, 1}) + 1;
    int month = 1;
    while (rest > daysInMonth(year, month)) rest -= daysInMonth(year, month++);
    return {year, month, rest};
}

/// 0 is Sunday. Before March 1900 one day off the real calendar, as the programs are.
constexpr int weekday(int day) {
    return (day + 6) % 7;
}

/// The date when it is in the calendar of 1900 to 9999, else nothing.
constexpr std::optional<int> checkedDayNumber(const Date& date) {
    if (date.year < 1900 || date.year > 9999 || date.month < 1 || date.month > 12) return {};
    if (date.day < 1 || date.day > daysInMonth(date.year, date.month)) return {};
    return dayNumber(date);
}

static_assert(dayNumber({1900, 3, 1}) == 61 && dayNumber({2024, 2, 29}) == 45351);
static_assert(dayNumber({9999, 12, 31}) == lastDay && dateOf(lastDay).day == 31);
static_assert(dateOf(60).month == 2 && dateOf(60).day == 29 && dateOf(366).year == 1900);

}  // namespace formula::calendar
