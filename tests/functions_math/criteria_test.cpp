#include "spread/control/formula/functions/criteria.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "support/formula_sheet.h"

namespace {

using formula::Criterion;
using formula::ErrorCode;
using formula::Value;

TEST(Wildcards, FitTheWholeText) {
    struct Case {
        const char *pattern, *text;
        bool fits;
    };
    constexpr Case cases[] = {
        {"M16", "m16", true},      {"M16", "M161", false},
        {"M*", "M", true},         {"M*6", "M16x66", true},
        {"M*6", "M16x65", false},  {"M??", "M16", true},
        {"M??", "M6", false},      {"*", "", true},
        {"?", "", false},          {"", "", true},
        {"a~*b", "a*b", true},     {"a~*b", "axb", false},
        {"a~?", "a?", true},       {"~~*", "~x", true},
        {"a~b", "a~b", true},      {"*ab*ab", "abab", true},
        {"*ab*ab", "abxb", false}, {"\xC4*", "\xE4ther", true},
        {"a**b?*", "a12b3", true}, {"*~*", "x*", true},
        {"*~*", "x", false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(formula::matchesWildcards(c.pattern, c.text), c.fits)
            << c.pattern << " " << c.text;

    std::string hostile;
    for (int i = 0; i < 2000; ++i) hostile += "*a";
    EXPECT_FALSE(formula::matchesWildcards(hostile + "b", std::string(20000, 'a')));
}

/// The row is what stands in the cell; which criteria match it.
TEST(Criteria, MatchByTypeAndRelation) {
    const Value cells[] = {Value(23.0),
                           Value::borrowedText("23"),
                           Value::boolean(true),
                           Value::borrowedText("TRUE"),
                           Value::borrowedText("hey"),
                           Value::borrowedText(""),
                           Value(ErrorCode::na),
                           Value::borrowedText("#N/A"),
                           Value()};
    struct Case {
        const char *criterion, *matches;
    };
    constexpr Case cases[] = {
        // 23, "23", TRUE, "TRUE", "hey", "", #N/A, "#N/A", empty
        {"23", "11......."},     {"=23", "11......."},    {"<>23", "..1111111"},
        {">=23", "1........"},   {"<24", "1........"},    {">23", "........."},
        {"true", "..1......"},   {"<>TRUE", "11.111111"}, {"#N/A", "......1.."},
        {"<>#N/A", "111111.11"}, {"hey", "....1...."},    {"H*", "....1...."},
        {"<>h?y", "1111.1111"},  {">g", "...11...."},     {"<g", ".1...1.1."},
        {"", ".....1..1"},       {"=", "........1"},      {"<>", "11111111."},
        {"<", "........."},      {">=", "........."},     {"*", ".1.111.1."},
        {"0", "........."},      {"2.3E1", "11......."},
    };
    for (const Case& c : cases) {
        const Criterion criterion(Value::borrowedText(c.criterion));
        std::string matches;
        for (const Value& cell : cells) matches += criterion.matches(cell) ? '1' : '.';
        EXPECT_EQ(matches, c.matches) << c.criterion;
        EXPECT_EQ(criterion.matchesEmpty(), matches.back() == '1') << c.criterion;
    }
    EXPECT_TRUE(Criterion(Value()).matches(Value(0.0)));
    EXPECT_FALSE(Criterion(Value()).matchesEmpty());
    EXPECT_TRUE(Criterion(Value(ErrorCode::na)).matches(Value(ErrorCode::na)));
}

TEST(Criteria, ChooseTheCellsOfAnotherArea) {
    FormulaSheet sheet;
    const char* const kinds[] = {"plate", "bolt", "Plate", "weld", "bolt"};
    for (int row = 1; row <= 5; ++row) sheet.set(1, row, kinds[row - 1]);
    sheet.fill(2, {10, 20, 30, 40, 50});
    sheet.fill(3, {1, 2, 3, 4, 5});
    sheet.set(2, 7, Value(ErrorCode::num));
    constexpr FormulaCase cases[] = {
        {"COUNTIF(A:A,\"plate\")", "2"},
        {"COUNTIF(A:A,\"<>plate\")", "1048574"},
        {"COUNTIF(A1:A6,\"\")", "1"},
        {"COUNTIFS(A1:A6,\"<>bolt\",B1:B6,\"<>30\")", "3"},
        {"COUNTIFS(A:A,\"<>x\",B:B,\"<>20\")", "1048575"},
        {"COUNTIFS(A1:A5,\"bolt\",B1:B4,\">0\")", "#VALUE!"},
        {"COUNTIFS(A1:A5,\"bolt\",B1:B5)", "#VALUE!"},
        {"SUMIF(A:A,\"bolt\",B:B)", "70"},
        {"SUMIF(A:A,\"<>bolt\",B1)", "#NUM!"},
        {"SUMIF(A1:A5,\"b*\",B1)", "70"},
        {"SUMIF(B1:B5,\">25\")", "120"},
        {"SUMIFS(B:B,A:A,\"*l*\",C:C,\">1\")", "140"},
        {"SUMIFS(B1:B4,A1:A5,\"bolt\")", "#VALUE!"},
        {"AVERAGEIF(A1:A5,\"plate\",C1:C5)", "2"},
        {"AVERAGEIF(A1:A5,\"rivet\",C1:C5)", "#DIV/0!"},
        {"AVERAGEIFS(C:C,A:A,\"bolt\",B:B,\"<50\")", "2"},
        {"MAXIFS(B1:B5,A1:A5,\"<>bolt\")", "40"},
        {"MINIFS(B1:B5,A1:A5,\"rivet\")", "0"},
        {"COUNTIF(#REF!,1)", "#REF!"},
    };
    expectResults(sheet, cases);
}

/// Counting goes by stored cells; asking every place one by one must give the same.
TEST(Criteria, CountAsIfEveryPlaceWereAsked) {
    const char* const criteria[] = {"1", "<>1", ">=2", "", "=", "<>", "a*", "<>a*", "0", "<2"};
    std::mt19937 random(7);
    const auto below = [&](size_t limit) { return random() % limit; };
    for (int round = 0; round < 300; ++round) {
        FormulaSheet sheet;
        std::vector<std::vector<Value>> columns(3, std::vector<Value>(30));
        for (int col = 1; col <= 3; ++col)
            for (int row = 1; row <= 30; ++row) {
                const size_t kind = below(6);
                if (kind > 3) continue;
                const Value value = kind == 0   ? Value::borrowedText("ab")
                                    : kind == 1 ? Value::borrowedText("")
                                                : Value(static_cast<double>(below(4)));
                sheet.set(col, row, value);
                columns[static_cast<size_t>(col - 1)][static_cast<size_t>(row - 1)] = value;
            }
        std::string text = "COUNTIFS(";
        std::vector<Criterion> asked;
        for (int col = 0; col < 3; ++col) {
            const char* criterion = criteria[below(std::size(criteria))];
            asked.emplace_back(Value::borrowedText(criterion));
            const std::string name(1, static_cast<char>('A' + col));
            text += (col ? "," : "") + name + "1:" + name + "30,\"" + criterion + "\"";
        }
        int expected = 0;
        for (size_t row = 0; row < 30; ++row)
            expected += asked[0].matches(columns[0][row]) && asked[1].matches(columns[1][row]) &&
                        asked[2].matches(columns[2][row]);
        ASSERT_EQ(sheet(text + ")"), std::to_string(expected)) << text;
    }
}

}  // namespace
