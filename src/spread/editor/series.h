// What comes next in a row of values: numbers and dates in their steps, texts by the number at
// their end.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace editor {

/// A value of a series; empty cells are monostate.
using SeriesValue = std::variant<std::monostate, double, std::string>;

class Series {
  public:
    /// The series that begins with `known`, which is not empty. Without a common step every value
    /// comes again in its turn, texts with a number at their end counted on.
    explicit Series(std::vector<SeriesValue> known);
    /// The value at `index` from 0, also before the first (below 0).
    SeriesValue at(int index) const;

  private:
    bool startNumbers();
    bool startDates();
    bool startNumberedTexts();
    SeriesValue repeated(int index) const;

    struct Numbers {
        double first, step;
    };
    struct Dates {
        int firstDay;
        int stepDays, stepMonths;  // one of them
        std::string pattern;       // the first text
    };
    struct NumberedTexts {
        std::string prefix;
        long long first, step;
        size_t digits;  // at least, with zeros in front
    };
    std::vector<SeriesValue> m_known;
    std::variant<std::monostate, Numbers, Dates, NumberedTexts> m_rule;
};

}  // namespace editor
