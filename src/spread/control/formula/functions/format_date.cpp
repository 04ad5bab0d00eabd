#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "spread/control/formula/calendar.h"
#include "spread/control/formula/functions/format_section.h"

namespace formula::number_format {
namespace {

constexpr std::array<std::string_view, 12> months{"January",   "February", "March",    "April",
                                                  "May",       "June",     "July",     "August",
                                                  "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> weekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};

/// A moment cut into what formats show of it.
struct Moment {
    calendar::Date date;
    int weekday;
    int64_t seconds;  ///< since day 0
    int fraction;     ///< of a second, in the decimals shown

    int hour() const { return static_cast<int>(seconds / 3600 % 24); }
    int minute() const { return static_cast<int>(seconds / 60 % 60); }
    int second() const { return static_cast<int>(seconds % 60); }
};

/// Rounded to `decimals` of a second, so that 23:59:59.9 does not show as 23:59:60.
std::optional<Moment> momentOf(double number, int decimals) {
    if (!(number >= 0 && number < calendar::lastDay + 1.0)) return std::nullopt;
    const int64_t parts = decimals == 3 ? 1000 : decimals == 2 ? 100 : decimals == 1 ? 10 : 1;
    const double wholeDays = std::floor(number);
    const double ofDay =
        (number - wholeDays) * calendar::secondsPerDay * static_cast<double>(parts);
    const auto units =
        static_cast<int64_t>(wholeDays) * calendar::secondsPerDay * parts + std::llround(ofDay);
    Moment moment{};
    moment.seconds = units / parts;
    moment.fraction = static_cast<int>(units % parts);
    const auto day = static_cast<int>(moment.seconds / calendar::secondsPerDay);
    if (day > calendar::lastDay) return std::nullopt;
    moment.date = calendar::dateOf(day);
    moment.weekday = calendar::weekday(day);
    return moment;
}

void appendPadded(std::string& text, int64_t number, int width) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    const auto size = static_cast<int>(end - digits);
    if (size < width) text.append(static_cast<size_t>(width - size), '0');
    text.append(digits, end);
}

/// 1 or 2 letters: the number; 3: the short name; 5: `firstOnly` its initial; else the name.
void appendName(std::string& text, std::string_view name, int number, int count,
                bool initialAtFive) {
    if (count <= 2)
        appendPadded(text, number, count);
    else if (count == 3)
        text += name.substr(0, 3);
    else
        text += initialAtFive && count == 5 ? name.substr(0, 1) : name;
}

void appendHalfDay(std::string& text, const Piece& piece, bool isMorning) {
    if (piece.count == 2)
        text += isMorning ? "AM" : "PM";
    else if (piece.symbol == 'a')
        text += isMorning ? 'a' : 'p';
    else
        text += isMorning ? 'A' : 'P';
}

void appendPiece(std::string& text, const Piece& piece, const Moment& moment, bool halfDays) {
    const auto& [date, weekday, seconds, fraction] = moment;
    const int two = piece.count > 1 ? 2 : 1;
    switch (piece.part) {
        case Part::year:
            appendPadded(text, piece.count <= 2 ? date.year % 100 : date.year,
                         piece.count <= 2 ? 2 : 4);
            break;
        case Part::month:
            appendName(text, months[static_cast<size_t>(date.month - 1)], date.month, piece.count,
                       true);
            break;
        case Part::day:
            appendName(text, weekdays[static_cast<size_t>(weekday)], date.day, piece.count, false);
            break;
        case Part::hour:
            appendPadded(text, halfDays ? (moment.hour() + 11) % 12 + 1 : moment.hour(), two);
            break;
        case Part::minute:
            appendPadded(text, moment.minute(), two);
            break;
        case Part::second:
            appendPadded(text, moment.second(), two);
            break;
        case Part::elapsedHours:
            appendPadded(text, seconds / 3600, piece.count);
            break;
        case Part::elapsedMinutes:
            appendPadded(text, seconds / 60, piece.count);
            break;
        case Part::elapsedSeconds:
            appendPadded(text, seconds, piece.count);
            break;
        case Part::secondFraction:
            text += '.';
            if (piece.count > 0) appendPadded(text, fraction, piece.count);
            break;
        case Part::halfDay:
            appendHalfDay(text, piece, moment.hour() < 12);
            break;
        default:
            text += piece.text;
    }
}

}  // namespace

std::optional<std::string> writeDate(const Section& section, double number) {
    int decimals = 0;
    bool halfDays = false;
    for (const Piece& piece : section.pieces) {
        if (piece.part == Part::secondFraction) decimals = std::max(decimals, piece.count);
        halfDays = halfDays || piece.part == Part::halfDay;
    }
    const auto moment = momentOf(number, decimals);
    if (!moment) return std::nullopt;
    std::string text;
    for (const Piece& piece : section.pieces) appendPiece(text, piece, *moment, halfDays);
    return text;
}

}  // namespace formula::number_format
