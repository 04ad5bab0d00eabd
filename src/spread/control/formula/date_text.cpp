#include "spread/control/formula/date_text.h"

#include <array>
#include <charconv>

#include "platform/clock.h"
#include "spread/control/formula/calendar.h"

namespace formula {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

int thisYear() {
    return platform::calendarTime().tm_year + 1900;
}

/// A run of digits, a word, or the separators between two of them.
struct Token {
    std::string_view text;
    int number = -1;  ///< of a run of digits
    bool isNumber() const { return number >= 0; }
};

/// A date in its parts: at most three numbers or words and what stands between them.
struct DateParts {
    std::array<Token, 3> parts;
    std::array<std::string_view, 2> separators;
    size_t count = 0;
};

bool isSeparator(std::string_view text) {
    const std::string_view core = trimmed(text);
    return core == "/" || core == "-" || core == "," || (core.empty() && !text.empty());
}

std::optional<DateParts> splitDate(std::string_view text) {
    DateParts found;
    size_t at = 0;
    while (at < text.size()) {
        if (found.count == found.parts.size()) return std::nullopt;
        const size_t start = at;
        Token& part = found.parts[found.count++];
        if (isDigit(text[at])) {
            while (at < text.size() && isDigit(text[at])) ++at;
            if (at - start > 4) return std::nullopt;
            std::from_chars(text.data() + start, text.data() + at, part.number);
        } else {
            while (at < text.size() && isLetter(text[at])) ++at;
            if (at == start) return std::nullopt;
        }
        part.text = text.substr(start, at - start);
        const size_t gap = at;
        while (at < text.size() && !isDigit(text[at]) && !isLetter(text[at])) ++at;
        if (at == text.size()) {
            if (gap != at) return std::nullopt;
            break;
        }
        // "31May2024" needs nothing between; everything else is a known separator.
        const std::string_view separator = text.substr(gap, at - gap);
        if (gap != at && !isSeparator(separator)) return std::nullopt;
        if (found.count > found.separators.size()) return std::nullopt;
        found.separators[found.count - 1] = separator;
    }
    return found;
}

/// 1900 to 9999 as written, two digits (or one) within 1930 to 2029; 0 for anything else.
int fullYear(const Token& token) {
    if (!token.isNumber()) return 0;
    if (token.text.size() <= 2) return token.number + (token.number < 30 ? 2000 : 1900);
    return token.text.size() == 4 ? token.number : 0;
}

bool isYear(const Token& token) {
    return token.text.size() == 4 || token.number > 31;
}

std::optional<int> dayOf(const Token& year, int month, const Token& day) {
    if (day.text.size() > 2) return std::nullopt;
    return calendar::checkedDayNumber({fullYear(year), month, day.number});
}

std::optional<int> firstOf(const Token& year, int month) {
    return calendar::checkedDayNumber({fullYear(year), month, 1});
}

/// "5/31" is a day of this year, but "2/30" and "Feb-30" can only be a month of 2030.
std::optional<int> dayThisYear(int month, const Token& day) {
    if (day.text.size() > 2) return std::nullopt;
    if (const auto found = calendar::checkedDayNumber({thisYear(), month, day.number}))
        return found;
    return firstOf(day, month);
}

/// All numbers: only "/" and "-" separate them, and the same one throughout.
std::optional<int> readNumericDate(const DateParts& date) {
    const std::string_view separator = trimmed(date.separators[0]);
    if (separator != "/" && separator != "-") return std::nullopt;
    const auto& [a, b, c] = date.parts;
    if (date.count == 2) {
        if (isYear(a)) return firstOf(a, b.number);
        if (isYear(b)) return firstOf(b, a.number);
        return dayThisYear(a.number, b);
    }
    if (trimmed(date.separators[1]) != separator) return std::nullopt;
    return isYear(a) ? dayOf(a, b.number, c) : dayOf(c, a.number, b);
}

/// One part is a month's name.
std::optional<int> readNamedDate(const DateParts& date) {
    const auto& [a, b, c] = date.parts;
    if (!a.isNumber()) {
        const int month = monthFromName(a.text);
        if (date.count == 3) return dayOf(c, month, b);
        return isYear(b) ? firstOf(b, month) : dayThisYear(month, b);
    }
    const int month = monthFromName(b.text);
    if (date.count == 3) return isYear(a) ? dayOf(a, month, c) : dayOf(c, month, a);
    return isYear(a) ? firstOf(a, month) : dayThisYear(month, a);
}

std::optional<int> readDate(std::string_view text) {
    const auto date = splitDate(text);
    if (!date || date->count < 2) return std::nullopt;
    size_t words = 0;
    for (size_t i = 0; i < date->count; ++i) words += !date->parts[i].isNumber();
    if (words == 0) return readNumericDate(*date);
    if (words > 1 || !(!date->parts[0].isNumber() || !date->parts[1].isNumber()))
        return std::nullopt;
    return readNamedDate(*date);
}

enum class Half { none, morning, evening };

/// Takes "AM", "PM", "A" or "P" off the end of `text`.
Half takeHalf(std::string_view& text) {
    std::string_view rest = text;
    if (!rest.empty() && (rest.back() == 'm' || rest.back() == 'M')) rest.remove_suffix(1);
    if (rest.empty()) return Half::none;
    const char letter = static_cast<char>(rest.back() | 0x20);
    if (letter != 'a' && letter != 'p') return Half::none;
    rest.remove_suffix(1);
    text = trimmed(rest);
    return letter == 'a' ? Half::morning : Half::evening;
}

struct Clock {
    std::array<int, 3> parts{};
    size_t count = 0;
    double fraction = 0;  ///< of the last part
};

std::optional<Clock> splitClock(std::string_view text) {
    Clock clock;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (true) {
        if (clock.count == clock.parts.size() || at == end || !isDigit(*at)) return std::nullopt;
        const auto [next, error] = std::from_chars(at, end, clock.parts[clock.count]);
        if (error != std::errc() || next - at > 4) return std::nullopt;
        ++clock.count;
        at = next;
        if (at == end) return clock;
        if (*at == '.' && clock.count > 1) break;
        if (*at++ != ':') return std::nullopt;
    }
    // std::from_chars reads ".5" and stops at a letter; only digits may follow here.
    for (const char* digit = at + 1; digit != end; ++digit)
        if (!isDigit(*digit)) return std::nullopt;
    if (at + 1 != end) std::from_chars(at, end, clock.fraction);
    return clock;
}

std::optional<double> readTime(std::string_view text) {
    // "6 PM" needs its blank: "6A" is a name more often than a time.
    const bool hasMinutes = text.find(':') != std::string_view::npos;
    if (!hasMinutes && text.find(' ') == std::string_view::npos) return std::nullopt;
    const Half half = takeHalf(text);
    auto clock = splitClock(text);
    if (!clock || (!hasMinutes && half == Half::none)) return std::nullopt;
    auto& [hours, minutes, seconds] = clock->parts;
    if (clock->fraction != 0 && clock->count == 2) {  // "12:30.5" is minutes and seconds
        seconds = minutes;
        minutes = hours;
        hours = 0;
    }
    if (minutes > 59 || seconds > 59) return std::nullopt;
    if (half != Half::none) {
        if (hours > 12) return std::nullopt;
        hours = hours % 12 + (half == Half::evening ? 12 : 0);
    }
    return (hours * 3600.0 + minutes * 60 + seconds + clock->fraction) / calendar::secondsPerDay;
}

}  // namespace

