#include "spread/control/sheet.h"

#include <gtest/gtest.h>

#include <chrono>

#include "spread/control/formula/coerce.h"
#include "spread/control/stop_calculation.h"

namespace {

using control::Sheet;
using formula::ParseError;
using formula::Value;

class SheetTest : public testing::Test {
  protected:
    void number(int col, int row, double x) { sheet.setValue(col, row, Value(x)); }
    bool formula(int col, int row, std::string_view text) {
        return sheet.setFormula(col, row, text, error);
    }
    std::string shown(int col, int row) const {
        const Value v = sheet.value(col, row);
        switch (v.type()) {
            case formula::ValueType::number:
                return formula::numberToText(v.number());
            case formula::ValueType::boolean:
                return v.truth() ? "TRUE" : "FALSE";
            case formula::ValueType::error:
                return std::string(formula::errorText(v.error()));
            case formula::ValueType::text:
                return std::string(v.text());
            default:
                return "";
        }
    }
    Sheet sheet;
    ParseError error;
};

TEST_F(SheetTest, OperatorsHaveTheirUsualPrecedence) {
    number(1, 1, 7);
    const std::pair<const char*, const char*> cases[] = {
        {"1+2*3", "7"},        {"-2^2", "4"},          {"2^3^2", "64"},
        {"(1+2)*3", "9"},      {"10-4-3", "3"},        {"50%*2", "1"},
        {"1&2+3", "15"},       {"1+1=2", "TRUE"},      {"\"a\"&\"b\"=\"AB\"", "TRUE"},
        {"A1+1", "8"},         {"$A$1*2", "14"},       {"--\"3\"", "3"},
        {"1/0", "#DIV/0!"},    {"\"x\"+1", "#VALUE!"}, {"B9", "0"},
        {"1=TRUE", "FALSE"},   {"1E3+.5", "1000.5"},   {"\"a\"\"b\"", "a\"b"},
        {"#N/A", "#N/A"},      {"A1:A1", "7"},         {"3<>3", "FALSE"},
        {"1e308*10", "#NUM!"}, {" = 1 + 1 ", "2"},     {"2>=2", "TRUE"},
    };
    for (const auto& [text, expected] : cases) {
        ASSERT_TRUE(formula(3, 1, text)) << text << ": " << error.message;
        EXPECT_EQ(shown(3, 1), expected) << text;
    }
}

TEST_F(SheetTest, AreasCountCellByCellInsideAggregatesAndOnceElsewhere) {
    for (int row = 1; row <= 3; ++row) number(1, row, row);
    const std::pair<const char*, const char*> cases[] = {
        {"SUM(A1:A3*A1:A3)", "14"},
        {"MAX(IF(A1:A3>1,A1:A3,9))", "9"},
        {"SUM(IF(A1>5,1/0,A1:A3))", "6"},
        {"SUM(IFERROR(1/(A1:A3-2),10))", "10"},
        {"SUM(CHOOSE(2,1/0,A1:A3))", "6"},
        {"COUNT(1/(A1:A3>1))", "2"},
        {"SUM(-A1:A3,ABS(A1:A3-3))", "-3"},
        {"A1:A3*10", "20"},
        {"IF(A1:A3>1,\"more\",\"less\")", "more"},
        {"SUMPRODUCT((A1:A3>1)*A1:A3)", "5"},
    };
    for (const auto& [text, expected] : cases) {
        ASSERT_TRUE(formula(3, 2, text)) << text << ": " << error.message;
        EXPECT_EQ(shown(3, 2), expected) << text;
    }
    EXPECT_FALSE(formula(3, 2, "A1:B2*2") && shown(3, 2) != "#VALUE!");
}

TEST_F(SheetTest, RefusedFormulasChangeNothing) {
    ASSERT_TRUE(formula(1, 1, "1+1"));
    const std::string deep(300, '(');
    for (const std::string& text :
         {std::string("1+"), std::string("NOSUCH(1)"), std::string("Gap*2"), std::string("(1"),
          std::string("1 2"), std::string("\"open"), std::string("A1:"), std::string("XFE1"),
          std::string("A1048577"), std::string("{1,2;3}"), std::string("TRUE(1)"),
          std::string("1)"), std::string(), deep + "1" + std::string(300, ')'),
          std::string(100000, '('), std::string(100000, '-') + "1", std::string(40000, '1')}) {
        EXPECT_FALSE(formula(1, 1, text)) << text.substr(0, 40);
        EXPECT_FALSE(error.message.empty());
    }
    EXPECT_EQ(shown(1, 1), "2");
    EXPECT_EQ(*sheet.formula(1, 1), "1+1");
}

TEST_F(SheetTest, AutomaticRecalculationFollowsChangesThroughCellsAndAreas) {
    sheet.setAutomatic(true);
    number(1, 1, 1);
    formula(2, 1, "A1*2");
    formula(3, 1, "B1+1");
    formula(4, 1, "A1:A1+C1");
    formula(5, 1, "A:A");
    number(1, 1, 10);
    EXPECT_EQ(shown(3, 1), "21");
    EXPECT_EQ(shown(4, 1), "31");
    EXPECT_EQ(shown(5, 1), "10");
}

TEST_F(SheetTest, WithoutAutomaticNothingIsBuiltOnOldResults) {
    number(1, 1, 1);
    formula(2, 1, "A1*2");
    number(1, 1, 5);
    EXPECT_EQ(shown(2, 1), "2");
    formula(3, 1, "B1+1");
    EXPECT_EQ(shown(3, 1), "11");
    EXPECT_EQ(shown(2, 1), "10");
}

TEST_F(SheetTest, AFormulaThatComesWithItsResultIsAsOldAsWhatItReads) {
    for (const char* text : {"B1+1", "SUM(B1:B1)", "SUM(B:B)"}) {
        sheet.clear();
        formula(2, 1, "A1*2");
        number(1, 1, 5);
        sheet.propagate();  // B1 is dirty from now on
        sheet.putFormula(3, 1, text, Value(9.0), false);
        number(1, 1, 7);
        sheet.recalculateDirty();
        EXPECT_EQ(shown(3, 1), text[0] == 'B' ? "15" : "14") << text;
    }
}
TEST_F(SheetTest, CirclesAreFoundAndMended) {
    formula(1, 1, "B1+1");
    formula(2, 1, "C1+1");
    formula(3, 1, "A1+1");
    formula(4, 1, "A1*2");
    sheet.recalculate();
    EXPECT_EQ(shown(1, 1), "#CIRC!");
    EXPECT_EQ(shown(2, 1), "#CIRC!");
    EXPECT_EQ(shown(4, 1), "#CIRC!");
    number(3, 1, 1);
    sheet.recalculate();
    EXPECT_EQ(shown(4, 1), "6");
    formula(6, 1, "F1");
    EXPECT_EQ(shown(6, 1), "#CIRC!");
}

// Whichever formula of a circle is calculated first, the same cells are part of it.
TEST_F(SheetTest, CirclesDoNotDependOnWhereCalculatingBegins) {
    const char* formulas[] = {"SUM(B1:C1)", "IFERROR(A1,5)", "IFERROR(A1,7)", "IFERROR(E1,1)+F1",
                              "D1",         "IFERROR(D1,3)", "IFERROR(A1,9)"};
    std::string first;
    for (int start = 0; start < 7; ++start) {
        Sheet begun;
        for (int i = 0; i < 7; ++i) {
            const int col = (start + 3 * i) % 7;
            begun.loadFormula(col + 1, 1, formulas[col], Value());
        }
        begun.recalculate();
        sheet = begun;
        std::string all;
        for (int col = 1; col <= 7; ++col) all += shown(col, 1) + ",";
        if (start == 0) first = all;
        EXPECT_EQ(all, first) << "beginning with column " << start + 1;
    }
    EXPECT_EQ(first, "#CIRC!,#CIRC!,#CIRC!,#CIRC!,#CIRC!,3,9,");
}

TEST_F(SheetTest, AStoppedCalculationGoesOnLater) {
    number(1, 1, 1);
    for (int row = 2; row <= 3000; ++row)
        sheet.loadFormula(1, row, "SUMPRODUCT((B$1:B$500=0)*1)-500+A" + std::to_string(row - 1),
                          Value());
    int questions = 0;
    control::setStopCalculation([&] { return ++questions > 2; });
    sheet.recalculate();
    EXPECT_TRUE(sheet.isStopped());
    EXPECT_NE(shown(1, 3000), "1");
    control::setStopCalculation(nullptr);
    sheet.recalculateDirty();
    EXPECT_FALSE(sheet.isStopped());
    EXPECT_EQ(shown(1, 3000), "1");
    EXPECT_EQ(questions, 3);
}

TEST_F(SheetTest, TextsOfFormulasHaveALimitTogether) {
    constexpr int fits = static_cast<int>(Sheet::mostResultText / 32767);
    for (int row = 1; row <= fits + 2; ++row)
        sheet.loadFormula(1, row, "REPT(\"x\",32767)", Value());
    sheet.recalculate();
    EXPECT_EQ(shown(1, fits).size(), 32767U);
    EXPECT_EQ(shown(1, fits + 1), "#NUM!");
    sheet.deleteRows(1, 3);
    number(2, 1, 1);
    sheet.recalculate();
    EXPECT_EQ(shown(1, fits - 1).size(), 32767U) << "there is room again";
}

TEST_F(SheetTest, WholeColumnsCostWhatIsFilled) {
    for (int row = 1; row <= 2000; ++row) number(1, row, row), number(2, row, row % 3);
    const std::pair<const char*, const char*> cases[] = {
        {"SUMPRODUCT((A:A>5)*1)", "1995"},
        {"SUMPRODUCT((A:A>5)*(B:B=2))", "665"},
        {"SUMPRODUCT((A:A>1990)*1,A:A)", "19955"},
        {"SUMPRODUCT((A:A<5)*1)", "1046580"},
        {"SUM((A:A=\"\")*1)", "1046576"},
        {"SUM(IF(A:A>5,1,0))", "1995"},
        {"COUNT(1/(A:A>5))", "1995"},
        {"AVERAGE((A:A=A:A)*2)", "2"},
        {"MIN(A:A-1)", "-1"},
        {"COUNTA(A:A&\"\")", "1048576"},
        {"INDEX(A:A*2,5)", "10"},
        {"INDEX(A:A-1,5000)", "-1"},
        {"MATCH(2001,A:A+1,0)", "2000"},
        {"SUM(-(A:B>1998))", "-2"},
        {"SUM(A1:A3*(A:A>0))", "#N/A"},
        {"AND(A:A>=0)", "TRUE"},
        {"SUMPRODUCT((D:D=0)*1)", "1048576"},
        {"MAX(ABS(A:A-3000))", "3000"},
    };
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i) ASSERT_TRUE(formula(3, 1, "SUMPRODUCT((A:A>5)*(B:B<2)*A:A)"));
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_LT(taken.count(), 5.0) << "a million cells a hundred times take longer";
    for (const auto& [text, expected] : cases) {
        ASSERT_TRUE(formula(3, 2500, text)) << text << ": " << error.message;
        EXPECT_EQ(shown(3, 2500), expected) << text;
    }
}

