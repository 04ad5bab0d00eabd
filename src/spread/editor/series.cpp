#include "spread/editor/series.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core_api/text/number_text.h"
#include "spread/control/formula/calendar.h"

namespace editor {

namespace calendar = formula::calendar;

namespace {

// A date written in figures, year first ("2024-05-31") or last ("31.5.2024", "31/05/2024").
struct WrittenDate {
    int day = 0;  // number of the day in the calendar
    char separator = '-';
    bool yearFirst = false;
    bool twoFigures = false;  // "05", not "5"
};

std::optional<int> figures(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || text.size() > 4 || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number >= 0 ? std::optional(number) : std::nullopt;
}

std::optional<WrittenDate> readDate(std::string_view text) {
    const size_t first = text.find_first_of("-./");
    if (first == std::string_view::npos) return std::nullopt;
    const size_t second = text.find(text[first], first + 1);
    if (second == std::string_view::npos) return std::nullopt;
    const std::array<std::string_view, 3> parts{
        text.substr(0, first), text.substr(first + 1, second - first - 1), text.substr(second + 1)};
    const auto a = figures(parts[0]), b = figures(parts[1]), c = figures(parts[2]);
    if (!a || !b || !c) return std::nullopt;
    WrittenDate date{0, text[first], parts[0].size() == 4, parts[1].size() == 2};
    if (!date.yearFirst && parts[2].size() != 4) return std::nullopt;
    const calendar::Date read =
        date.yearFirst ? calendar::Date{*a, *b, *c} : calendar::Date{*c, *b, *a};
    const auto day = calendar::checkedDayNumber(read);
    if (!day) return std::nullopt;
    date.day = *day;
    if (parts[date.yearFirst ? 2 : 0].size() == 2 && parts[1][0] != '0' && parts[1].size() == 2)
        date.twoFigures = true;
    return date;
}

std::string twoPlaces(int number, bool twoFigures) {
    const std::string text = std::to_string(number);
    return twoFigures && text.size() < 2 ? "0" + text : text;
}

std::string writeDate(const WrittenDate& like, int day) {
    const calendar::Date date = calendar::dateOf(std::clamp(day, 1, calendar::lastDay));
    const std::string year = std::to_string(date.year);
    const std::string month = twoPlaces(date.month, like.twoFigures);
    const std::string dayText = twoPlaces(date.day, like.twoFigures);
    return like.yearFirst ? year + like.separator + month + like.separator + dayText
                          : dayText + like.separator + month + like.separator + year;
}

int months(const calendar::Date& date) {
    return date.year * 12 + date.month - 1;
}

// The same day so many months on, the last of a shorter month.
int monthsLater(int day, int count) {
    const calendar::Date date = calendar::dateOf(day);
    const int all = std::clamp(months(date) + count, 1900 * 12, 9999 * 12 + 11);
    const int year = all / 12, month = all % 12 + 1;
    return calendar::dayNumber(
        {year, month, std::min(date.day, calendar::daysInMonth(year, month))});
}

struct NumberedText {
    std::string_view prefix;
    long long number = 0;
    size_t digits = 0;
};

std::optional<NumberedText> readNumbered(std::string_view text) {
    constexpr size_t mostDigits = 15;
    size_t start = text.size();
    while (start > 0 && text[start - 1] >= '0' && text[start - 1] <= '9') --start;
    const size_t digits = text.size() - start;
    if (digits == 0 || digits > mostDigits) return std::nullopt;
    // "08" keeps its width, "8" and "12" are as long as they need to be.
    NumberedText read{text.substr(0, start), 0, text[start] == '0' ? digits : 1};
    std::from_chars(text.data() + start, text.data() + text.size(), read.number);
    return read;
}

// Below zero there is nothing to count: the number stays at 0.
std::string writeNumbered(std::string_view prefix, long long number, size_t digits) {
    std::string text = std::to_string(std::max(number, 0LL));
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return std::string(prefix) + text;
}

}  // namespace

Series::Series(std::vector<SeriesValue> known) : m_known(std::move(known)) {
    startNumbers() || startDates() || startNumberedTexts();
}

// One number comes again; more go on along their line.
bool Series::startNumbers() {
    for (const SeriesValue& value : m_known)
        if (!std::holds_alternative<double>(value)) return false;
    const auto n = static_cast<double>(m_known.size());
    if (m_known.size() < 2) return false;
    const auto number = [&](size_t i) { return std::get<double>(m_known[i]); };
    const double step = (number(m_known.size() - 1) - number(0)) / (n - 1);
    bool isEven = true;
    for (size_t i = 0; i < m_known.size(); ++i) {
        const double expected = number(0) + step * static_cast<double>(i);
        if (std::abs(number(i) - expected) > 1e-9 * (1 + std::abs(step))) isEven = false;
    }
    if (isEven) {
        m_rule = Numbers{number(0), step};
        return true;
    }
    double sumX = 0, sumY = 0, sumXY = 0, sumXX = 0;
    for (size_t i = 0; i < m_known.size(); ++i) {
        const auto x = static_cast<double>(i);
        sumX += x;
        sumY += number(i);
        sumXY += x * number(i);
        sumXX += x * x;
    }
    const double slope = (n * sumXY - sumX * sumY) / (n * sumXX - sumX * sumX);
    m_rule = Numbers{(sumY - slope * sumX) / n, slope};
    return true;
}

// Dates go on in days, or in months when all have the same day.
bool Series::startDates() {
    std::vector<int> days;
    for (const SeriesValue& value : m_known) {
        const std::string* text = std::get_if<std::string>(&value);
        const auto date = text ? readDate(*text) : std::nullopt;
        if (!date) return false;
        days.push_back(date->day);
    }
    Dates rule{days[0], 1, 0, std::get<std::string>(m_known[0])};
    if (days.size() > 1) {
        const calendar::Date a = calendar::dateOf(days[0]), b = calendar::dateOf(days[1]);
        if (a.day == b.day && months(a) != months(b)) {
            rule.stepMonths = months(b) - months(a);
            rule.stepDays = 0;
        } else {
            rule.stepDays = days[1] - days[0];
        }
    }
    const auto expected = [&](int i) {
        return rule.stepMonths ? monthsLater(days[0], i * rule.stepMonths)
                               : days[0] + i * rule.stepDays;
    };
    for (size_t i = 0; i < days.size(); ++i)
        if (days[i] != expected(static_cast<int>(i))) return false;
    m_rule = rule;
    return true;
}

bool Series::startNumberedTexts() {
    std::vector<NumberedText> all;
    for (const SeriesValue& value : m_known) {
        const std::string* text = std::get_if<std::string>(&value);
        const auto read = text ? readNumbered(*text) : std::nullopt;
        if (!read || (!all.empty() && read->prefix != all[0].prefix)) return false;
        all.push_back(*read);
    }
    const long long step = all.size() > 1 ? all[1].number - all[0].number : 1;
    for (size_t i = 0; i < all.size(); ++i)
        if (all[i].number != all[0].number + step * static_cast<long long>(i)) return false;
    size_t digits = 1;
    for (const NumberedText& each : all) digits = std::max(digits, each.digits);
    m_rule = NumberedTexts{std::string(all[0].prefix), all[0].number, step, digits};
    return true;
}

SeriesValue Series::at(int index) const {
    if (const auto* numbers = std::get_if<Numbers>(&m_rule))
        return roundAsWritten(numbers->first + numbers->step * index, 12);
    if (const auto* dates = std::get_if<Dates>(&m_rule)) {
        const int day = dates->stepMonths ? monthsLater(dates->firstDay, index * dates->stepMonths)
                                          : dates->firstDay + index * dates->stepDays;
        return writeDate(*readDate(dates->pattern), day);
    }
    if (const auto* numbered = std::get_if<NumberedTexts>(&m_rule))
        return writeNumbered(numbered->prefix, numbered->first + numbered->step * index,
                             numbered->digits);
    return repeated(index);
}

SeriesValue Series::repeated(int index) const {
    const int count = static_cast<int>(m_known.size());
    const int turn = index >= 0 ? index / count : -((-index + count - 1) / count);
    const SeriesValue& value = m_known[static_cast<size_t>(index - turn * count)];
    const std::string* text = std::get_if<std::string>(&value);
    const auto numbered = text ? readNumbered(*text) : std::nullopt;
    if (!numbered || count == 1) return value;
    return writeNumbered(numbered->prefix, numbered->number + turn, numbered->digits);
}

}  // namespace editor
