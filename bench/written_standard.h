// What the standards of the benchmarks have in common: their documents, made from lists, and the
// functions of a sheet in C++, for the same computation by hand.
#pragma once

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core_api/text/text_helpers.h"
#include "mapping/tw_dlg_standards_data.h"

namespace bench {

/// `pattern` with every word K replaced.
inline std::string withConstant(std::string_view pattern, const std::string& k) {
    Vor_String text(pattern);
    for (int at = 0; (at = text.findFirstFrom("K", at, true)) >= 0; ++at) {
        const bool isWord = (at == 0 || !std::isalnum(text[at - 1])) &&
                            (at + 1 == text.length() || !std::isalnum(text[at + 1]));
        if (!isWord) continue;
        text.removeAt(at);
        text.insertAt(at, k);
    }
    return text.str();
}

// What a list of equations becomes. EQ: the expression reads the same in both languages. EQP: it
// does not. TEXT: it gives a text. First the patterns of a sheet, then the same in C++.
#define BENCH_PATTERN_EQ(name, expression) #name "=" #expression,
#define BENCH_PATTERN(name, text, expression) #name "=" text,
#define BENCH_STORE_EQ(name, expression) name = store(expression);
#define BENCH_STORE_EQP(name, text, expression) name = store(expression);
#define BENCH_STORE_TEXT(name, text, expression) name = expression;

/// The patterns once for each of `ks`, in sheet order.
inline std::vector<std::string> equations(std::span<const char* const> patterns,
                                          std::span<const std::string> ks) {
    std::vector<std::string> all;
    for (const std::string& k : ks)
        for (const char* pattern : patterns) all.push_back(withConstant(pattern, k));
    return all;
}

using Words = std::span<const char* const>;

/// The document of a standard with these declarations and equations.
inline std::string document(Words inputs, Words outputs, Words locals,
                            const std::vector<std::string>& equations) {
    std::string cells;
    int row = 0;
    int count = 0;
    const auto add = [&](char column, std::string_view text) {
        cells += column + std::to_string(row) + " \"" + std::string(text) + "\n";
        ++count;
    };
    const auto section = [&](const char* marker, Words declarations) {
        ++row;
        add('A', marker);
        for (size_t i = 0; i < declarations.size(); ++i) {
            if (i % 4 == 0) ++row;
            add(static_cast<char>('A' + i % 4), declarations[i]);
        }
    };
    section("Input", inputs);
    section("Output", outputs);
    section("Local", locals);
    ++row;
    add('A', "Calc");
    for (const std::string& equation : equations) {
        ++row;
        add('A', equation);
    }
    return "vormant-sheet 1\nsize 4 " + std::to_string(row) + "\ncells\n" + cells + "end " +
           std::to_string(count) + "\n";
}

/// Values for the inputs, empty outputs.
inline TwVarCells variables(Words inputs, Words values, Words outputs) {
    TwVarCells cells;
    const auto add = [&](std::string_view declaration, TwCellType type, const char* value) {
        const auto valueType = declaration[0] == 'S'   ? TwValueType::String
                               : declaration[0] == 'I' ? TwValueType::Int
                                                       : TwValueType::Double;
        cells.append(TwVarCell(getSubstrAfter(declaration, " "), type, valueType, value));
    };
    for (size_t i = 0; i < inputs.size(); ++i) add(inputs[i], TwCellType::input, values[i]);
    for (const char* output : outputs) add(output, TwCellType::output, "");
    return cells;
}

// --- the functions of a sheet in C++
// ---------------------------------------------------------------

inline double IF(bool condition, double yes, double no) {
    return condition ? yes : no;
}
template <class... Bools>
bool AND(Bools... all) {
    return (all && ...);
}
template <class... Bools>
bool OR(Bools... all) {
    return (all || ...);
}
template <class... Numbers>
double MIN(Numbers... all) {
    return std::min({static_cast<double>(all)...});
}
template <class... Numbers>
double MAX(Numbers... all) {
    return std::max({static_cast<double>(all)...});
}
inline double ABS(double x) {
    return std::fabs(x);
}
inline double SQRT(double x) {
    return std::sqrt(x);
}
inline double INT(double x) {
    return std::floor(x);
}
inline double ROUND(double x, int decimals) {
    const double power = std::pow(10.0, decimals);
    return std::round(x * power) / power;
}

/// A result written as a text and read back, as values travel.
class Store {
  public:
    explicit Store(double x)
        : m_end(std::to_chars(m_text, m_text + sizeof m_text, x, std::chars_format::fixed, 7).ptr) {
    }
    std::string_view text() const { return {m_text, static_cast<std::size_t>(m_end - m_text)}; }
    double number() const {
        double x = 0;
        std::from_chars(m_text, m_end, x);
        return x;
    }

  private:
    char m_text[400];
    char* m_end;
};
inline double store(double x) {
    return Store(x).number();
}
inline std::string numberText(double x) {
    std::string text(Store(x).text());
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text;
}
inline std::string textOf(const std::string& text) {
    return text;
}
inline std::string textOf(const char* text) {
    return text;
}
inline std::string textOf(double x) {
    return numberText(x);
}
template <class... Parts>
std::string join(const Parts&... parts) {
    return (textOf(parts) + ...);
}

}  // namespace bench