TEST_F(SheetTest, AMillionLinksInAChainNeedNoStack) {
    constexpr int length = 1'000'000;
    number(1, 1, 1);
    for (int row = length; row >= 2; --row)
        sheet.loadFormula(1, row, "A" + std::to_string(row - 1) + "+1", Value());
    sheet.recalculate();
    EXPECT_EQ(shown(1, length), "1000000");
    number(1, 1, 2);
    sheet.recalculate();
    EXPECT_EQ(shown(1, length), "1000001");
}

TEST_F(SheetTest, ReferencesMoveWithRowsAndColumns) {
    for (int row = 1; row <= 10; ++row) number(1, row, row);
    formula(3, 1, "A5+A2");
    formula(3, 2, "$A$10");
    formula(3, 3, "A1:A1 + 0");
    sheet.insertRows(4, 2);
    EXPECT_EQ(*sheet.formula(3, 1), "A7+A2");
    EXPECT_EQ(*sheet.formula(3, 2), "$A$12");
    sheet.deleteRows(2, 1);
    EXPECT_EQ(*sheet.formula(3, 1), "A6+#REF!");
    sheet.recalculate();
    EXPECT_EQ(shown(3, 1), "#REF!");
    sheet.insertCols(1, 1);
    EXPECT_EQ(*sheet.formula(4, 2), "B1:B1 + 0");
    EXPECT_EQ(shown(4, 2), "1");
}

