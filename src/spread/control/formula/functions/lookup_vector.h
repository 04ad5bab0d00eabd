// Searching one row or column for a value: what the look-up functions have in common. Exact
// searches walk over the stored cells and stop at the first hit; searches in sorted data halve.
#pragma once

#include <algorithm>
#include <optional>

#include "spread/control/formula/calculation.h"

namespace formula {

/// A row or column of an area or array, or a single value.
class LookupVector {
  public:
    /// `source` one row high or one column wide.
    LookupVector(const Calculation& c, const Value& source);
    /// Row `index` (from 0) of `source`, or a column of it.
    static LookupVector row(const Calculation& c, const Value& source, int index);
    static LookupVector column(const Calculation& c, const Value& source, int index);

    int size() const { return m_size; }
    /// Element `i` from 0.
    Value at(int i) const;
    const Calculation& calculation() const { return m_calculation; }
    /// How many elements there are up to the last one that holds anything.
    int storedSize() const;

    /// Calls visit(index, value) for the elements that hold something, from the first to the last,
    /// until it gives true. The index at which it did, or nothing.
    template <class Visit>
    std::optional<int> find(Visit&& visit) const;

  private:
    LookupVector(const Calculation& c, const Value& source, bool isRow, int index);
    Value part(int first, int last) const;

    const Calculation& m_calculation;
    Value m_source;
    int m_index = 0;  // of the row or column within the source
    int m_size = 0;
    bool m_isRow = false;
};

/// Where `wanted` stands first; texts letter case aside and, when they hold any, with wildcards.
/// Nothing when it is not there.
std::optional<int> findExact(const LookupVector& vector, const Value& wanted);

/// In ascending data: the last element that is at most `wanted`. Only elements of the type of
/// `wanted` count. Nothing when all are greater.
std::optional<int> findAscending(const LookupVector& vector, const Value& wanted);

/// In descending data: the first element that equals `wanted`, else the last one that is greater.
std::optional<int> findDescending(const LookupVector& vector, const Value& wanted);

/// How XLOOKUP and XMATCH search.
enum class MatchMode { nextSmaller = -1, exact = 0, nextLarger = 1, wildcard = 2 };
enum class SearchMode { first = 1, last = -1, ascending = 2, descending = -2 };

/// As XMATCH: an empty `wanted` finds an empty element; numbers < texts < booleans.
std::optional<int> findExtended(const LookupVector& vector, const Value& wanted, MatchMode match,
                                SearchMode search);

template <class Visit>
std::optional<int> LookupVector::find(Visit&& visit) const {
    if (!m_source.isArea()) {
        for (int i = 0; i < m_size; ++i)
            if (visit(i, at(i))) return i;
        return std::nullopt;
    }
    // Areas are walked in pieces, since the walk over stored cells does not stop early.
    constexpr int firstPiece = 256;
    constexpr int largestPiece = 16384;
    int found = -1;
    const int size = storedSize();
    for (int first = 0, end = 0; first < size && found < 0; first = end) {
        end = std::min(first + (first == 0 ? firstPiece : largestPiece), size);
        const Value piece = part(first, end - 1);
        m_calculation.eachAt(piece, [&, isRow = m_isRow](int row, int col, const Value& value) {
            if (found >= 0) return;
            const int i = first + (isRow ? col : row);
            if (visit(i, value)) found = i;
        });
    }
    return found < 0 ? std::nullopt : std::optional(found);
}

}  // namespace formula
