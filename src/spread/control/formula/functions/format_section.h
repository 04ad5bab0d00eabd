// The parsed form of a number format: up to four sections, each a list of pieces in the order in
// which they are written.
//
//   format   = section { ";" section }            positive; negative; zero; text
//   section  = { "[" colour | condition | "$" currency "]" } { piece }
//   piece    = "0" | "#" | "?" | "." | "," | "%" | "/" | ("E" | "e") ("+" | "-") | "General" | "@"
//            | y… | m… | d… | h… | s… | "[h…]" | "[m…]" | "[s…]" | "AM/PM" | "A/P"
//            | quoted text | "\" any | "_" any (a blank) | "*" any (nothing) | other character
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "spread/control/formula/decimal.h"
#include "spread/control/formula/value.h"

namespace formula::number_format {

enum class Part : uint8_t {
    literal,
    digit,  ///< `symbol` is '0', '#' or '?'
    point,
    comma,  ///< only while parsing: it becomes grouping, scale or a literal
    percent,
    exponent,  ///< `symbol` is '+' or '-'
    slash,
    general,
    text,  ///< "@"
    year,  ///< `count` letters, as for all below
    month,
    day,
    hour,
    minute,
    second,
    elapsedHours,
    elapsedMinutes,
    elapsedSeconds,
    secondFraction,
    halfDay,  ///< `symbol` is 'A' for AM/PM, else the letter shown for the morning
};

struct Piece {
    Part part = Part::literal;
    char symbol = 0;
    int count = 1;
    std::string text;
};

struct Condition {
    std::string_view relation;  ///< "<", "<=", "=", "<>", ">", ">="
    double operand = 0;

    bool holds(double number) const;
    /// Whether only negative numbers fulfil it.
    bool isNegative() const {
        return relation.substr(0, 1) == "<" && relation != "<>" && operand <= 0;
    }
};

struct Section {
    std::vector<Piece> pieces;
    std::optional<Condition> condition;
    int percents = 0;
    int thousands = 0;     ///< how often the number is divided by 1000
    bool grouped = false;  ///< commas between thousands
    bool isDate = false;
    bool isText = false;  ///< holds "@"
};

/// Nothing for a format that makes no sense. Conditions borrow from `format`.
std::optional<std::vector<Section>> parseFormat(std::string_view format);

/// A number that is not negative by a section that is no date. `isZero` tells whether no digit but
/// 0 was shown.
std::string writeNumber(const Section& section, double magnitude, bool& isZero);

/// A day number by a section for dates; nothing outside 0 to the end of 9999.
std::optional<std::string> writeDate(const Section& section, double number);

}  // namespace formula::number_format
