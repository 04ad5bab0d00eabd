#include <gtest/gtest.h>

#include <cstring>

#include "spread/vor_spread.h"

namespace {

using control::Reading;

// Describes its arguments: kind and content of each. Takes the texts of every other one only, so
// that the rest has to be freed by the control.
int describe(SSValue* result, SSValue* arguments, short count) {
    Vor_String all;
    for (short i = 0; i < count; ++i) {
        SSValue& a = arguments[i];
        Vor_String text;
        if (a.status == ssEmpty) {
            all += "empty ";
        } else if (a.status != ssValid) {
            all += "error ";
        } else if (a.kind == ssWhole) {
            all += "whole " + Vor_String(a.whole, 0) + " ";
        } else if (a.kind == ssDouble) {
            all += "double " + Vor_String(a.number, 2) + " ";
        } else if (a.kind == ssCell) {
            all += "cell " + Vor_String(a.cell.col, 0) + "," + Vor_String(a.cell.row, 0) + " ";
        } else if (a.kind == ssRange) {
            all += "range " + Vor_String(a.range.col2, 0) + "," + Vor_String(a.range.row2, 0) + " ";
        } else if (i % 2 == 0 && getGlobalStr(a.text, text)) {
            EXPECT_EQ(a.text, nullptr);
            all += "text " + text + " ";
        } else {
            all += "untaken ";
        }
    }
    result->status = ssValid;
    result->kind = ssText;
    result->text = setGlobalStr(all);
    return 1;
}

int fails(SSValue* result, SSValue*, short) {
    result->status = ssValid;
    result->kind = ssText;
    result->text = setGlobalStr("never seen");
    return 0;
}

int givesNothing(SSValue*, SSValue*, short) {
    return 1;
}

int givesCell(SSValue* result, SSValue* arguments, short) {
    *result = arguments[0];
    return 1;
}

class CustomFunctionsTest : public testing::Test {
  protected:
    CustomFunctionsTest() {
        spread.attachHidden();
        spread.setNrCols(4, false);
        spread.setNrRows(4);
        spread.addCustomFunction("VALUES", 0, 6, describe, 0);
        spread.addCustomFunction("Cells", 0, 6, describe, 1);
        spread.addCustomFunction("FAILS", 0, 1, fails, 0);
        spread.addCustomFunction("NOTHING", 0, 1, givesNothing, 0);
        spread.addCustomFunction("SAME", 1, 1, givesCell, 1);
        spread.setData(1, 1, "12.5");
        spread.setData(1, 2, "text");
    }
    std::string result(const char* formula) {
        if (!spread.setFormula(4, 4, formula)) return "refused";
        Vor_String text;
        spread.getCellText(4, 4, text, Reading::value);
        return text.str();
    }
    Vor_Spread spread;
};

TEST_F(CustomFunctionsTest, ArgumentsArriveAsTheFlagsSay) {
    const std::pair<const char*, const char*> cases[] = {
        {"VALUES(A1,A2,A3,TRUE,1/0)", "double 12.5 untaken empty whole 1 error "},
        {"values(A2,,\"b\")", "text text empty text b "},
        {"CELLS(A1,A1:B3,2*3,\"x\")", "cell 1,1 range 2,3 double 6 untaken "},
        {"VALUES()", ""},
        {"FAILS()", "#VALUE!"},
        {"IFERROR(FAILS(),\"caught\")", "caught"},
        {"NOTHING()&\"!\"", "!"},
        {"SAME(A1)*2", "25"},
        {"SAME()", "refused"},
        {"SAME(1,2)", "refused"},
        {"UNKNOWN(1)", "refused"},
    };
    for (const auto& [formula, expected] : cases) EXPECT_EQ(result(formula), expected) << formula;
}

TEST_F(CustomFunctionsTest, RegisteringAgainReplaces) {
    EXPECT_EQ(result("NOTHING()"), "");
    EXPECT_TRUE(spread.addCustomFunction("nothing", 0, 1, fails, 0));
    EXPECT_EQ(result("NOTHING()"), "#VALUE!");
    EXPECT_TRUE(spread.addCustomFunction("NOTHING", 0, 1, givesNothing, 0));
    EXPECT_EQ(result("NOTHING()"), "");
    EXPECT_FALSE(spread.addCustomFunction("", 0, 1, fails, 0));
    EXPECT_FALSE(spread.addCustomFunction("X", 2, 1, fails, 0));
    EXPECT_FALSE(spread.addCustomFunction("X", 0, 1, nullptr, 0));
}

TEST_F(CustomFunctionsTest, CallsAnswerWithStatusAndLength) {
    SSHandle grid = &spread.grid();
    char buffer[32] = "old";
    EXPECT_EQ(SSGetDataLen(grid, 1, 2), 4);
    EXPECT_TRUE(SSGetData(grid, 1, 2, buffer));
    EXPECT_STREQ(buffer, "text");
    EXPECT_FALSE(SSGetData(grid, 5, 1, buffer));
    EXPECT_STREQ(buffer, "text");
    EXPECT_TRUE(SSGetFormula(grid, 1, 1, buffer));
    EXPECT_STREQ(buffer, "");
    double number = 3;
    EXPECT_FALSE(SSGetFloat(grid, 1, 2, number));
    EXPECT_EQ(number, 3);
    EXPECT_TRUE(SSGetFloat(grid, 1, 1, number));
    EXPECT_EQ(number, 12.5);
    spread.setNumberCell(1, 1, 0);
    EXPECT_EQ(SSGetCellType(grid, 1, 1), 12);
    spread.setNumberCell(1, 1, 2);
    EXPECT_EQ(SSGetCellType(grid, 1, 1), 14);
    EXPECT_FALSE(SSSetValue(grid, 1, 1, "text"));
    EXPECT_TRUE(SSSetRefStyle(grid, 2));
    EXPECT_TRUE(SSSetFormula(grid, 2, 1, "RC[-1]*2"));
    EXPECT_TRUE(SSSetRefStyle(grid, 1));
    EXPECT_TRUE(SSGetFormula(grid, 2, 1, buffer));
    EXPECT_STREQ(buffer, "A1*2");
    EXPECT_FALSE(SSSetRefStyle(grid, 3));
    EXPECT_FALSE(SSSetData(nullptr, 1, 1, "x"));
    EXPECT_EQ(SSLoadFromFile(nullptr, "x"), 0);
    SSSetBool(grid, 7, true);
    EXPECT_TRUE(SSSetFloat(grid, 1, 1, 4));
    SSGetValue(grid, 2, 1, buffer);
    EXPECT_STREQ(buffer, "8");
    SSSetBool(grid, 30, false);
    EXPECT_FALSE(SSGetBool(grid, 30));
    SSSetColWidth(grid, 1, 10);
    EXPECT_TRUE(SSGetBool(grid, 30));
    int pixels = 0;
    EXPECT_TRUE(SSGetColWidthInPixels(grid, 1, pixels));
    EXPECT_EQ(pixels, 80);
}

}  // namespace
