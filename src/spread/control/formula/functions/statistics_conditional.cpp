// COUNTIF and its kin: cells chosen by criteria in areas of the same shape.
//
// Areas may be whole columns, so nothing walks the places of an area; only stored cells are
// visited. A place where every area is empty matters only when every criterion matches an empty
// cell, and then only to the counting functions, which count the places that fail instead.

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/criteria.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

struct Condition {
    const Value* where;
    Criterion criterion;
};

class Conditions {
  public:
    /// From area, criterion, area, criterion, …; the areas must have the same shape as the first.
    explicit Conditions(std::span<const Value> pairs) {
        m_conditions.reserve(pairs.size() / 2);
        for (size_t i = 0; i + 1 < pairs.size(); i += 2)
            m_conditions.push_back({&pairs[i], Criterion(pairs[i + 1])});
        m_isComplete = pairs.size() % 2 == 0 &&
                       std::all_of(m_conditions.begin(), m_conditions.end(),
                                   [&](const Condition& c) { return hasShape(*c.where); });
    }

    bool isComplete() const { return m_isComplete; }
    /// An area that is an error itself.
    std::optional<ErrorCode> error() const {
        for (const Condition& condition : m_conditions)
            if (condition.where->isError()) return condition.where->error();
        return std::nullopt;
    }
    bool hasShape(const Value& area) const {
        const Value& first = *m_conditions.front().where;
        return Calculation::rows(area) == Calculation::rows(first) &&
               Calculation::cols(area) == Calculation::cols(first);
    }

    double count(const Calculation& c) const {
        double found = 0;
        if (const Condition* driver = findDriver()) {
            eachMatch(c, *driver, [&](int, int) { ++found; });
            return found;
        }
        const Value& first = *m_conditions.front().where;
        found = static_cast<double>(Calculation::rows(first)) * Calculation::cols(first);
        for (const Condition& condition : m_conditions)
            c.eachAt(*condition.where, [&](int row, int col, const Value& value) {
                if (!condition.criterion.matches(c, value) && matchAt(c, row, col, &condition))
                    --found;
            });
        return found;
    }

    /// Calls visit(value) for every stored cell of `values` whose place fulfils every condition.
    template <class Visit>
    void eachValue(const Calculation& c, const Value& values, Visit&& visit) const {
        if (const Condition* driver = findDriver()) {
            eachMatch(c, *driver, [&](int row, int col) { visit(c.element(values, row, col)); });
            return;
        }
        c.eachAt(values, [&](int row, int col, const Value& value) {
            if (matchAt(c, row, col, nullptr)) visit(value);
        });
    }

  private:
    /// A condition that only a stored cell can fulfil, so that its cells lead to every match.
    const Condition* findDriver() const {
        for (const Condition& condition : m_conditions)
            if (!condition.criterion.matchesEmpty()) return &condition;
        return nullptr;
    }

    template <class Visit>
    void eachMatch(const Calculation& c, const Condition& driver, Visit&& visit) const {
        c.eachAt(*driver.where, [&](int row, int col, const Value& value) {
            if (!driver.criterion.matches(c, value)) return;
            for (const Condition& condition : m_conditions)
                if (&condition != &driver && !holdsAt(c, condition, row, col)) return;
            visit(row, col);
        });
    }

    /// Whether the conditions before `end` (all when null) are fulfilled at that place.
    bool matchAt(const Calculation& c, int row, int col, const Condition* end) const {
        for (const Condition& condition : m_conditions) {
            if (&condition == end) break;
            if (!holdsAt(c, condition, row, col)) return false;
        }
        return true;
    }

    static bool holdsAt(const Calculation& c, const Condition& condition, int row, int col) {
        c.spend(5);
        return condition.criterion.matches(c, c.element(*condition.where, row, col));
    }

    std::vector<Condition> m_conditions;
    bool m_isComplete = false;
};

/// The area of the shape of `shape` whose first cell is that of `values`.
Value reshaped(const Value& values, const Value& shape) {
    if (!values.isArea()) return values;
    Area area = values.area();
    area.row2 = std::min(area.row1 + Calculation::rows(shape) - 1, maxRows);
    area.col2 = static_cast<uint16_t>(std::min(area.col1 + Calculation::cols(shape) - 1, maxCols));
    return Value::area(area);
}

