#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runs/html_report.h"
#include "runs/named_request.h"
#include "support/standard_file.h"

namespace {

using runs::Calculation;
using testing::HasSubstr;
using testing::Not;

constexpr const char* child = R"(vormant-sheet 1
size 3 9
cells
A1 "Input
A2 "Double Gap
A3 "Output
A4 "Double Half
A5 "Calc
A6 "Half=Gap/2
end 6
)";

constexpr const char* parent = R"(vormant-sheet 1
size 4 20
cells
A1 "Plate <draft>
A2 "Input
B2 "Unit
C2 "Meaning
A3 "String Section
C3 "of the beam
A4 "Double Gap
B4 "mm
A5 "Output
B5 "Unit
C5 "Rule
A6 "Double Width
B6 "mm
C6 "EN 1993-1-8
A7 "Double Half
A8 "Double Bad
A9 "Calc
A10 "Width=IF(Section="IPE-300",Gap*2,-Gap)
A11 "CallChild("child.tws",Gap,Half)
A12 "Width=Width+Half
A13 "Bad=Half/(Gap-Gap)
A14 "Nonsense=1
end 22
)";

class Calculations : public testing::Test {
  protected:
    Calculation run(std::string_view gap) {
        m_folder.write("child.tws", child);
        m_folder.write("parent.tws", parent);
        return runFile("parent.tws", {"IPE-300", Vor_String(gap)});
    }
    Calculation runFile(const std::string& name, const Vor_StringArray& values) {
        const Vor_String path((m_folder.path() / name).string());
        Vor_String failure;
        auto request = runs::NamedRequest::open(path, failure);
        EXPECT_TRUE(request) << failure.str();
        for (int i = 0; i < values.length(); ++i) request->cells()[i].setNewValue(values[i]);
        runs::RunReport report;
        report.path = path.str();
        {
            runs::RunRecorder recorder(report);
            request->start();
        }
        m_results.clear();
        for (const TwVarCell& cell : request->cells())
            if (cell.isOutput()) m_results += cell.value().str() + " ";
        return runs::makeCalculation(report);
    }
    std::string m_results;  ///< that the request got back
    TemporaryFolder m_folder;
};

TEST_F(Calculations, ShowSymbolsNumbersAndResultsOfTheirMoment) {
    const Calculation calculation = run("12");
    ASSERT_EQ(calculation.lines.size(), 5u);
    const auto& first = calculation.lines[0];
    EXPECT_EQ(first.name, "Width");
    // A text in quotes is no name, even when a variable is called so.
    EXPECT_EQ(first.numbers, "IF(\"IPE-300\"=\"IPE-300\",12*2,-12)");
    EXPECT_EQ(first.result, "24");
    EXPECT_EQ(first.unit, "mm");
    EXPECT_EQ(first.rule, "EN 1993-1-8");
    // The call gave Half its value; Width has that of the first equation.
    ASSERT_TRUE(calculation.lines[1].child);
    EXPECT_EQ(calculation.lines[1].child->lines[0].numbers, "12/2");
    EXPECT_EQ(calculation.lines[2].numbers, "24+6");
    EXPECT_EQ(calculation.lines[2].result, "30");
    EXPECT_TRUE(calculation.lines[3].isError);
    EXPECT_FALSE(calculation.lines[4].ok);
    EXPECT_THAT(calculation.lines[4].message, HasSubstr("Nonsense"));
}

TEST_F(Calculations, WholeNumbersAndGivenValuesAreShownWhereTheyCount) {
    m_folder.write(
        "child.tws",
        documentOf({{"Input"}, {"Double G"}, {"Output"}, {"Int H"}, {"Calc"}, {"H=G/2"}}));
    m_folder.write("whole.tws", documentOf({{"Input"},
                                            {"Double A", "Int N"},
                                            {"Output"},
                                            {"Int B", "Double C", "Int T", "Int Bad"},
                                            {"Local"},
                                            {"Double L"},
                                            {"Calc"},
                                            {"B=A/2"},
                                            {"CallChild(child.tws,A,C)"},
                                            {"CallChild(child.tws,C,L)"},
                                            {"T=\"1.5\""},
                                            {"Bad=\"x\""},
                                            {"A=B+N+C+L+T+Bad"},
                                            {"C=C+A"}}));
    const Calculation calculation = runFile("whole.tws", {"5", "2.5"});
    // An Int is rounded where its cell is read; a child hands on what it calculated, to outputs.
    EXPECT_EQ(calculation.lines[5].numbers, "3+3+2.5+0+2+0");
    EXPECT_EQ(calculation.lines[5].result, "10.5");
    EXPECT_EQ(m_results, "3 13 2 x ");
    std::string outputs;
    for (const auto& output : calculation.outputs) outputs += output.value + " ";
    EXPECT_EQ(outputs, m_results);
    EXPECT_EQ(calculation.inputs[0].value, "5");  // not what an equation made of it
    EXPECT_EQ(calculation.inputs[1].value, "2.5");
    EXPECT_EQ(calculation.lines[1].child->outputs[0].value, "2.5");
}

TEST(ShownValues, HaveSixFiguresAndNoExponent) {
    const std::pair<const char*, const char*> cases[] = {
        {"105.9861137", "105.986"}, {"0.6048367", "0.604837"}, {"0.0012345678", "0.00123457"},
        {"123456789", "123456789"}, {"-2.5", "-2.5"},          {"0", "0"},
        {"IPE-300", "IPE-300"},     {"#N/A", "#N/A"},          {"", ""}};
    for (const auto& [value, shown] : cases) EXPECT_EQ(runs::shownValue(value, ""), shown);
    EXPECT_EQ(runs::shownValue("5", "mm"), "5 mm");
}

TEST_F(Calculations, NegativeValuesGoInParentheses) {
    EXPECT_EQ(run("-3").lines[0].numbers, "IF(\"IPE-300\"=\"IPE-300\",(-3)*2,-(-3))");
}

TEST_F(Calculations, ReportTellsWhatAnEngineerChecks) {
    const std::string html = htmlReport(run("12"), {"Hall <3>", "M", "2026-11-25"});
    for (const char* part : {"Plate &lt;draft&gt;", "Hall &lt;3>", "EN 1993-1-8", "24+6",
                             "<b>= 30&nbsp;mm</b>", "#DIV/0!", "of the beam",
                             // Every cell is a text to a spreadsheet that opens the page.
                             "\n* { mso-number-format: \"\\@\"; }"})
        EXPECT_THAT(html, HasSubstr(part));
    EXPECT_THAT(html, Not(HasSubstr("<draft>")));
}

}  // namespace