TEST_F(SheetTest, SwappedRowsCarryTheirFormulas) {
    number(1, 1, 3);
    number(1, 2, 4);
    formula(2, 1, "A1*10");
    formula(2, 2, "A2*100");
    sheet.swapRows(1, 2, 1);
    sheet.recalculate();
    EXPECT_EQ(*sheet.formula(2, 1), "A1*100");
    EXPECT_EQ(shown(2, 1), "400");
    EXPECT_EQ(shown(2, 2), "30");
}

TEST_F(SheetTest, NotationChangesKeepTheMeaning) {
    number(1, 1, 3);
    formula(2, 3, "A1+$A$1");
    sheet.setReferenceStyle(formula::ReferenceStyle::r1c1);
    EXPECT_EQ(*sheet.formula(2, 3), "R[-2]C[-1]+R1C1");
    ASSERT_TRUE(formula(2, 4, "R[-1]C*2")) << error.message;
    EXPECT_EQ(shown(2, 4), "12");
    sheet.setReferenceStyle(formula::ReferenceStyle::a1);
    EXPECT_EQ(*sheet.formula(2, 4), "B3*2");
}

TEST_F(SheetTest, DistancesBeyondEverySheetLeadNowhere) {
    number(1, 1, 3);
    sheet.setReferenceStyle(formula::ReferenceStyle::r1c1);
    for (const char* text : {"RC[65535]", "RC[-65537]", "RC[99999999]", "RC[-99999999]",
                             "SUM(RC[65535]:RC[65535])", "R[-99999999]C[-1]"}) {
        ASSERT_TRUE(formula(2, 1, text)) << text << ": " << error.message;
        EXPECT_EQ(shown(2, 1), "#REF!") << text;
    }
}

