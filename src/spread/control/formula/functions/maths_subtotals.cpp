// SUBTOTAL and AGGREGATE: another function, chosen by number, over cells of which some are left
// out: those that hold a subtotal themselves and, on request, errors.

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

constexpr std::array<std::string_view, 19> chosenFunctions = {
    "AVERAGE",        "COUNT",        "COUNTA",         "MAX",         "MIN",
    "PRODUCT",        "STDEV.S",      "STDEV.P",        "SUM",         "VAR.S",
    "VAR.P",          "MEDIAN",       "MODE.SNGL",      "LARGE",       "SMALL",
    "PERCENTILE.INC", "QUARTILE.INC", "PERCENTILE.EXC", "QUARTILE.EXC"};
constexpr size_t subtotalChoices = 11;
constexpr size_t choicesWithoutRank = 13;  // from LARGE on, a second argument says which

bool containsName(std::string_view formula, std::string_view name) {
    const auto isSame = [](char a, char b) { return a == b || (a ^ b) == 0x20; };
    return std::search(formula.begin(), formula.end(), name.begin(), name.end(), isSame) !=
           formula.end();
}

struct LeftOut {
    bool subtotals = true;
    bool errors = false;
};

bool isLeftOut(const Calculation& c, const Area& area, int row, int col, const Value& value,
               LeftOut leftOut) {
    if (leftOut.errors && value.isError()) return true;
    if (!leftOut.subtotals) return false;
    const auto text = c.formulaText(area.col1 + col, area.row1 + row);
    if (text) c.spend(300);
    return text && (containsName(*text, "SUBTOTAL(") || containsName(*text, "AGGREGATE("));
}

/// `argument` without the cells that are left out: itself when there are none.
Value kept(Calculation& c, const Value& argument, LeftOut leftOut) {
    if (!argument.isArea()) return argument;
    const Area area = argument.area();
    std::vector<Value> values;
    bool isAnyLeftOut = false;
    c.eachAt(argument, [&](int row, int col, const Value& value) {
        if (isLeftOut(c, area, row, col, value, leftOut))
            isAnyLeftOut = true;
        else
            values.push_back(value);
    });
    if (!isAnyLeftOut) return argument;
    Array* array = c.newArray(static_cast<int>(std::max<size_t>(values.size(), 1)), 1);
    if (!array) return ErrorCode::num;
    std::copy(values.begin(), values.end(), array->cells);
    return Value::array(array);
}

Value callChosen(Calculation& c, size_t choice, std::span<const Value> args, LeftOut leftOut) {
    const FunctionSpec* function = findFunction(chosenFunctions[choice - 1]);
    std::vector<Value> values(args.begin(), args.end());
    const size_t walked = choice > choicesWithoutRank ? 1 : values.size();
    for (size_t i = 0; i < walked; ++i) values[i] = kept(c, values[i], leftOut);
    return function->call(c, values);
}

Value subtotal(Calculation& c, std::span<const Value> args) {
    const Result<double> number = numberOf(args[0]);
    if (!number) return number.error();
    // From 101 on hidden rows are meant to be left out too, but hiding is a matter of the grid that
    // no calculation knows of: they count.
    const double choice = *number > 100 ? *number - 100 : *number;
    if (!(choice >= 1 && choice < subtotalChoices + 1)) return ErrorCode::value;
    return callChosen(c, static_cast<size_t>(choice), args.subspan(1), {});
}

Value aggregate(Calculation& c, std::span<const Value> args) {
    const Result<double> choice = numberOf(args[0]);
    if (!choice) return choice.error();
    const Result<double> option = numberOf(args[1]);
    if (!option) return option.error();
    if (!(*choice >= 1 && *choice < chosenFunctions.size() + 1)) return ErrorCode::value;
    if (!(*option >= 0 && *option < 8)) return ErrorCode::value;
    const auto options = static_cast<unsigned>(*option);
    const LeftOut leftOut = {options < 4, (options & 2) != 0};
    const auto number = static_cast<size_t>(*choice);
    const auto rest = args.subspan(2);
    if (number > choicesWithoutRank && rest.size() != 2) return ErrorCode::value;
    return callChosen(c, number, rest, leftOut);
}

constexpr FunctionSpec rows[] = {
    {"SUBTOTAL", 2, anyCount, "vr", subtotal, plain, "function number, area1, [area2], …",
     "AVERAGE (1), COUNT (2), COUNTA (3), MAX (4), MIN (5), PRODUCT (6), STDEV (7), STDEVP (8), "
     "SUM (9), VAR (10) or VARP (11) over cells that hold no SUBTOTAL themselves."},
    {"AGGREGATE", 3, anyCount, "vvr", aggregate, plain,
     "function number, option, area, [area or rank], …",
     "As SUBTOTAL, also MEDIAN (12), MODE (13), LARGE (14), SMALL (15), PERCENTILE (16), QUARTILE "
     "(17) and their exclusive forms (18, 19); options 2, 3, 6 and 7 leave errors out."},
};

}  // namespace

std::span<const FunctionSpec> subtotalFunctions() {
    return rows;
}

}  // namespace formula
