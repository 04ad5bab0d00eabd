#include "spread/control/formula/functions/lookup_vector.h"

#include "spread/control/formula/coerce.h"
#include "spread/control/formula/functions/criteria.h"

namespace formula {
namespace {

/// Numbers by their exact value: unlike the comparison operators a look-up tells 0.1 + 0.2 from
/// 0.3.
int compareKeys(const Value& a, const Value& b) {
    if (a.isNumber() && b.isNumber()) return a.number() < b.number() ? -1 : a.number() > b.number();
    return compareValues(a, b);
}

/// An empty cell looked up stands for 0.
Value keyOf(const Value& wanted) {
    return wanted.isEmpty() || wanted.isMissing() ? Value(0.0) : wanted;
}

std::optional<int> findNumber(const LookupVector& vector, double wanted) {
    return vector.find(
        [wanted](int, const Value& value) { return value.isNumber() && value.number() == wanted; });
}

std::optional<int> findText(const LookupVector& vector, std::string_view wanted) {
    return vector.find([wanted](int, const Value& value) {
        return value.isText() && value.text().size() == wanted.size() &&
               compareTexts(value.text(), wanted) == 0;
    });
}

std::optional<int> findPattern(const LookupVector& vector, std::string_view pattern) {
    return vector.find([&](int, const Value& value) {
        return value.isText() && matchesWildcards(vector.calculation(), pattern, value.text());
    });
}

/// The first element without a value.
std::optional<int> findEmpty(const LookupVector& vector) {
    int next = 0;
    vector.find([&next](int i, const Value& value) {
        if (i != next || value.isEmpty()) return true;
        ++next;
        return false;
    });
    return next < vector.size() ? std::optional(next) : std::nullopt;
}

/// The nearest element from `i` to `end` that can be compared with `key`; `end` when none can.
int comparableFrom(const LookupVector& vector, const Value& key, int i, int end) {
    while (i < end && vector.at(i).type() != key.type()) ++i;
    return i;
}

/// The last of the run of elements equal to `key` that holds `first` and ends at or before `last`.
int lastEqual(const LookupVector& vector, const Value& key, int first, int last) {
    const auto isEqual = [&](int i) {
        const Value value = vector.at(i);
        return value.type() == key.type() && compareKeys(value, key) == 0;
    };
    // Mostly there is one; long runs are halved.
    if (first == last || !isEqual(first + 1)) return first;
    while (first < last) {
        const int middle = first + (last - first + 1) / 2;
        if (isEqual(middle))
            first = middle;
        else
            last = middle - 1;
    }
    return first;
}

/// XMATCH without an order to rely on: every element is looked at until one fits exactly.
class BestMatch {
  public:
    BestMatch(const Calculation& c, const Value& key, MatchMode match, SearchMode search)
        : m_calculation(c), m_key(key), m_match(match), m_wantsLast(search == SearchMode::last) {}

    /// Whether the search is over.
    bool operator()(int i, const Value& value) {
        if (value.isError() || value.isEmpty()) return false;
        if (fits(value)) {
            m_exact = i;
            return !m_wantsLast;
        }
        if (m_match != MatchMode::nextSmaller && m_match != MatchMode::nextLarger) return false;
        const bool isLarger = compareKeys(value, m_key) > 0;
        if (isLarger != (m_match == MatchMode::nextLarger)) return false;
        const int difference = m_near ? compareKeys(value, m_nearest) : 0;
        const bool isNearer = isLarger ? difference < 0 : difference > 0;
        if (!m_near || isNearer || (m_wantsLast && difference == 0)) {
            m_near = i;
            m_nearest = value;
        }
        return false;
    }
    std::optional<int> result() const { return m_exact ? m_exact : m_near; }

  private:
    bool fits(const Value& value) const {
        if (value.type() != m_key.type()) return false;
        if (m_match == MatchMode::wildcard && m_key.isText())
            return matchesWildcards(m_calculation, m_key.text(), value.text());
        return compareKeys(value, m_key) == 0;
    }

    const Calculation& m_calculation;
    Value m_key;
    MatchMode m_match;
    bool m_wantsLast;
    std::optional<int> m_exact;
    std::optional<int> m_near;
    Value m_nearest;
};

std::optional<int> findInOrder(const LookupVector& vector, const Value& key, MatchMode match,
                               bool ascending) {
    // The first element that does not come before the key.
    int low = 0;
    int high = vector.storedSize();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        const Value value = vector.at(middle);
        const bool isBeyond = value.isEmpty() || value.isError();
        const int order = isBeyond ? 1 : compareKeys(value, key) * (ascending ? 1 : -1);
        if (order < 0)
            low = middle + 1;
        else
            high = middle;
    }
    const bool isInside = low < vector.size();
    const Value found = isInside ? vector.at(low) : Value();
    if (found.type() == key.type() && compareKeys(found, key) == 0) return low;
    if (match == MatchMode::exact) return std::nullopt;
    const bool wantsThis = (match == MatchMode::nextLarger) == ascending;
    const int best = wantsThis ? low : low - 1;
    if (best < 0 || best >= vector.size()) return std::nullopt;
    const Value value = vector.at(best);
    if (value.isEmpty() || value.isError()) return std::nullopt;
    return best;
}

}  // namespace

