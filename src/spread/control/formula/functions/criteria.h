// What "matches" means where a formula names cells by a condition: COUNTIF and its kin with
// criteria such as ">=5", "<>x" or "M1?*", and the wildcards of the look-up functions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "spread/control/formula/calculation.h"

namespace formula {

/// Whether `pattern` holds one of * ? ~, so that it must be matched as below.
bool hasWildcards(std::string_view pattern);

/// Whether the "~" at `at` stands for the character behind it.
bool isEscape(std::string_view pattern, size_t at);

/// Whether the whole of `text` fits `pattern`, letter case aside: * stands for any run of
/// characters, ? for any one, ~ before one of * ? ~ for that character itself.
bool matchesWildcards(std::string_view pattern, std::string_view text);
/// The same as part of a calculation's work.
bool matchesWildcards(const Calculation& c, std::string_view pattern, std::string_view text);

/// One criterion, read once and then asked for every cell. Borrows the text that it was made from.
class Criterion {
  public:
    /// A text may begin with one of = <> < <= > >=; without one, equality is meant. What follows
    /// is a number, TRUE, FALSE, an error or a text with wildcards. An empty cell means 0.
    explicit Criterion(const Value& wanted);

    /// `value` is a single value. A number also matches a text that reads as that number; the order
    /// relations compare only with what is of the operand's own type.
    bool matches(const Value& value) const;
    /// The same as part of a calculation's work.
    bool matches(const Calculation& c, const Value& value) const;
    bool matchesEmpty() const { return m_matchesEmpty; }

  private:
    enum class Relation : uint8_t { equal, unequal, less, lessEqual, greater, greaterEqual };

    static Relation takeRelation(std::string_view& text);
    bool equals(const Value& value) const;
    bool isInOrder(const Value& value) const;

    Value m_operand;  // number, boolean, error or text; empty: only an empty cell is equal
    Relation m_relation = Relation::equal;
    bool m_hasWildcards = false;
    bool m_matchesEmpty = false;
};

}  // namespace formula
