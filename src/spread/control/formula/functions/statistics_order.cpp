// What depends on the order of numbers: the least, the middle, ranks and percentiles.

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"
#include "spread/control/formula/functions/rounding.h"

namespace formula {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

template <NonNumbers nonNumbers>
Value least(Calculation& c, std::span<const Value> args) {
    double result = infinity;
    const auto error = eachNumber(c, args, nonNumbers,
                                  [&](double x, int64_t = 1) { result = std::min(result, x); });
    if (error) return *error;
    return result < infinity ? Value(result) : Value(0.0);
}

template <NonNumbers nonNumbers>
Value greatest(Calculation& c, std::span<const Value> args) {
    double result = -infinity;
    const auto error = eachNumber(c, args, nonNumbers,
                                  [&](double x, int64_t = 1) { result = std::max(result, x); });
    if (error) return *error;
    return result > -infinity ? Value(result) : Value(0.0);
}

using Numbers = std::vector<double>;

/// The number with `place` smaller ones before it; moves others around.
double nth(Numbers& numbers, size_t place) {
    const auto at = numbers.begin() + static_cast<std::ptrdiff_t>(place);
    std::nth_element(numbers.begin(), at, numbers.end());
    return *at;
}

/// The number at a place from 0 in ascending order; between two numbers in proportion.
double atPlace(Numbers& numbers, double place) {
    const auto lower = static_cast<size_t>(place);
    const double fraction = place - static_cast<double>(lower);
    const double below = nth(numbers, lower);
    if (fraction == 0 || lower + 1 >= numbers.size()) return below;
    const auto next = numbers.begin() + static_cast<std::ptrdiff_t>(lower) + 1;
    return below + fraction * (*std::min_element(next, numbers.end()) - below);
}

Value median(Calculation& c, std::span<const Value> args) {
    Numbers numbers;
    if (const auto error = collectNumbers(c, args, numbers)) return *error;
    if (numbers.empty()) return ErrorCode::num;
    return numberOrError(atPlace(numbers, static_cast<double>(numbers.size() - 1) / 2));
}

Value mode(Calculation& c, std::span<const Value> args) {
    for (const Value& argument : args)
        if (argument.isText() || argument.isBoolean()) return ErrorCode::value;
    Numbers numbers;
    if (const auto error = collectNumbers(c, args, numbers)) return *error;
    c.spend(50 * static_cast<int64_t>(numbers.size()));
    Numbers sorted = numbers;
    std::sort(sorted.begin(), sorted.end());
    Numbers mostFrequent;
    size_t highest = 2;
    for (auto run = sorted.begin(); run != sorted.end();) {
        const auto end = std::upper_bound(run, sorted.end(), *run);
        const auto count = static_cast<size_t>(end - run);
        if (count > highest) mostFrequent.clear();
        if (count >= highest) mostFrequent.push_back(*run);
        highest = std::max(highest, count);
        run = end;
    }
    if (mostFrequent.empty()) return ErrorCode::na;
    // Of several that are as frequent, the one that stands first.
    return *std::find_if(numbers.begin(), numbers.end(), [&](double x) {
        return std::binary_search(mostFrequent.begin(), mostFrequent.end(), x);
    });
}

/// The numbers of the first argument and the number given as the second.
struct NumbersAndOne {
    Numbers numbers;
    double one = 0;

