// Order statistics, whole numbers, numerals, angles, matrices, bases and units.
#include <gtest/gtest.h>

#include "support/formula_sheet.h"

namespace {

TEST(OrderFunctions, RanksAndPercentiles) {
    FormulaSheet sheet;
    sheet.fill(1, {65, 70, 66, 65, 72, 37, 89, 70});
    sheet.fill(2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    constexpr FormulaCase cases[] = {
        {"MEDIAN(A:A)", "68"},
        {"MEDIAN(\"x\")", "#VALUE!"},
        {"MODE(A1:A8)", "65"},
        {"MODE(1,2,3)", "#N/A"},
        {"LARGE(A1:A8,2)", "72"},
        {"SMALL(A1:A8,9)", "#NUM!"},
        {"RANK(70,A1:A8)", "3"},
        {"RANK(70,A1:A8,1)", "5"},
        {"RANK.AVG(70,A1:A8)", "3.5"},
        {"RANK(71,A1:A8)", "#N/A"},
        {"PERCENTILE(B1:B10,0.4)", "4.6"},
        {"PERCENTILE.EXC(B1:B10,0.7)", "7.7"},
        {"PERCENTILE.EXC(B1:B10,0.05)", "#NUM!"},
        {"QUARTILE(B1:B10,1)", "3.25"},
        {"QUARTILE.EXC(B1:B10,1)", "2.75"},
        {"QUARTILE(B1:B10,5)", "#NUM!"},
        {"PERCENTRANK(B1:B10,7)", "0.666"},
        {"PERCENTRANK.EXC(B1:B10,2.5,7)", "0.2272727"},
        {"PERCENTRANK(B1:B10,11)", "#N/A"},
        {"TRIMMEAN(B1:B10,0.4)", "5.5"},
        {"TRIMMEAN({1,2,3,100},0.5)", "2.5"},
        {"TRIMMEAN(B1:B10,1)", "#NUM!"},
        {"SKEW(1,2,9)=SKEW(2,3,10)", "TRUE"},
        {"ROUND(KURT(3,4,5,2,3,4,5,6,4,7),6)", "-0.1518"},
    };
    expectResults(sheet, cases);
}

TEST(ElementaryFunctions, EdgesOfTheirDomains) {
    FormulaSheet sheet;
    constexpr FormulaCase cases[] = {
        {"POWER(0,0)", "#NUM!"},
        {"POWER(0,-1)", "#DIV/0!"},
        {"POWER(-8,1/3)", "#NUM!"},
        {"SQRT(-1)", "#NUM!"},
        {"LN(0)", "#NUM!"},
        {"LOG(1000)", "3"},
        {"LOG(8,2)", "3"},
        {"LOG(5,1)", "#DIV/0!"},
        {"EXP(1000)", "#NUM!"},
        {"ATAN2(0,0)", "#DIV/0!"},
        {"DEGREES(ATAN2(-1,1))", "135"},
        {"COT(0)", "#DIV/0!"},
        {"SIN(1E9)", "#NUM!"},
        {"DEGREES(ACOT(-1))", "135"},
        {"ACOTH(1)", "#NUM!"},
        {"CSCH(1000)", "0"},
        {"SECH(0)", "1"},
        {"ACOS(2)", "#NUM!"},
        {"RADIANS(180)=PI()", "TRUE"},
        {"FACT(171)", "#NUM!"},
        {"FACT(5.9)", "120"},
        {"FACTDOUBLE(7)", "105"},
        {"COMBIN(52,5)", "2598960"},
        {"COMBIN(5,6)", "#NUM!"},
        {"COMBIN(60,30)", "118264581564861000"},
        {"COMBINA(4,3)", "20"},
        {"COMBIN(1E15,5E14)", "#NUM!"},
        {"PERMUT(100,3)", "970200"},
        {"GCD(24,36,\"60\")", "12"},
        {"GCD(-2)", "#NUM!"},
        {"GCD(TRUE,2)", "#VALUE!"},
        {"LCM(4,6,10)", "60"},
        {"LCM(9007199254740991,2)", "#NUM!"},
        {"MULTINOMIAL(2,3,4)", "1260"},
        {"ROMAN(499)", "CDXCIX"},
        {"ROMAN(499,1)", "LDVLIV"},
        {"ROMAN(499,2)", "XDIX"},
        {"ROMAN(499,3)", "VDIV"},
        {"ROMAN(499,4)", "ID"},
        {"ROMAN(4000)", "#VALUE!"},
        {"ROMAN(1994)", "MCMXCIV"},
        {"ARABIC(\" mcmxciv \")", "1994"},
        {"ARABIC(\"-IC\")", "-99"},
        {"ARABIC(\"ABC\")", "#VALUE!"},
        {"BASE(255,16,4)", "00FF"},
        {"BASE(0,2)", "0"},
        {"BASE(5,37)", "#NUM!"},
        {"DECIMAL(\"zap\",36)", "45745"},
        {"DECIMAL(\"12\",2)", "#NUM!"},
        {"RANDBETWEEN(2,1)", "#NUM!"},
        {"RANDBETWEEN(3,3.9)", "3"},
        {"STANDARDIZE(5,3,0)", "#NUM!"},
    };
    expectResults(sheet, cases);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(sheet("AND(RAND()>=0,RAND()<1,RANDBETWEEN(-2,2)<=2)"), "TRUE");
        EXPECT_EQ(sheet("ARABIC(ROMAN(" + std::to_string(i * 39) + ",4))"), std::to_string(i * 39));
    }
}

TEST(MatrixFunctions, SolveAndRefuse) {
    FormulaSheet sheet;
    const double stiffness[3][3] = {{4, -2, 0}, {-2, 5, -3}, {0, -3, 6}};
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 3; ++col) sheet.set(col + 1, row + 1, stiffness[row][col]);
    constexpr FormulaCase cases[] = {
        {"MDETERM(A1:C3)", "60"},
        {"MDETERM({0,1;1,0})", "-1"},
        {"MDETERM({1,2,3;4,5,6;7,8,9})", "0"},
        {"SUMPRODUCT(ABS(MMULT(MINVERSE(A1:C3),A1:C3)-MUNIT(3)))<1E-14", "TRUE"},
        {"SUMPRODUCT(TRANSPOSE(A1:C2)*{1,0;0,10;0,0})", "54"},
        {"INDEX(MMULT({1,2;3,4},{5,6;7,8}),2,1)", "43"},
        {"MINVERSE({1,2;2,4})", "#NUM!"},
        {"MINVERSE({0.1,0.3;0.3,0.9})", "#NUM!"},
        {"INDEX(MINVERSE({1E20,0;0,1}),2,2)", "1"},
        {"INDEX(MINVERSE({1,0;1E20,1}),2,1)", "-1E+20"},
        {"MDETERM(A1:C4)", "#VALUE!"},
        {"MDETERM({1,2;3,\"4\"})", "#VALUE!"},
        {"MMULT(A1:C3,A1:C2)", "#VALUE!"},
        {"MMULT({1E200},{1E200})", "#NUM!"},
        {"MMULT(A:A,1:1)", "#VALUE!"},
        {"MUNIT(0)", "#VALUE!"},
    };
    expectResults(sheet, cases);
}

