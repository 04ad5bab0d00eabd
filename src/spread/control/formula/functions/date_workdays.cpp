#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <vector>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/date_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

/// The days of the week off, Sunday first, and the days off besides, sorted and each once.
struct WorkCalendar {
    std::array<bool, 7> isOff{true, false, false, false, false, false, true};
    std::vector<int> holidays;

    bool isWorkday(int day) const {
        return !isOff[static_cast<size_t>(calendar::weekday(day))] &&
               !std::binary_search(holidays.begin(), holidays.end(), day);
    }
    int workdaysPerWeek() const {
        return 7 - static_cast<int>(std::count(isOff.begin(), isOff.end(), true));
    }
};

/// Weekends by number: 1 Saturday and Sunday, 2 Sunday and Monday, … 7; 11 Sunday alone, … 17. By
/// text: seven digits from Monday on, 1 for a day off.
std::optional<ErrorCode> readWeekend(const Value& value, WorkCalendar& work) {
    if (value.isError()) return value.error();
    if (value.isText()) {
        const std::string_view text = value.text();
        if (text.size() != 7 || text.find_first_not_of("01") != std::string_view::npos)
            return ErrorCode::value;
        for (size_t i = 0; i < 7; ++i) work.isOff[(i + 1) % 7] = text[i] == '1';
        return std::nullopt;
    }
    const Result<double> number = toNumber(value);
    if (!number) return number.error();
    const int kind = ArgumentReader::toWhole(*number);
    const bool isPair = kind >= 1 && kind <= 7;
    if (!isPair && (kind < 11 || kind > 17)) return ErrorCode::num;
    work.isOff.fill(false);
    const int first = isPair ? kind + 5 : kind - 11;
    work.isOff[static_cast<size_t>(first % 7)] = true;
    if (isPair) work.isOff[static_cast<size_t>((first + 1) % 7)] = true;
    return std::nullopt;
}

std::optional<ErrorCode> readHolidays(const Calculation& c, const Value& argument,
                                      WorkCalendar& work) {
    std::optional<ErrorCode> error;
    c.each(argument, [&](const Value& value) {
        if (error || value.isEmpty() || value.isMissing()) return;
        const Result<double> number = toNumber(value);
        if (!number)
            error = number.error();
        else if (!isInCalendar(*number))
            error = ErrorCode::num;
        else
            work.holidays.push_back(wholeDay(*number));
    });
    c.spend(50 * static_cast<int64_t>(work.holidays.size()));
    std::sort(work.holidays.begin(), work.holidays.end());
    work.holidays.erase(std::unique(work.holidays.begin(), work.holidays.end()),
                        work.holidays.end());
    return error;
}

/// A call of one of the four: from a day, a second number, and the calendar to count by.
struct WorkCall {
    int start = 0;
    double second = 0;
    WorkCalendar work;
};

/// The weekend is argument 2 when `hasWeekend`; holidays are the argument behind.
Result<WorkCall> readCall(Calculation& c, Arguments args, bool hasWeekend) {
    ArgumentReader read(c, args);
    const double start = read.strictNumber(0);
    WorkCall call;
    call.second = read.strictNumber(1);
    if (read.failed()) return read.error();
    if (!isInCalendar(start)) return ErrorCode::num;
    call.start = wholeDay(start);
    if (hasWeekend && read.has(2))
        if (const auto error = readWeekend(args[2], call.work)) return *error;
    const size_t holidays = hasWeekend ? 3 : 2;
    if (read.has(holidays))
        if (const auto error = readHolidays(c, args[holidays], call.work)) return *error;
    return call;
}

/// Workdays from `first` to `last`, both included; first <= last.
int countWorkdays(int first, int last, const WorkCalendar& work) {
    const int weeks = (last - first + 1) / 7;
    int count = weeks * work.workdaysPerWeek();
    const auto isOff = [&work](int day) {
        return work.isOff[static_cast<size_t>(calendar::weekday(day))];
    };
    for (int day = first + weeks * 7; day <= last; ++day) count += !isOff(day);
    for (const int holiday : work.holidays)
        count -= holiday >= first && holiday <= last && !isOff(holiday);
    return count;
}

Value workdaysBetween(Calculation& c, Arguments args, bool hasWeekend) {
    const Result<WorkCall> call = readCall(c, args, hasWeekend);
    if (!call) return call.error();
    if (!isInCalendar(call->second)) return ErrorCode::num;
    const int end = wholeDay(call->second);
    const int count =
        countWorkdays(std::min(call->start, end), std::max(call->start, end), call->work);
    return static_cast<double>(end < call->start ? -count : count);
}

Value workdayAfter(Calculation& c, Arguments args, bool hasWeekend) {
    const Result<WorkCall> call = readCall(c, args, hasWeekend);
    if (!call) return call.error();
    if (call->work.workdaysPerWeek() == 0) return ErrorCode::value;
    const int count = ArgumentReader::toWhole(call->second);
    const int step = count < 0 ? -1 : 1;
    int day = call->start;
    for (int left = std::abs(count); left > 0;) {
        if (!c.spend(20)) return ErrorCode::num;
        day += step;
        if (day < 0 || day > calendar::lastDay) return ErrorCode::num;
        if (call->work.isWorkday(day)) --left;
    }
    return static_cast<double>(day);
}

}  // namespace

Value networkDays(Calculation& c, Arguments args) {
    return workdaysBetween(c, args, false);
}

Value networkDaysIntl(Calculation& c, Arguments args) {
    return workdaysBetween(c, args, true);
}

Value workday(Calculation& c, Arguments args) {
    return workdayAfter(c, args, false);
}

Value workdayIntl(Calculation& c, Arguments args) {
    return workdayAfter(c, args, true);
}

}  // namespace formula
