
#include "spread/control/formula/date_text.h"
#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/date_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

/// `part` of the date in the first argument.
template <int calendar::Date::*part>
Value partOfDate(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double number = read.number(0);
    if (read.failed()) return read.error();
    if (!isInCalendar(number)) return ErrorCode::num;
    return static_cast<double>(calendar::dateOf(wholeDay(number)).*part);
}

/// The seconds of the day; the nearest ones when `isRounded`, else cut to the millisecond that has
/// been reached.
Result<int> secondsOfDay(Calculation& c, Arguments args, bool isRounded) {
    ArgumentReader read(c, args);
    const double number = read.number(0);
    if (read.failed()) return read.error();
    if (!isInCalendar(number)) return ErrorCode::num;
    const double ofDay = (number - std::floor(number)) * calendar::secondsPerDay;
    const double shift = isRounded ? 0.5 : 0.0005;
    return static_cast<int>(ofDay + shift) % calendar::secondsPerDay;
}

Result<DateText> readDate(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    if (read.failed()) return read.error();
    const auto found = readDateText(text);
    return found ? Result<DateText>(*found) : Result<DateText>(ErrorCode::value);
}

/// Days since the last day on which weeks begin; `firstDay` 0 is Sunday.
int daysIntoWeek(int day, int firstDay) {
    return (calendar::weekday(day) - firstDay + 7) % 7;
}

int isoWeek(int day) {
    // A week belongs to the year that its Thursday lies in.
    const int thursday = day - daysIntoWeek(day, 1) + 3;
    if (thursday < 1) return 52;  // of 1899
    const int newYear = calendar::dayNumber({calendar::dateOf(thursday).year, 1, 1});
    return (thursday - newYear) / 7 + 1;
}

/// The weekday (0 is Sunday) on which the weeks of a numbering 1, 2 or 11 to 17 begin; below 0 for
/// any other number.
int firstDayOfWeek(int numbering) {
    if (numbering == 1 || numbering == 2) return numbering - 1;
    return numbering >= 11 && numbering <= 17 ? (numbering - 10) % 7 : -1;
}

}  // namespace

Value date(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    int year = read.whole(0);
    const double month = std::trunc(read.number(1));
    const double day = std::trunc(read.number(2));
    if (read.failed()) return read.error();
    if (year < 0 || year > 9999 || std::fabs(month) > 120000 || std::fabs(day) > 4e6)
        return ErrorCode::num;
    if (year < 1900) year += 1900;
    const int months = year * 12 + static_cast<int>(month) - 1;
    if (months < 1900 * 12 || months > 9999 * 12 + 11) return ErrorCode::num;
    return dayOrError(calendar::dayNumber({months / 12, months % 12 + 1, 0}) + day);
}

Value dateValue(Calculation& c, Arguments args) {
    const auto found = readDate(c, args);
    if (!found) return found.error();
    return static_cast<double>(found->day.value_or(0));
}

Value timeValue(Calculation& c, Arguments args) {
    const auto found = readDate(c, args);
    if (!found) return found.error();
    const double time = found->time.value_or(0);
    return time - std::floor(time);
}

Value time(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    constexpr double most = 32767;
    const double hours = std::trunc(read.number(0));
    const double minutes = std::trunc(read.number(1));
    const double seconds = std::trunc(read.number(2));
    if (read.failed()) return read.error();
    if (hours > most || minutes > most || seconds > most) return ErrorCode::num;
    const double total = hours * 3600 + minutes * 60 + seconds;
    if (total < 0) return ErrorCode::num;
    return std::fmod(total, calendar::secondsPerDay) / calendar::secondsPerDay;
}

Value now(Calculation& c, Arguments) {
    return c.now();
}

Value today(Calculation& c, Arguments) {
    return std::floor(c.now());
}

Value year(Calculation& c, Arguments args) {
    return partOfDate<&calendar::Date::year>(c, args);
}

Value month(Calculation& c, Arguments args) {
    return partOfDate<&calendar::Date::month>(c, args);
}

Value day(Calculation& c, Arguments args) {
    return partOfDate<&calendar::Date::day>(c, args);
}

Value hour(Calculation& c, Arguments args) {
    const Result<int> seconds = secondsOfDay(c, args, false);
    return seconds ? Value(*seconds / 3600) : Value(seconds.error());
}

Value minute(Calculation& c, Arguments args) {
    const Result<int> seconds = secondsOfDay(c, args, false);
    return seconds ? Value(*seconds / 60 % 60) : Value(seconds.error());
}

Value second(Calculation& c, Arguments args) {
    const Result<int> seconds = secondsOfDay(c, args, true);
    return seconds ? Value(*seconds % 60) : Value(seconds.error());
}

Value weekday(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double number = read.number(0);
    const int numbering = args.size() > 1 ? read.whole(1) : 1;
    if (read.failed()) return read.error();
    if (!isInCalendar(number)) return ErrorCode::num;
    if (numbering == 3) return static_cast<double>(daysIntoWeek(wholeDay(number), 1));
    const int firstDay = firstDayOfWeek(numbering);
    if (firstDay < 0) return ErrorCode::num;
    return daysIntoWeek(wholeDay(number), firstDay) + 1.0;
}

Value weekNumber(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double number = read.strictNumber(0);
    const int numbering = args.size() > 1 ? read.strictWhole(1) : 1;
    if (read.failed()) return read.error();
    if (!isInCalendar(number)) return ErrorCode::num;
    const int day = wholeDay(number);
    if (numbering == 21) return static_cast<double>(isoWeek(day));
    const int firstDay = firstDayOfWeek(numbering);
    if (firstDay < 0) return ErrorCode::num;
    const int newYear = calendar::dayNumber({calendar::dateOf(day).year, 1, 1});
    return (day - newYear + daysIntoWeek(newYear, firstDay)) / 7 + 1.0;
}

Value isoWeekNumber(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double number = read.number(0);
    if (read.failed()) return read.error();
    if (!isInCalendar(number)) return ErrorCode::num;
    return static_cast<double>(isoWeek(wholeDay(number)));
}

}  // namespace formula