TEST(EngineeringFunctions, BasesAndBits) {
    FormulaSheet sheet;
    constexpr FormulaCase cases[] = {
        {"DEC2BIN(-512)", "1000000000"},
        {"DEC2BIN(512)", "#NUM!"},
        {"DEC2HEX(255,4)", "00FF"},
        {"DEC2HEX(255,1)", "#NUM!"},
        {"DEC2HEX(-1,1)", "FFFFFFFFFF"},
        {"HEX2DEC(\"fF\")", "255"},
        {"HEX2DEC(\"8000000000\")", "-549755813888"},
        {"HEX2DEC(\"G\")", "#NUM!"},
        {"HEX2DEC(\"10000000000\")", "#NUM!"},
        {"OCT2DEC(7777777777)", "-1"},
        {"HEX2OCT(\"20000000\")", "#NUM!"},
        {"BIN2HEX(11111011,4)", "00FB"},
        {"BIN2DEC(2.3)", "#NUM!"},
        {"OCT2BIN(\"\")", "0"},
        {"BIN2DEC(TRUE)", "#VALUE!"},
        {"BITAND(13,25)", "9"},
        {"BITOR(13,10)", "15"},
        {"BITXOR(13,10)", "7"},
        {"BITAND(-1,1)", "#NUM!"},
        {"BITLSHIFT(12,-1)", "6"},
        {"BITLSHIFT(1,48)", "#NUM!"},
        {"BITRSHIFT(13,2)", "3"},
        {"BITRSHIFT(13,54)", "#NUM!"},
        {"DELTA(5,5)", "1"},
        {"GESTEP(4,5)", "0"},
        {"ERF(2,1000000)=ERFC(2)", "TRUE"},
        {"ROUND(ERF(0.5),9)", "0.520499878"},
    };
    expectResults(sheet, cases);
    for (int n = -512; n < 512; ++n) {
        const std::string number = std::to_string(n);
        EXPECT_EQ(sheet("BIN2DEC(DEC2BIN(" + number + "))"), number);
        EXPECT_EQ(sheet("HEX2DEC(OCT2HEX(BIN2OCT(DEC2BIN(" + number + "))))"), number);
    }
}

