// Reads the arguments of one call one after the other and remembers the first error, so that a
// function reads everything it needs, asks once whether that worked, and then computes:
//
//     ArgumentReader read(c, args);
//     const std::string_view text = read.text(0);
//     const int count = read.whole(1, 1);
//     if (read.failed()) return read.error();
#pragma once

#include <cmath>
#include <limits>
#include <span>
#include <string_view>

#include "spread/control/formula/calculation.h"
#include "spread/control/formula/coerce.h"

namespace formula {

/// The longest text a function may make, as in the programs.
inline constexpr size_t longestText = 32767;

/// A single value as a text: numbers as numberToText, TRUE and FALSE, "" for empty and missing.
/// Lives as long as the calculation. Areas and arrays give #VALUE!.
inline Result<std::string_view> textOf(Calculation& c, const Value& value) {
    switch (value.type()) {
        case ValueType::text:
            return value.text();
        case ValueType::number: {
            char buffer[numberTextSize];
            return c.text({buffer, writeNumber(value.number(), buffer)}).text();
        }
        case ValueType::boolean:
            return value.truth() ? std::string_view("TRUE") : std::string_view("FALSE");
        case ValueType::empty:
        case ValueType::missing:
            return std::string_view();
        case ValueType::error:
            return value.error();
        default:
            return ErrorCode::value;
    }
}

class ArgumentReader {
  public:
    ArgumentReader(Calculation& c, std::span<const Value> args) : m_calculation(c), m_args(args) {}

    bool failed() const { return m_failed; }
    /// The first error met; valid after failed().
    ErrorCode error() const { return m_error; }

    /// Whether argument `i` (from 0) is written and not left out.
    bool has(size_t i) const { return i < m_args.size() && !m_args[i].isMissing(); }

    double number(size_t i) { return take(toNumber(m_args[i])); }
    /// `fallback` where the argument is left out or not written.
    double number(size_t i, double fallback) { return has(i) ? number(i) : fallback; }

    /// As number for functions that refuse booleans with #VALUE!.
    double strictNumber(size_t i) {
        if (m_args[i].isBoolean()) return take(Result<double>(ErrorCode::value));
        return number(i);
    }

    /// A number cut towards zero and to the range of int.
    int whole(size_t i) { return toWhole(number(i)); }
    int whole(size_t i, int fallback) { return has(i) ? whole(i) : fallback; }
    int strictWhole(size_t i) { return toWhole(strictNumber(i)); }

    bool truth(size_t i) { return take(toBoolean(m_args[i])); }
    bool truth(size_t i, bool fallback) { return has(i) ? truth(i) : fallback; }

    std::string_view text(size_t i) { return take(textOf(m_calculation, m_args[i])); }
    std::string_view text(size_t i, std::string_view fallback) {
        return has(i) ? text(i) : fallback;
    }

    static int toWhole(double number) {
        constexpr double limit = std::numeric_limits<int>::max();
        if (std::isnan(number)) return 0;
        return static_cast<int>(number > limit ? limit : number < -limit ? -limit : number);
    }

  private:
    template <class T>
    T take(const Result<T>& result) {
        if (result) return *result;
        if (!m_failed) m_error = result.error();
        m_failed = true;
        return T();
    }

    Calculation& m_calculation;
    std::span<const Value> m_args;
    ErrorCode m_error = ErrorCode::value;
    bool m_failed = false;
};

}  // namespace formula
