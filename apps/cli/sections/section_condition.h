// One condition of a search for sections: "h>=200", "b=100..150", "name=IPE*".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace cli {

/// A column, one of  >= <= > < = !=  and a number; = takes a range LOW..HIGH too. The texts
/// "table" and "name" are compared with = or != and a pattern of * and ?.
class SectionCondition {
  public:
    /// `typed` is UTF-8. Nothing, with the reason in `error`, when it is no condition.
    static std::optional<SectionCondition> parse(const std::string& typed, std::string& error);

    /// Windows-1252, in lower case.
    const std::string& column() const { return m_column; }
    bool isText() const { return m_column == "table" || m_column == "name"; }
    bool holds(double number) const;
    bool holds(std::string_view text) const;

  private:
    enum class Sign { atLeast, atMost, above, below, equal, notEqual };

    struct Operator {
        std::string_view text;
        Sign sign;
    };
    static const Operator operators[];

    bool readValue(std::string_view value, std::string& error);

    std::string m_column;
    Sign m_sign = Sign::equal;
    double m_low = 0;  // both ends of a range, or the same number
    double m_high = 0;
    std::string m_pattern;  // of a text
};

}  // namespace cli