TEST(EngineeringFunctions, UnitsConvertWithinTheirQuantity) {
    FormulaSheet sheet;
    constexpr FormulaCase cases[] = {
        {"CONVERT(1,\"in\",\"mm\")", "25.4"},
        {"CONVERT(1,\"ft\",\"in\")", "12"},
        {"CONVERT(1,\"lbf\",\"N\")", "4.4482216152605"},
        {"CONVERT(1,\"psi\",\"kPa\")", "6.89475729316836"},
        {"CONVERT(1,\"atm\",\"Torr\")", "760"},
        {"CONVERT(1,\"lbm\",\"kg\")", "0.45359237"},
        {"CONVERT(1,\"ton\",\"lbm\")", "2000"},
        {"CONVERT(1,\"ha\",\"km2\")", "0.01"},
        {"CONVERT(1,\"m3\",\"l\")", "1000"},
        {"CONVERT(1,\"mm^3\",\"l\")", "0.000001"},
        {"CONVERT(1,\"ft^3\",\"in3\")", "1728"},
        {"CONVERT(1,\"gal\",\"cup\")", "16"},
        {"CONVERT(1,\"HP\",\"W\")", "745.699871582270"},
        {"CONVERT(1,\"PS\",\"W\")", "735.49875"},
        {"CONVERT(68,\"F\",\"C\")", "20"},
        {"CONVERT(-40,\"C\",\"F\")", "-40"},
        {"CONVERT(80,\"Reau\",\"C\")", "100"},
        {"CONVERT(0,\"C\",\"kel\")", "273.15"},
        {"CONVERT(2,\"kibyte\",\"bit\")", "16384"},
        {"CONVERT(36,\"km/h\",\"m/s\")", "10"},
        {"CONVERT(1,\"day\",\"min\")", "1440"},
        {"CONVERT(1,\"in\",\"g\")", "#N/A"},
        {"CONVERT(1,\"kft\",\"m\")", "#N/A"},
        {"CONVERT(1,\"pA\",\"Pa\")", "#N/A"},
        {"CONVERT(1,\"\",\"Pa\")", "#N/A"},
    };
    for (const FormulaCase& c : cases) {
        if (c.expected[0] == '#')
            EXPECT_EQ(sheet(c.formula), c.expected) << c.formula;
        else
            EXPECT_NEAR(sheet.value(c.formula).number(), std::stod(c.expected), 1e-12) << c.formula;
    }
}

}  // namespace
