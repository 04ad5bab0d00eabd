#include <gtest/gtest.h>

#include "support/formula_sheet.h"

namespace {

using formula::ErrorCode;
using formula::Value;

class SumsTest : public testing::Test {
  protected:
    SumsTest() {
        sheet.fill(1, {1, 2, 3});
        sheet.set(1, 4, "7");
        sheet.set(1, 5, "seven");
        sheet.set(1, 6, Value::boolean(true));
        sheet.set(1, 8, "");
        sheet.set(2, 1, Value(ErrorCode::div0));
        sheet.set(2, 2, Value(ErrorCode::na));
    }
    FormulaSheet sheet;
};

TEST_F(SumsTest, CellsAndWrittenValuesCountDifferently) {
    constexpr FormulaCase cases[] = {
        {"SUM(A:A)", "6"},
        {"SUM(A4,A6)", "0"},
        {"SUM(\"7\",TRUE)", "8"},
        {"SUM({\"7\",TRUE,1})", "1"},
        {"SUM(\"seven\")", "#VALUE!"},
        {"SUM(1,,2)", "3"},
        {"PRODUCT(A1:A8)", "6"},
        {"PRODUCT(A4:A5)", "0"},
        {"SUMSQ(A1:A8,2)", "18"},
        {"COUNT(A:A)", "3"},
        {"COUNT(A4,\"7\",\"x\",TRUE,,B1,1/0)", "3"},
        {"COUNTA(A:A,\"\",)", "9"},
        {"COUNTBLANK(A1:A8)", "2"},
        {"COUNTBLANK(A:A)", "1048570"},
        {"AVERAGE(A:A)", "2"},
        {"AVERAGE(A4:A5)", "#DIV/0!"},
        {"AVERAGE(5,,10)", "5"},
        {"AVERAGEA(A1:A6)=7/6", "TRUE"},
        {"MIN(A4:A6)", "0"},
        {"MIN(5,,3)", "0"},
        {"MAX(A1:A6,-1)", "3"},
        {"MINA(A1:A6)", "0"},
        {"MAXA(-5,A6)", "1"},
        {"MAX(\"x\",1/0)", "#VALUE!"},
        {"VAR(1,2,3,4)=5/3", "TRUE"},
        {"VARA(A1,A6)", "0"},
        {"STDEV.P(A1:A5)=SQRT(2/3)", "TRUE"},
        {"STDEV(1)", "#DIV/0!"},
        {"STDEVP(1E30,1E30,1E30)", "0"},
        {"DEVSQ(A4:A5)", "#NUM!"},
        {"GEOMEAN(4,9)", "6"},
        {"GEOMEAN(4,0)", "#NUM!"},
        {"HARMEAN(2,6)", "3"},
    };
    expectResults(sheet, cases);
}

TEST_F(SumsTest, TheFirstErrorIsTheResult) {
    constexpr FormulaCase cases[] = {
        {"SUM(A1,B2,B1)", "#N/A"},
        {"SUM(B1:B2)", "#DIV/0!"},
        {"MAX(1,#REF!,B1)", "#REF!"},
        {"AVERAGE(B2,B1)", "#N/A"},
        {"ROUND(B2,B1)", "#N/A"},
        {"ROUND(\"x\",B1)", "#VALUE!"},
        {"SUMPRODUCT(A1:A2,B1:B2)", "#DIV/0!"},
        {"SUMXMY2(B1:B2,A1:A2)", "#DIV/0!"},
        {"MEDIAN(A1:B2)", "#DIV/0!"},
        {"LARGE(A1:A3,B2)", "#N/A"},
    };
    expectResults(sheet, cases);
}

TEST_F(SumsTest, PairsNeedANumberOnBothSides) {
    sheet.set(3, 1, 4);
    sheet.set(3, 3, 6);
    sheet.set(3, 4, 8);
    constexpr FormulaCase cases[] = {
        {"SUMXMY2(A1:A4,C1:C4)", "18"},         {"SUMX2PY2(A:A,C:C)", "62"},
        {"SUMX2MY2({1,2},{3;4})", "-20"},       {"SUMXMY2(A1:A3,C1:C4)", "#N/A"},
        {"SUMXMY2(A4:A5,C4:C5)", "#DIV/0!"},    {"SLOPE(C:C,A:A)", "1"},
        {"INTERCEPT(C1:C4,A1:A4)", "3"},        {"FORECAST(10,C1:C4,A1:A4)", "13"},
        {"CORREL(A1:A4,C1:C4)", "1"},           {"COVARIANCE.S(A1:A4,C1:C4)", "2"},
        {"STEYX(C1:C4,A1:A4)", "#DIV/0!"},      {"SUMPRODUCT(A1:A4,C1:C4)", "22"},
        {"SUMPRODUCT(A:A,C:C)", "22"},          {"SUMPRODUCT((A1:A3>1)*C1:C3)", "6"},
        {"SUMPRODUCT(A1:A3,A1:A2)", "#VALUE!"}, {"SERIESSUM(2,1,2,{1,1,1})", "42"},
    };
    expectResults(sheet, cases);
}

TEST_F(SumsTest, SubtotalsLeaveOtherSubtotalsOut) {
    sheet.fill(4, {10, 20});
    sheet.setFormula(4, 3, "subtotal(9,D1:D2)");
    sheet.set(4, 4, 5);
    sheet.setFormula(4, 5, "AGGREGATE(4,4,D1:D4)*100");
    constexpr FormulaCase cases[] = {
        {"SUBTOTAL(9,D:D)", "35"},
        {"SUBTOTAL(102,D:D)", "3"},
        {"SUBTOTAL(1,D1:D3)", "15"},
        {"SUBTOTAL(12,D1)", "#VALUE!"},
        {"AGGREGATE(9,4,D1:D4)", "65"},
        {"AGGREGATE(9,6,A1:B3)", "6"},
        {"AGGREGATE(14,6,A1:B3,2)", "2"},
        {"AGGREGATE(9,0,A1:B3)", "#DIV/0!"},
        {"AGGREGATE(14,6,A1:B3)", "#VALUE!"},
        {"AGGREGATE(20,6,A1)", "#VALUE!"},
    };
    expectResults(sheet, cases);
}

}  // namespace
