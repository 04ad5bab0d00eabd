#include <array>

#include "spread/control/formula/functions/families.h"
#include "spread/control/formula/functions/text_family.h"

namespace formula {
namespace {

constexpr std::array<FunctionSpec, 31> rows{{
    {"CHAR", 1, 1, "v", charOfCode, plain, "code",
     "The character with that code of Windows-1252, 1 to 255."},
    {"CLEAN", 1, 1, "v", clean, plain, "text", "The text without control characters."},
    {"CODE", 1, 1, "v", codeOfChar, plain, "text", "The Windows-1252 code of the first character."},
    {"CONCAT", 1, anyCount, "a", concat, plain, "text1, [text2], …",
     "All texts joined; ranges are taken row by row."},
    {"CONCATENATE", 1, anyCount, "v", concatenate, plain, "text1, [text2], …", "All texts joined."},
    {"DOLLAR", 1, 2, "v", dollar, plain, "number, [decimals]",
     "A number as an amount of dollars, two decimals unless told otherwise."},
    {"EXACT", 2, 2, "v", exact, plain, "text1, text2",
     "TRUE when both texts are the same, letter case included."},
    {"FIND", 2, 3, "v", find, plain, "wanted, text, [start]",
     "The place of one text in another, counted from 1; letter case matters."},
    {"FIXED", 1, 3, "v", fixed, plain, "number, [decimals], [no_commas]",
     "A number as text, rounded to decimals (2), with commas between thousands."},
    {"LEFT", 1, 2, "v", left, plain, "text, [count]", "The first characters of a text."},
    {"LEN", 1, 1, "v", len, plain, "text", "The number of characters."},
    {"LOWER", 1, 1, "v", lower, plain, "text", "The text in small letters."},
    {"MID", 3, 3, "v", mid, plain, "text, start, count",
     "Characters from the middle of a text; start counts from 1."},
    {"NUMBERVALUE", 1, 3, "v", numberValue, plain, "text, [decimal_point], [group_separator]",
     "The number that a text spells with these separators."},
    {"PROPER", 1, 1, "v", proper, plain, "text",
     "The text with a capital at the start of each word."},
    {"REPLACE", 4, 4, "v", replace, plain, "text, start, count, new_text",
     "The text with that many characters from start on replaced."},
    {"REPT", 2, 2, "v", rept, plain, "text, count", "The text repeated."},
    {"RIGHT", 1, 2, "v", right, plain, "text, [count]", "The last characters of a text."},
    {"SEARCH", 2, 3, "v", search, plain, "wanted, text, [start]",
     "The place of one text in another, counted from 1; letter case does not matter, and * ? ~ are "
     "wildcards."},
    {"SUBSTITUTE", 3, 4, "v", substitute, plain, "text, old_text, new_text, [instance]",
     "The text with every old text, or only the one with that number, replaced."},
    {"T", 1, 1, "r", textOnly, plain, "value",
     "A text as it is, the empty text for anything else."},
    {"TEXT", 2, 2, "v", text, plain, "value, format",
     "A value as text by a number format such as \"0.00\", \"#,##0\", \"# ?/?\" or \"d mmm "
     "yyyy\"."},
    {"TEXTAFTER", 2, 6, "vavvvv", textAfter, plain,
     "text, delimiter, [instance], [ignore_case], [match_end], [fallback]",
     "What stands behind a delimiter; instances below 0 are counted from the end."},
    {"TEXTBEFORE", 2, 6, "vavvvv", textBefore, plain,
     "text, delimiter, [instance], [ignore_case], [match_end], [fallback]",
     "What stands before a delimiter; instances below 0 are counted from the end."},
    {"TEXTJOIN", 3, anyCount, "ava", textJoin, plain, "delimiter, ignore_empty, text1, [text2], …",
     "All texts joined with a delimiter between them."},
    {"TRIM", 1, 1, "v", trim, plain, "text",
     "The text without blanks at its ends, and single ones inside."},
    {"UNICHAR", 1, 1, "v", unichar, plain, "code",
     "The character with that Unicode number; #VALUE! when Windows-1252 does not have it."},
    {"UNICODE", 1, 1, "v", unicode, plain, "text", "The Unicode number of the first character."},
    {"UPPER", 1, 1, "v", upper, plain, "text", "The text in capitals."},
    {"VALUE", 1, 1, "v", value, plain, "text",
     "The number that a text spells: also percentages, amounts, fractions, dates and times."},
    {"VALUETOTEXT", 1, 2, "v", valueToText, plain, "value, [strict]",
     "A value as text; strict (1) puts texts in quotes."},
}};

}  // namespace

std::span<const FunctionSpec> textFunctions() {
    return rows;
}

}  // namespace formula
