// Ways there and back, matrices and units; what single formulas give stands in tests/formulas.
#include <gtest/gtest.h>

#include "support/formula_sheet.h"

namespace {

TEST(ElementaryFunctions, EdgesOfTheirDomains) {
    FormulaSheet sheet;

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