/// What the chosen numbers come to.
struct Tally {
    double sum = 0;
    double count = 0;
    double least = std::numeric_limits<double>::infinity();
    double greatest = -std::numeric_limits<double>::infinity();
    std::optional<ErrorCode> error;

    void add(const Value& value) {
        if (value.isNumber()) {
            const double x = value.number();
            sum += x;
            ++count;
            least = std::min(least, x);
            greatest = std::max(greatest, x);
        } else if (value.isError() && !error) {
            error = value.error();
        }
    }
};

Value sumOf(const Tally& tally) {
    return numberOrError(tally.sum);
}
Value averageOf(const Tally& tally) {
    return tally.count > 0 ? numberOrError(tally.sum / tally.count) : Value(ErrorCode::div0);
}
Value leastOf(const Tally& tally) {
    return tally.count > 0 ? Value(tally.least) : Value(0.0);
}
Value greatestOf(const Tally& tally) {
    return tally.count > 0 ? Value(tally.greatest) : Value(0.0);
}

using Summary = Value (*)(const Tally&);

Value summarize(const Calculation& c, const Conditions& conditions, const Value& values,
                Summary summary) {
    if (values.isError()) return values.error();
    if (const auto error = conditions.error()) return *error;
    Tally tally;
    conditions.eachValue(c, values, [&](const Value& value) { tally.add(value); });
    return tally.error ? Value(*tally.error) : summary(tally);
}

/// SUMIF, AVERAGEIF: area, criterion and, when it is another, the area of the numbers.
template <Summary summary>
Value withOneCondition(Calculation& c, std::span<const Value> args) {
    const bool hasValues = args.size() > 2 && !args[2].isMissing();
    const Value values = hasValues ? reshaped(args[2], args[0]) : args[0];
    return summarize(c, Conditions(args.first(2)), values, summary);
}

/// SUMIFS and the like: the area of the numbers, then areas with their criteria.
template <Summary summary>
Value withConditions(Calculation& c, std::span<const Value> args) {
    const Conditions conditions(args.subspan(1));
    if (!conditions.isComplete()) return ErrorCode::value;
    if (!args[0].isError() && !conditions.hasShape(args[0])) return ErrorCode::value;
    return summarize(c, conditions, args[0], summary);
}

Value countWhere(Calculation& c, std::span<const Value> args) {
    const Conditions conditions(args);
    if (const auto error = conditions.error()) return *error;
    return conditions.isComplete() ? Value(conditions.count(c)) : Value(ErrorCode::value);
}

constexpr FunctionSpec rows[] = {
    {"COUNTIF", 2, 2, "rv", countWhere, plain, "area, criterion",
     "How many cells match the criterion: a value, a text with the wildcards * and ?, or one that "
     "begins with =, <>, <, <=, > or >=."},
    {"COUNTIFS", 2, anyCount, "(rv)", countWhere, plain,
     "area1, criterion1, [area2, criterion2], …", "How many places match every criterion."},
    {"SUMIF", 2, 3, "rvr", withOneCondition<sumOf>, plain, "area, criterion, [numbers]",
     "The sum of the numbers where the area matches the criterion."},
    {"SUMIFS", 3, anyCount, "r(rv)", withConditions<sumOf>, plain,
     "numbers, area1, criterion1, [area2, criterion2], …",
     "The sum of the numbers where every area matches its criterion."},
    {"AVERAGEIF", 2, 3, "rvr", withOneCondition<averageOf>, plain, "area, criterion, [numbers]",
     "The average of the numbers where the area matches the criterion."},
    {"AVERAGEIFS", 3, anyCount, "r(rv)", withConditions<averageOf>, plain,
     "numbers, area1, criterion1, [area2, criterion2], …",
     "The average of the numbers where every area matches its criterion."},
    {"MINIFS", 3, anyCount, "r(rv)", withConditions<leastOf>, plain,
     "numbers, area1, criterion1, [area2, criterion2], …",
     "The least number where every area matches its criterion, 0 when there is none."},
    {"MAXIFS", 3, anyCount, "r(rv)", withConditions<greatestOf>, plain,
     "numbers, area1, criterion1, [area2, criterion2], …",
     "The greatest number where every area matches its criterion, 0 when there is none."},
};

}  // namespace

std::span<const FunctionSpec> conditionalFunctions() {
    return rows;
}

}  // namespace formula
