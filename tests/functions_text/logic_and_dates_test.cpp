#include <gtest/gtest.h>

#include <vector>

#include "spread/control/formula/functions/calendar.h"
#include "support/formula_sheet.h"

namespace {

TEST(LogicFunctions, ChooseAndJoinTruths) {
    FormulaSheet sheet;
    sheet.set(1, 1, "TRUE");
    sheet.set(1, 2, 1);
    expectResults(sheet, std::vector<FormulaCase>{
                             {"SUMPRODUCT(IF({1,0,1},{1,2,4},10))", "15"},
                             {"SUMPRODUCT(IFERROR({1,2}/{0,2},5))", "6"},
                             {"SUMPRODUCT(IFNA(MATCH({1,9},{1,2},0),-1))", "0"},
                             {"IF(TRUE,,5)", "0"},
                             {"IF(FALSE,5)", "FALSE"},
                             {"IFS(0,1,2,\"b\")", "b"},
                             {"IFS(FALSE,1)", "#N/A"},
                             {"IFS(FALSE,1,2)", "#VALUE!"},
                             {"SWITCH(\"a\",\"A\",1,2)", "1"},
                             {"SWITCH(3,1,\"x\")", "#N/A"},
                             {"SWITCH(3,1,\"x\",\"d\")", "d"},
                             {"AND(A1:A2)", "TRUE"},
                             {"AND(A1:A1)", "#VALUE!"},
                             {"AND(TRUE,\"x\")", "#VALUE!"},
                             {"AND(TRUE,)", "FALSE"},
                             {"OR({0,0,1})", "TRUE"},
                             {"OR(A2:A2>5,1/0)", "#DIV/0!"},
                             {"XOR(TRUE,TRUE,TRUE)", "TRUE"},
                             {"NOT(\"x\")", "#VALUE!"},
                             {"ISEVEN(-3.9)", "FALSE"},
                             {"ISODD(TRUE)", "#VALUE!"},
                             {"TYPE(A1:B2)", "64"},
                             {"ERROR.TYPE(#N/A)", "7"},
                             {"ISREF(OFFSET(A1,1,1))", "TRUE"},
                         });
}

TEST(DateFunctions, TheCalendarHasADayTooMany) {
    for (int day = 0; day <= formula::calendar::lastDay; day += day < 800 ? 1 : 97) {
        const auto date = formula::calendar::dateOf(day);
        EXPECT_EQ(formula::calendar::dayNumber(date), day);
    }
    FormulaSheet sheet;
    expectResults(sheet, std::vector<FormulaCase>{
                             {"DATE(1900,2,29)", "60"},
                             {"DATE(1900,3,1)", "61"},
                             {"DAY(60)&\"/\"&MONTH(60)", "29/2"},
                             {"DATE(2024,14,-1)", "45687"},
                             {"DATE(99,1,1)", "36161"},
                             {"DATE(1900,1,-1)", "#NUM!"},
                             {"DATE(10000,1,1)", "#NUM!"},
                             {"DATE(2024,1E9,1)", "#NUM!"},
                             {"DATE(9999,12,32)", "#NUM!"},
                             {"YEAR(2958466)", "#NUM!"},
                             {"WEEKDAY(DATE(2024,5,31),2)", "5"},
                             {"WEEKDAY(1,99)", "#NUM!"},
                             {"WEEKNUM(DATE(2027,1,1),21)", "53"},
                             {"ISOWEEKNUM(DATE(2024,12,30))", "1"},
                             {"ISOWEEKNUM(1)", "52"},
                             {"DATEVALUE(\"31 May 2024 12:00\")", "45443"},
                             {"TIMEVALUE(\"36:00\")", "0.5"},
                             {"TIME(25,-30,0)*48", "1"},
                             {"TIME(-1,0,0)", "#NUM!"},
                             {"HOUR(0.999999999)", "0"},
                             {"MINUTE(10/24/60-0.4/86400)&\":\"&SECOND(10/24/60-0.4/86400)", "9:0"},
                             {"TODAY()=INT(NOW())", "TRUE"},
                         });
}

TEST(DateFunctions, SpansAndWorkingDays) {
    FormulaSheet sheet;
    sheet.set(1, 1, 45413);  // Wednesday, 2024-05-01
    sheet.set(1, 2, 45421);
    sheet.set(1, 3, 45421);  // the same holiday twice
    sheet.set(1, 4, 45424);  // a Sunday
    expectResults(sheet, std::vector<FormulaCase>{
                             {"EDATE(DATE(2024,1,31),1)", "45351"},
                             {"EOMONTH(DATE(2024,3,15),-1)", "45351"},
                             {"EDATE(TRUE,1)", "#VALUE!"},
                             {"EDATE(1,-1)", "#NUM!"},
                             {"EOMONTH(1,1E300)", "#NUM!"},
                             {"DATEDIF(DATE(2020,2,29),DATE(2024,2,28),\"Y\")", "3"},
                             {"DATEDIF(2,1,\"d\")", "#NUM!"},
                             {"DATEDIF(1,2,\"w\")", "#NUM!"},
                             {"DAYS360(DATE(2024,1,31),DATE(2024,3,31))", "60"},
                             {"DAYS360(DATE(2024,1,30),DATE(2024,2,29),TRUE)", "29"},
                             {"YEARFRAC(DATE(2024,7,1),DATE(2023,7,1),1)", "1"},
                             {"YEARFRAC(1,2,5)", "#NUM!"},
                             {"NETWORKDAYS(A1,A1+30)", "23"},
                             {"NETWORKDAYS(A1+30,A1,A2:A4)", "-22"},
                             {"NETWORKDAYS.INTL(A1,A1+6,\"1111111\")", "0"},
                             {"NETWORKDAYS.INTL(A1,A1+6,11)", "6"},
                             {"NETWORKDAYS.INTL(A1,A1+6,8)", "#NUM!"},
                             {"NETWORKDAYS.INTL(A1,A1+6,\"11\")", "#VALUE!"},
                             {"WORKDAY(A1,6,A2:A4)", "45422"},
                             {"WORKDAY(A1,-1)", "45412"},
                             {"WORKDAY(A1+3,0)", "45416"},
                             {"WORKDAY(A1,1E9)", "#NUM!"},
                             {"WORKDAY.INTL(A1,1,\"1111111\")", "#VALUE!"},
                             {"WORKDAY.INTL(A1,5,7)", "45420"},
                         });
}

}  // namespace