int monthFromName(std::string_view name) {
    constexpr std::array<std::string_view, 12> months{
        "january", "february", "march",     "april",   "may",      "june",
        "july",    "august",   "september", "october", "november", "december"};
    if (name.size() < 3) return 0;
    for (size_t m = 0; m < months.size(); ++m) {
        if (name.size() > months[m].size()) continue;
        size_t same = 0;
        while (same < name.size() && static_cast<char>(name[same] | 0x20) == months[m][same])
            ++same;
        if (same == name.size()) return static_cast<int>(m) + 1;
    }
    return 0;
}

std::optional<DateText> readDateText(std::string_view text) {
    text = trimmed(text);
    if (text.size() < 3 || text.size() > 40) return std::nullopt;
    if (const auto time = readTime(text)) return DateText{{}, time};
    if (const auto day = readDate(text)) return DateText{day, {}};
    for (size_t blank = text.find(' '); blank != std::string_view::npos;
         blank = text.find(' ', blank + 1)) {
        const std::string_view left = trimmed(text.substr(0, blank));
        const std::string_view right = trimmed(text.substr(blank));
        auto day = readDate(left);
        auto time = day ? readTime(right) : readTime(left);
        if (!day && time) day = readDate(right);
        if (day && time) return DateText{day, time};
    }
    return std::nullopt;
}

}  // namespace formula
