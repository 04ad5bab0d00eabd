#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <vector>

#include "spread/control/formula/functions/lookup_vector.h"
#include "support/formula_sheet.h"

namespace {

using formula::Area;
using formula::Calculation;
using formula::LookupVector;
using formula::MatchMode;
using formula::SearchMode;
using formula::Value;

TEST(Lookup, ExactSearchesFindTheFirstHitOfTheirType) {
    FormulaSheet sheet;
    sheet.set(1, 1, "7");
    sheet.set(1, 2, 7);
    sheet.set(1, 3, "M16 x 40");
    sheet.set(1, 4, "m16*");
    sheet.set(1, 300, 7);
    sheet.set(1, 301, "");
    sheet.set(1, 302, Value::boolean(true));
    sheet.set(1, 303, 0.1 + 0.2);
    expectResults(sheet,
                  std::vector<FormulaCase>{
                      {"MATCH(7,A1:A400,0)", "2"},
                      {"MATCH(\"7\",A1:A400,0)", "1"},
                      {"MATCH(\"M16*\",A:A,0)", "3"},
                      {"MATCH(\"m16~*\",A:A,0)", "4"},
                      {"MATCH(\"*40\",A:A,0)", "3"},
                      {"MATCH(TRUE,A:A,0)", "302"},
                      {"MATCH(0,A:A,0)", "#N/A"},
                      {"MATCH(0.3,A:A,0)", "#N/A"},  // stored apart, although = calls them equal
                      {"XMATCH(7,A1:A400,0,-1)", "300"},
                      {"XMATCH(\"M16*\",A1:A400)", "4"},
                      {"XMATCH(B1,A1:A400)", "5"},
                      {"XMATCH(7,A1:B400)", "#VALUE!"},
                      {"MATCH(7,A1:B400,0)", "#N/A"},
                  });
}

TEST(Lookup, TablesAnswerFromOtherRowsAndColumns) {
    FormulaSheet sheet;
    const char* names[] = {"HEA", "HEB", "IPE"};
    for (int i = 0; i < 3; ++i) {
        sheet.set(1, i + 1, names[i]);
        sheet.set(2, i + 1, 100 * (i + 1));
    }
    sheet.set(3, 2, Value(formula::ErrorCode::div0));
    expectResults(sheet, std::vector<FormulaCase>{
                             {"VLOOKUP(\"heb\",A1:C3,2,FALSE)", "200"},
                             {"VLOOKUP(\"HF\",A1:C3,2)", "200"},
                             {"VLOOKUP(\"A\",A1:C3,2)", "#N/A"},
                             {"VLOOKUP(\"HEB\",A1:C3,3,FALSE)", "#DIV/0!"},
                             {"VLOOKUP(\"HEB\",A1:C3,4,FALSE)", "#REF!"},
                             {"VLOOKUP(\"HEB\",A1:C3,0,FALSE)", "#VALUE!"},
                             {"VLOOKUP(\"HEB\",A1:C3,2,)", "200"},
                             {"VLOOKUP(2,{1,\"a\";2,\"b\"},2,FALSE)", "b"},
                             {"HLOOKUP(\"b\",{\"a\",\"b\";1,2},2,FALSE)", "2"},
                             {"LOOKUP(250,B1:B3,A1:A3)", "HEB"},
                             {"LOOKUP(250,{100,200,300;\"x\",\"y\",\"z\"})", "y"},
                             {"LOOKUP(\"DO\",{\"DO\",\"BL\",\"ST\",\"RE\",\"AR\"},{1,2,3,4,5})",
                              "1"},  // no order
                             {"LOOKUP(2,1/({1,0,1,0}=1),{10,20,30,40})", "30"},
                             {"XLOOKUP(150,B1:B3,A1:A3,\"none\",-1)", "HEA"},
                             {"XLOOKUP(150,B1:B3,A1:A3,\"none\",1)", "HEB"},
                             {"XLOOKUP(50,B1:B3,A1:A3,\"none\",-1)", "none"},
                             {"XLOOKUP(\"?PE\",A1:A3,B1:B3,,2)", "300"},
                             {"SUM(XLOOKUP(\"HEA\",A1:A3,B1:C3))", "100"},
                             {"XLOOKUP(1,A1:A3,B1:B2)", "#VALUE!"},
                             {"INDEX(A1:B3,3,2)", "300"},
                             {"SUM(INDEX(A1:B3,0,2))", "600"},
                             {"INDEX(B1:B3,2)", "200"},
                             {"INDEX(B1:B3,4)", "#REF!"},
                             {"INDEX(B1:B3,-1)", "#VALUE!"},
                             {"SUM(B1:INDEX(B1:B3,2))", "300"},
                             {"SUMPRODUCT(CHOOSE({1,2},10,20))", "30"},
                         });
}

/// A plain walk, to judge the quick searches by.
std::optional<int> walk(const std::vector<double>& values, double wanted, MatchMode match) {
    std::optional<int> best;
    for (int i = 0; i < static_cast<int>(values.size()); ++i) {
        const double value = values[static_cast<size_t>(i)];
        if (value == wanted) return i;
        const bool fits = match == MatchMode::nextSmaller  ? value < wanted
                          : match == MatchMode::nextLarger ? value > wanted
                                                           : false;
        const auto at = [&](int k) { return values[static_cast<size_t>(k)]; };
        if (fits && (!best || std::abs(value - wanted) < std::abs(at(*best) - wanted))) best = i;
    }
    return best;
}

TEST(Lookup, SortedSearchesAgreeWithAWalk) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        const int size = static_cast<int>(random() % 40);
        std::vector<double> values(static_cast<size_t>(size));
        for (double& value : values) value = static_cast<double>(random() % 50);
        std::sort(values.begin(), values.end());
        const bool ascending = round % 2 == 0;
        if (!ascending) std::reverse(values.begin(), values.end());