    std::optional<ErrorCode> read(const Calculation& c, std::span<const Value> args) {
        if (const auto error = collectNumbers(c, args.first(1), numbers)) return error;
        const Result<double> second = numberOf(args[1]);
        if (!second) return second.error();
        one = *second;
        return std::nullopt;
    }
};

template <bool fromTop>
Value ranked(Calculation& c, std::span<const Value> args) {
    NumbersAndOne given;
    if (const auto error = given.read(c, args)) return *error;
    const auto count = static_cast<double>(given.numbers.size());
    const double rank = fromTop ? std::ceil(given.one) : std::floor(given.one);
    if (!(rank >= 1 && rank <= count)) return ErrorCode::num;
    return nth(given.numbers, static_cast<size_t>(fromTop ? count - rank : rank - 1));
}

/// The number below which the share `share` of all numbers lies.
Value percentileInclusive(Numbers& numbers, double share) {
    if (numbers.empty() || !(share >= 0 && share <= 1)) return ErrorCode::num;
    return numberOrError(atPlace(numbers, share * static_cast<double>(numbers.size() - 1)));
}

Value percentileExclusive(Numbers& numbers, double share) {
    const auto count = static_cast<double>(numbers.size());
    const double place = share * (count + 1) - 1;
    if (!(share > 0 && share < 1) || place < 0 || place > count - 1) return ErrorCode::num;
    return numberOrError(atPlace(numbers, place));
}

using Percentile = Value (*)(Numbers&, double);

template <Percentile compute>
Value percentile(Calculation& c, std::span<const Value> args) {
    NumbersAndOne given;
    if (const auto error = given.read(c, args)) return *error;
    return compute(given.numbers, given.one);
}

template <Percentile compute>
Value quartile(Calculation& c, std::span<const Value> args) {
    NumbersAndOne given;
    if (const auto error = given.read(c, args)) return *error;
    return compute(given.numbers, std::trunc(given.one) / 4);
}

Value trimmedMean(Calculation& c, std::span<const Value> args) {
    NumbersAndOne given;
    if (const auto error = given.read(c, args)) return *error;
    Numbers& numbers = given.numbers;
    if (numbers.empty() || !(given.one >= 0 && given.one < 1)) return ErrorCode::num;
    const double share = given.one * static_cast<double>(numbers.size()) / 2;
    const auto cut = static_cast<std::ptrdiff_t>(wholeBelow(share));
    std::sort(numbers.begin(), numbers.end());
    double sum = 0;
    for (auto x = numbers.begin() + cut; x != numbers.end() - cut; ++x) sum += *x;
    return numberOrError(sum / static_cast<double>(numbers.end() - numbers.begin() - 2 * cut));
}

/// The rank of a number among those of an area; equal ones share the best rank, or the average of
/// theirs. The third argument other than 0 counts from the least.
template <bool averaged>
Value rank(Calculation& c, std::span<const Value> args) {
    const Result<double> number = numberOf(args[0]);
    if (!number) return number.error();
    const Result<double> order = args.size() > 2 ? numberOf(args[2]) : Result<double>(0);
    if (!order) return order.error();
    double before = 0;
    double equal = 0;
    const auto error = eachNumber(c, args.subspan(1, 1), NonNumbers::ignored, [&](double x) {
        before += (*order != 0 ? x < *number : x > *number) ? 1 : 0;
        equal += x == *number ? 1 : 0;
    });
    if (error) return *error;
    if (equal == 0) return ErrorCode::na;
    return before + 1 + (averaged ? (equal - 1) / 2 : 0);
}

/// Where `x` stands among sorted numbers, from 0; between two of them in proportion.
Result<double> placeOf(const Numbers& sorted, double x) {
    if (sorted.empty() || !(x >= sorted.front() && x <= sorted.back())) return ErrorCode::na;
    const auto at = std::lower_bound(sorted.begin(), sorted.end(), x);
    const auto place = static_cast<double>(at - sorted.begin());
    if (*at == x) return place;
    const double below = *(at - 1);
    return place - 1 + (x - below) / (*at - below);
}

/// The share of numbers below a number, cut off after a count of significant digits (3).
template <bool exclusive>
Value percentRank(Calculation& c, std::span<const Value> args) {
    NumbersAndOne given;
    if (const auto error = given.read(c, args)) return *error;
    const Result<double> digits = args.size() > 2 ? numberOf(args[2]) : Result<double>(3);
    if (!digits) return digits.error();
    if (given.numbers.empty() || *digits < 1) return ErrorCode::num;
    std::sort(given.numbers.begin(), given.numbers.end());
    const Result<double> place = placeOf(given.numbers, given.one);
    if (!place) return place.error();
    const auto count = static_cast<double>(given.numbers.size());
    double share = exclusive ? (*place + 1) / (count + 1) : *place / (count - 1);
    if (!exclusive && count == 1) share = 1;
    return numberOrError(roundTowardZero(share, static_cast<int>(std::min(*digits, 300.0))));
}

constexpr auto ignored = NonNumbers::ignored;
constexpr auto counted = NonNumbers::counted;
constexpr std::string_view numbers = "number1, [number2], …";
constexpr std::string_view values = "value1, [value2], …";

constexpr FunctionSpec rows[] = {
    {"MIN", 1, anyCount, "a", least<ignored>, givesOne, numbers,
     "The least number, 0 when there is none."},
    {"MAX", 1, anyCount, "a", greatest<ignored>, givesOne, numbers,
     "The greatest number, 0 when there is none."},
    {"MINA", 1, anyCount, "a", least<counted>, plain, values,
     "The least value; texts count as 0, TRUE as 1."},
    {"MAXA", 1, anyCount, "a", greatest<counted>, plain, values,
     "The greatest value; texts count as 0, TRUE as 1."},
    {"MEDIAN", 1, anyCount, "a", median, plain, numbers,
     "The number in the middle of all; of an even count the average of the middle two."},
    {"MODE", 1, anyCount, "a", mode, plain, numbers,
     "The most frequent number; #N/A when none comes twice."},
    {"MODE.SNGL", 1, anyCount, "a", mode, plain, numbers,
     "The most frequent number; #N/A when none comes twice."},
    {"LARGE", 2, 2, "rv", ranked<true>, plain, "numbers, rank",
     "The number of that rank counted from the greatest."},
    {"SMALL", 2, 2, "rv", ranked<false>, plain, "numbers, rank",
     "The number of that rank counted from the least."},
    {"RANK", 2, 3, "vrv", rank<false>, plain, "number, numbers, [order]",
     "The rank of a number, from the greatest or, with an order other than 0, from the least."},
    {"RANK.EQ", 2, 3, "vrv", rank<false>, plain, "number, numbers, [order]",
     "The rank of a number, from the greatest or, with an order other than 0, from the least."},
    {"RANK.AVG", 2, 3, "vrv", rank<true>, plain, "number, numbers, [order]",
     "As RANK; equal numbers get the average of their ranks."},
    {"PERCENTILE", 2, 2, "rv", percentile<percentileInclusive>, plain, "numbers, share",
     "The number below which a share from 0 to 1 of the numbers lies."},
    {"PERCENTILE.INC", 2, 2, "rv", percentile<percentileInclusive>, plain, "numbers, share",
     "The number below which a share from 0 to 1 of the numbers lies."},
    {"PERCENTILE.EXC", 2, 2, "rv", percentile<percentileExclusive>, plain, "numbers, share",
     "The number below which a share of the numbers lies, 0 and 1 excluded."},
    {"QUARTILE", 2, 2, "rv", quartile<percentileInclusive>, plain, "numbers, quarter",
     "The number below which 0 to 4 quarters of the numbers lie."},
    {"QUARTILE.INC", 2, 2, "rv", quartile<percentileInclusive>, plain, "numbers, quarter",
     "The number below which 0 to 4 quarters of the numbers lie."},
    {"QUARTILE.EXC", 2, 2, "rv", quartile<percentileExclusive>, plain, "numbers, quarter",
     "The number below which 1 to 3 quarters of the numbers lie."},
    {"PERCENTRANK", 2, 3, "rvv", percentRank<false>, plain, "numbers, number, [digits]",
     "The share of the numbers below a number, from 0 to 1, cut off after 3 digits."},
    {"PERCENTRANK.INC", 2, 3, "rvv", percentRank<false>, plain, "numbers, number, [digits]",
     "The share of the numbers below a number, from 0 to 1, cut off after 3 digits."},
    {"PERCENTRANK.EXC", 2, 3, "rvv", percentRank<true>, plain, "numbers, number, [digits]",
     "The share of the numbers below a number, 0 and 1 excluded, cut off after 3 digits."},
    {"TRIMMEAN", 2, 2, "rv", trimmedMean, plain, "numbers, share",
     "The average without a share of the numbers, half of it at each end."},
};

}  // namespace

std::span<const FunctionSpec> orderFunctions() {
    return rows;
}

}  // namespace formula
