#include "spread/control/formula/functions/rounding.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/formula_sheet.h"

namespace {

TEST(Rounding, ActsOnNumbersAsTheyAreWritten) {
    FormulaSheet sheet;
    constexpr FormulaCase cases[] = {
        {"ROUND(2.675,2)", "2.68"},
        {"ROUND(1.005,2)", "1.01"},
        {"ROUND(-1.005,2)", "-1.01"},
        {"ROUND(1.05*(0.0284+0.0046)-0.0284,4)", "0.0063"},
        {"ROUND(2.5,0)", "3"},
        {"ROUND(2.4999999999,0)", "2"},
        {"ROUND(2345.6,-2)", "2300"},
        {"ROUND(50,-2)", "100"},
        {"ROUND(49.999,-2)", "0"},
        {"ROUND(1E300,5)", "1E+300"},
        {"ROUND(1.5,400)", "1.5"},
        {"ROUND(1.5,-400)", "0"},
        {"ROUND(0.1+0.2,20)=0.1+0.2", "TRUE"},
        {"ROUND(123456789012345.25,0)=123456789012345", "TRUE"},
        {"ROUNDUP(1.1*1.1,2)", "1.21"},
        {"ROUNDUP(0.001,0)", "1"},
        {"ROUNDUP(-3.21,1)", "-3.3"},
        {"ROUNDUP(1E-300,0)", "1"},
        {"ROUNDDOWN(2.3*100,0)", "230"},
        {"ROUNDDOWN(-3.29,1)", "-3.2"},
        {"TRUNC(-8.9)", "-8"},
        {"INT(0.3/0.1)", "3"},
        {"INT((0.1+0.7)*10)", "8"},
        {"INT(-0.3/0.1)", "-3"},
        {"INT(-2.5)", "-3"},
        {"INT(-0.00001)", "-1"},
        {"INT(123456789-0.0000004)", "123456789"},
        {"INT(123456789-0.0000006)", "123456788"},
        {"INT(1E14+0.5)=1E14+1", "TRUE"},
        {"INT(1E100)", "1E+100"},
        {"MROUND(6.05,0.1)", "6.1"},
        {"MROUND(7.05,0.1)", "7.1"},
        {"MROUND(-7,-5)", "-5"},
        {"MROUND(7,-5)", "#NUM!"},
        {"MROUND(7,0)", "0"},
        {"MOD(1,0.1)", "0"},
        {"MOD(0.9,0.3)", "0"},
        {"MOD(281.44,0.02)", "0"},
        {"MOD(0.35,0.1)", "0.05"},
        {"MOD(-1,3)", "2"},
        {"MOD(7,-3)", "-2"},
        {"MOD(5310866044487,128)", "71"},
        {"MOD(1,0)", "#DIV/0!"},
        {"QUOTIENT(-10,3)", "-3"},
        {"QUOTIENT(0.3,0.1)", "3"},
        {"QUOTIENT(TRUE,1)", "#VALUE!"},
    };
    expectResults(sheet, cases);
}

TEST(Rounding, StepsGoTheWayOfTheirSigns) {
    FormulaSheet sheet;
    constexpr FormulaCase cases[] = {
        {"CEILING(0.7,0.1)", "0.7"},
        {"CEILING(0.1*3,0.1)", "0.3"},
        {"CEILING(2.01,1)", "3"},
        {"CEILING(-2.5,2)", "-2"},
        {"CEILING(-2.5,-2)", "-4"},
        {"CEILING(2.5,-2)", "#NUM!"},
        {"CEILING(2.5,0)", "0"},
        {"CEILING(1048576,1E-307)", "#NUM!"},
        {"FLOOR(0.3/0.1,1)", "3"},
        {"FLOOR(1.1-1,0.1)", "0.1"},
        {"FLOOR(-2.5,2)", "-4"},
        {"FLOOR(-2.5,-2)", "-2"},
        {"FLOOR(2.5,0)", "#DIV/0!"},
        {"CEILING.MATH(-5.5,2)", "-4"},
        {"CEILING.MATH(-5.5,2,1)", "-6"},
        {"CEILING.MATH(5.5,,1)", "6"},
        {"FLOOR.MATH(-5.5,2)", "-6"},
        {"FLOOR.MATH(-5.5,2,1)", "-4"},
        {"CEILING.PRECISE(-4.1,-2)", "-4"},
        {"FLOOR.PRECISE(-4.1,-2)", "-6"},
        {"ISO.CEILING(4.1)", "5"},
        {"EVEN(-1)", "-2"},
        {"EVEN(2)", "2"},
        {"ODD(0)", "1"},
        {"ODD(-2)", "-3"},
        {"ODD(1.5)", "3"},
    };
    expectResults(sheet, cases);
}

/// `digits` (no point) rounded half up to all but the last `cut` of them, as one would on paper.
std::string roundedOnPaper(std::string digits, size_t cut) {
    bool carry = digits[digits.size() - cut] >= '5';
    digits.resize(digits.size() - cut);
    for (size_t i = digits.size(); carry && i-- > 0;) {
        carry = digits[i] == '9';
        digits[i] = carry ? '0' : static_cast<char>(digits[i] + 1);
    }
    return carry ? "1" + digits : digits;
}

TEST(Rounding, AgreesWithPaperForWrittenDecimals) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 200'000; ++i) {
        // Up to 13 digits, of which `decimals` + `cut` stand behind the point; every third a tie.
        const size_t size = 2 + random() % 12;
        std::string digits(size, '0');
        for (char& digit : digits) digit = static_cast<char>('0' + random() % 10);
        const size_t cut = 1 + random() % (size - 1);
        const size_t decimals = random() % (size - cut + 1);
        if (i % 3 == 0) digits.replace(size - cut, cut, "5" + std::string(cut - 1, '0'));

        const auto written = [](const std::string& all, size_t behindPoint) {
            return std::stod(all + "e-" + std::to_string(behindPoint));
        };
        const double x = written(digits, decimals + cut);
        const double expected = written(roundedOnPaper(digits, cut), decimals);
        const int places = static_cast<int>(decimals);
        ASSERT_EQ(formula::roundHalfAway(x, places), expected) << digits << " to " << places;
        ASSERT_EQ(formula::roundHalfAway(-x, places), -expected) << digits << " to " << places;
        const double down = written(digits.substr(0, size - cut), decimals);
        ASSERT_EQ(formula::roundTowardZero(x, places), down) << digits << " to " << places;
    }
}

}  // namespace
