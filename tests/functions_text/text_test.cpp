#include <gtest/gtest.h>

#include <vector>

#include "support/formula_sheet.h"

namespace {

void expectOn(FormulaSheet& sheet, const std::vector<FormulaCase>& cases) {
    expectResults(sheet, cases);
}

TEST(TextFunctions, PartsAndCounts) {
    FormulaSheet sheet;
    sheet.set(1, 1, "\xC4pfel");
    expectOn(sheet, {
                        {"LEFT(A1,2)", "\xC4p"},
                        {"LEFT(\"abc\",)", ""},
                        {"LEFT(\"abc\",1E300)", "abc"},
                        {"LEFT(12.5,3)", "12."},
                        {"RIGHT(\"abc\",0)", ""},
                        {"MID(\"abc\",0,1)", "#VALUE!"},
                        {"MID(\"abc\",4,1)", ""},
                        {"MID(\"abc\",2,1E99)", "bc"},
                        {"LEN(TRUE)", "4"},
                        {"LEN(1/3)", "17"},
                        {"REPLACE(\"abc\",9,1,\"x\")", "abcx"},
                        {"REPT(\"ab\",2.9)", "abab"},
                        {"LEN(REPT(\"a\",32767))", "32767"},
                        {"REPT(\"a\",32768)", "#VALUE!"},
                        {"REPT(\"\",1E9)", ""},
                        {"TRIM(\"  a   b \")", "a b"},
                        {"CLEAN(CHAR(9)&\"a\"&CHAR(31)&CHAR(160))", "a\xA0"},
                        {"LOWER(A1)&UPPER(A1)", "\xE4pfel\xC4PFEL"},
                        {"PROPER(\"o'neil \"&CHAR(233)&\"LAN 2nd\")", "O'Neil \xC9lan 2Nd"},
                        {"CHAR(0)", "#VALUE!"},
                        {"UNICHAR(8364)", "\x80"},
                        {"UNICHAR(20013)", "#VALUE!"},
                        {"UNICODE(CHAR(128))", "8364"},
                        {"CODE(\"\")", "#VALUE!"},
                        {"EXACT(\"a\",\"A\")", "FALSE"},
                        {"T(5)&T(\"x\")", "x"},
                    });
}

TEST(TextFunctions, SearchingAndReplacing) {
    FormulaSheet sheet;
    expectOn(sheet, {
                        {"FIND(\"\",\"abc\",4)", "4"},
                        {"FIND(\"\",\"abc\",5)", "#VALUE!"},
                        {"FIND(\"B\",\"abc\")", "#VALUE!"},
                        {"SEARCH(\"B\",\"abc\")", "2"},
                        {"SEARCH(\"b*d\",\"abcd\")", "2"},
                        {"SEARCH(\"*d\",\"abcd\",2)", "2"},
                        {"SEARCH(\"~?\",\"ab?\")", "3"},
                        {"SEARCH(\"a?c\",\"ac abc\")", "4"},
                        {"SEARCH(\"~*a*c\",\"a*bc *abbc\",3)", "6"},
                        {"SEARCH(\"b*d\",\"db bbc\")", "#VALUE!"},
                        {"SEARCH(REPT(\"a*\",300)&\"b\",REPT(\"a\",32767))", "#VALUE!"},
                        {"SUBSTITUTE(\"aaa\",\"aa\",\"b\")", "ba"},
                        {"SUBSTITUTE(\"a-b-c\",\"-\",\"\",2)", "a-bc"},
                        {"LEN(SUBSTITUTE(REPT(\"a\",200),\"a\",REPT(\"b\",200)))", "#VALUE!"},
                        {"TEXTBEFORE(\"a-b-c\",\"-\",-1)", "a-b"},
                        {"TEXTAFTER(\"a-b-c\",\"-\",-2)", "b-c"},
                        {"TEXTBEFORE(\"aXbxc\",\"x\",2,1)", "aXb"},
                        {"TEXTAFTER(\"HEB 200\",{\"/\",\" \"})", "200"},
                        {"TEXTBEFORE(\"abc\",\"-\")", "#N/A"},
                        {"TEXTBEFORE(\"abc\",\"-\",1,0,1)", "abc"},
                        {"TEXTBEFORE(\"abc\",\"-\",,,,\"none\")", "none"},
                        {"TEXTBEFORE(\"abc\",\"-\",0)", "#VALUE!"},
                    });
}

TEST(TextFunctions, Joining) {
    FormulaSheet sheet;
    sheet.fill(1, {1, 2});
    sheet.set(2, 1, "x");
    expectOn(sheet, {
                        {"CONCAT(A1:B2,\"!\")", "1x2!"},
                        {"TEXTJOIN(\"-\",TRUE,A1:B2)", "1-x-2"},
                        {"TEXTJOIN(\"-\",FALSE,A1:B2,\"e\")", "1-x-2--e"},
                        {"TEXTJOIN({\",\",\";\"},TRUE,\"a\",\"b\",\"c\",\"d\")", "a,b;c,d"},
                        {"TEXTJOIN(\"\",FALSE,A:CU)", "1x2"},
                        {"TEXTJOIN(\",\",FALSE,D:E)", "#VALUE!"},
                        {"TEXTJOIN(\",\",TRUE,A:B)", "1,x,2"},
                        {"TEXTJOIN(\",\",TRUE,IF({1,0,1},{\"a\",\"b\",\"c\"},\"\"))", "a,c"},
                    });
}

TEST(TextFunctions, NumbersAndTexts) {
    FormulaSheet sheet;
    expectOn(sheet, {
                        {"TEXT(1234.5,\"#,##0.00\")&\" mm\"", "1,234.50 mm"},
                        {"TEXT(1,\"\"\"open\")", "#VALUE!"},
                        {"FIXED(1234.567,1)", "1,234.6"},
                        {"FIXED(1234.567,-2,TRUE)", "1200"},
                        {"FIXED(1,128)", "#VALUE!"},
                        {"DOLLAR(-1234.567)", "($1,234.57)"},
                        {"DOLLAR(-0.001)", "$0.00"},
                        {"VALUE(\"1 1/2\")", "1.5"},
                        {"VALUE(TRUE)", "#VALUE!"},
                        {"NUMBERVALUE(\"1.234,5\",\",\",\".\")", "1234.5"},
                        {"NUMBERVALUE(\"1,5\",\",\")", "1.5"},
                        {"NUMBERVALUE(\" 1 2 %%\")", "0.0012"},
                        {"NUMBERVALUE(\"\")", "0"},
                        {"NUMBERVALUE(\"1.2.3\")", "#VALUE!"},
                        {"VALUETOTEXT(\"a\"\"b\",1)", "\"a\"\"b\""},
                        {"VALUETOTEXT(#N/A)", "#N/A"},
                    });
}

}  // namespace