LookupVector::LookupVector(const Calculation& c, const Value& source)
    : LookupVector(c, source, Calculation::rows(source) == 1, 0) {}

LookupVector LookupVector::row(const Calculation& c, const Value& source, int index) {
    return {c, source, true, index};
}

LookupVector LookupVector::column(const Calculation& c, const Value& source, int index) {
    return {c, source, false, index};
}

LookupVector::LookupVector(const Calculation& c, const Value& source, bool isRow, int index)
    : m_calculation(c),
      m_source(source),
      m_index(index),
      m_size(isRow ? Calculation::cols(source) : Calculation::rows(source)),
      m_isRow(isRow) {}

Value LookupVector::at(int i) const {
    m_calculation.spend(8);
    return m_isRow ? m_calculation.element(m_source, m_index, i)
                   : m_calculation.element(m_source, i, m_index);
}

Value LookupVector::part(int first, int last) const {
    Area area = m_source.area();
    if (m_isRow) {
        area.row1 = area.row2 = area.row1 + m_index;
        area.col2 = static_cast<uint16_t>(area.col1 + last);
        area.col1 = static_cast<uint16_t>(area.col1 + first);
    } else {
        area.col1 = area.col2 = static_cast<uint16_t>(area.col1 + m_index);
        area.row2 = area.row1 + last;
        area.row1 += first;
    }
    return Value::area(area);
}

int LookupVector::storedSize() const {
    if (!m_source.isArea()) return m_size;
    const Area whole = m_source.area();
    const Value clipped = m_calculation.clipped(part(0, m_size - 1));
    if (!clipped.isArea()) return 0;
    const Area stored = clipped.area();
    return m_isRow ? stored.col2 - whole.col1 + 1 : stored.row2 - whole.row1 + 1;
}

std::optional<int> findExact(const LookupVector& vector, const Value& wanted) {
    const Value key = keyOf(wanted);
    if (key.isNumber()) return findNumber(vector, key.number());
    if (key.isText())
        return hasWildcards(key.text()) ? findPattern(vector, key.text())
                                        : findText(vector, key.text());
    return vector.find([&key](int, const Value& value) {
        return value.type() == key.type() && compareValues(value, key) == 0;
    });
}

std::optional<int> findAscending(const LookupVector& vector, const Value& wanted) {
    const Value key = keyOf(wanted);
    std::optional<int> best;
    int low = 0;
    int high = vector.storedSize() - 1;
    // Data out of order has no right answer, but the programs agree on one: they halve just so and
    // stop at the first element met that equals the key.
    while (low <= high) {
        const int middle = low + (high - low) / 2;
        const int probe = comparableFrom(vector, key, middle, high + 1);
        const int order = probe > high ? 1 : compareKeys(vector.at(probe), key);
        if (order == 0) return lastEqual(vector, key, probe, high);
        if (order > 0) {
            high = middle - 1;
        } else {
            best = probe;
            low = probe + 1;
        }
    }
    return best;
}

std::optional<int> findDescending(const LookupVector& vector, const Value& wanted) {
    const Value key = keyOf(wanted);
    // The first element that is at most the key, and the last one before it that is greater.
    std::optional<int> greater;
    std::optional<int> reached;
    int low = 0;
    int high = vector.storedSize();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        const int probe = comparableFrom(vector, key, middle, high);
        if (probe == high || compareKeys(vector.at(probe), key) <= 0) {
            if (probe != high) reached = probe;
            high = middle;
        } else {
            greater = probe;
            low = probe + 1;
        }
    }
    if (reached && compareKeys(vector.at(*reached), key) == 0) return reached;
    return greater;
}

std::optional<int> findExtended(const LookupVector& vector, const Value& wanted, MatchMode match,
                                SearchMode search) {
    if (wanted.isEmpty() || wanted.isMissing()) return findEmpty(vector);
    if (search == SearchMode::ascending || search == SearchMode::descending)
        return findInOrder(vector, wanted, match, search == SearchMode::ascending);
    if (match == MatchMode::exact && search == SearchMode::first) {
        if (wanted.isNumber()) return findNumber(vector, wanted.number());
        if (wanted.isText()) return findText(vector, wanted.text());
    }
    BestMatch best(vector.calculation(), wanted, match, search);
    vector.find([&best](int i, const Value& value) { return best(i, value); });
    return best.result();
}

}  // namespace formula