TEST_F(SheetTest, ACopyIsIndependent) {
    number(1, 1, 1);
    sheet.setValue(1, 2, Value::borrowedText("text"));
    formula(2, 1, "A1+1");
    Sheet copy(sheet);
    copy.setAutomatic(true);
    copy.setValue(1, 1, Value(5.0));
    copy.setValue(1, 2, Value());
    EXPECT_EQ(copy.value(2, 1).number(), 6);
    EXPECT_EQ(shown(2, 1), "2");
    EXPECT_EQ(shown(1, 2), "text");
}

TEST_F(SheetTest, FormulasThatAskForTooMuchMemoryGiveAnError) {
    number(1, 1, 5);
    ASSERT_TRUE(formula(2, 1, "SUM(" + std::string(40, '-') + "ROW(A:A))"));
    EXPECT_EQ(shown(2, 1), "#NUM!");
    ASSERT_TRUE(formula(2, 1, "SUM(LEN(REPT(\"x\",30000)&ROW(A1:A20000)))"));
    EXPECT_EQ(shown(2, 1), "#NUM!");
    ASSERT_TRUE(formula(2, 1, "SUM(--A:A)"));
    EXPECT_EQ(shown(2, 1), "5");
}

TEST_F(SheetTest, FormulasThatWouldTakeHoursGiveAnErrorInSeconds) {
    number(3, 2, 5);
    number(16383, 1048576, 5);
    for (const char* text :
         {"SUM(MATCH(ROW(A:A),ROW(A:A),0))", "IFERROR(SUM(MATCH(ROW(A:A),ROW(A:A),0)),7)",
          "SUM(LARGE(ROW(A1:A60000),ROW(A1:A60000)))", "SUM(WORKDAY(ROW(A:A),900000))",
          "TEXTJOIN(\",\",TRUE,C2:XFC1048576)"}) {
        ASSERT_TRUE(formula(2, 1, text)) << text;
        EXPECT_EQ(shown(2, 1), "#NUM!") << text;
    }
    ASSERT_TRUE(formula(2, 1, "MATCH(600000,ROW(A:A),0)"));
    EXPECT_EQ(shown(2, 1), "600000");
}

}  // namespace