        control::CellStore cells;
        for (int i = 0; i < size; ++i)
            cells.setValue(cells.obtain(2, i + 3), Value(values[static_cast<size_t>(i)]));
        Calculation c(cells);
        const LookupVector vector(c, Value::area(Area{3, 2000, 2, 2}));
        const auto at = [&](std::optional<int> i) { return i ? vector.at(*i).number() : -1; };
        for (const double wanted : {-1.0, 0.0, 7.0, 24.5, 49.0, 50.0}) {
            for (const auto match :
                 {MatchMode::nextSmaller, MatchMode::exact, MatchMode::nextLarger}) {
                const auto expected = walk(values, wanted, match);
                const auto inOrder = formula::findExtended(
                    vector, Value(wanted), match,
                    ascending ? SearchMode::ascending : SearchMode::descending);
                const auto first =
                    formula::findExtended(vector, Value(wanted), match, SearchMode::first);
                EXPECT_EQ(at(inOrder), at(expected)) << wanted << " among " << size;
                EXPECT_EQ(first, expected) << wanted << " among " << size;
            }
            if (ascending) {
                // MATCH 1 wants the last of equal ones.
                const auto upper = std::upper_bound(values.begin(), values.end(), wanted);
                const auto found = formula::findAscending(vector, Value(wanted));
                EXPECT_EQ(found.value_or(-1), upper - values.begin() - 1) << wanted;
            } else {
                EXPECT_EQ(at(formula::findDescending(vector, Value(wanted))),
                          at(walk(values, wanted, MatchMode::nextLarger)));
            }
        }
    }
}

TEST(Lookup, ComputedPlacesAreFollowed) {
    control::Sheet sheet;
    sheet.setAutomatic(true);
    formula::ParseError error;
    ASSERT_TRUE(sheet.setFormula(1, 2, "A1*2", error));
    ASSERT_TRUE(sheet.setFormula(3, 1, "SUM(OFFSET(A1,0,0,2))", error));
    ASSERT_TRUE(sheet.setFormula(3, 2, "INDIRECT(\"A\"&B1)", error));
    ASSERT_TRUE(sheet.setFormula(3, 3, "INDEX(A1:A2,2)+1", error));
    sheet.setValue(2, 1, Value(2.0));
    sheet.setValue(1, 1, Value(5.0));
    EXPECT_EQ(sheet.value(3, 1).number(), 15);
    EXPECT_EQ(sheet.value(3, 2).number(), 10);
    EXPECT_EQ(sheet.value(3, 3).number(), 11);
}

}  // namespace
