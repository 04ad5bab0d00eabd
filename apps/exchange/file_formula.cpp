#include "exchange/file_formula.h"

#include <algorithm>
#include <array>

#include "platform/encodings.h"

namespace exchange {

namespace {

bool isOfName(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '_';
}

/// Functions younger than the file format carry a prefix in it: those with a dot in their name but
/// for four, and these.
bool needsPrefix(std::string_view name) {
    static constexpr std::array<std::string_view, 4> dottedOld = {
        "ERROR.TYPE", "ISO.CEILING", "NETWORKDAYS.INTL", "WORKDAY.INTL"};
    static constexpr std::array<std::string_view, 47> young = {
        "ACOT",      "ACOTH",        "AGGREGATE", "ARABIC",      "ARRAYTOTEXT", "BASE",
        "BITAND",    "BITLSHIFT",    "BITOR",     "BITRSHIFT",   "BITXOR",      "COMBINA",
        "CONCAT",    "COT",          "COTH",      "CSC",         "CSCH",        "DAYS",
        "DECIMAL",   "FORMULATEXT",  "GAMMA",     "GAUSS",       "IFNA",        "IFS",
        "ISFORMULA", "ISOWEEKNUM",   "MAXIFS",    "MINIFS",      "MUNIT",       "NUMBERVALUE",
        "PDURATION", "PERMUTATIONA", "PHI",       "RRI",         "SEC",         "SECH",
        "SHEET",     "SHEETS",       "SWITCH",    "TEXTAFTER",   "TEXTBEFORE",  "TEXTJOIN",
        "TEXTSPLIT", "UNICHAR",      "UNICODE",   "VALUETOTEXT", "XOR"};
    static constexpr std::array<std::string_view, 2> lookups = {"XLOOKUP", "XMATCH"};
    const auto isIn = [&](const auto& names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    if (name.find('.') != name.npos) return !isIn(dottedOld);
    return isIn(young) || isIn(lookups);
}

}  // namespace

std::string fileFormula(std::string_view text) {
    std::string result;
    std::string word;
    bool inText = false;
    const auto endWord = [&](char next) {
        if (next == '(' && needsPrefix(encodings::uppered(word))) result += "_xlfn.";
        result += word;
        word.clear();
    };
    for (const char c : text) {
        if (c == '"') inText = !inText;
        if (!inText && isOfName(c)) {
            word += c;
            continue;
        }
        endWord(c);
        result += c;
    }
    endWord('\0');
    return result;
}

}  // namespace exchange
