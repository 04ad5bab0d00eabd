// Equations: how they are taken apart, translated, evaluated, and what happens when they fail.
#include <gtest/gtest.h>

#include <random>

#include "platform/window/message_box.h"
#include "standards/run_observer.h"
#include "standards/tw_standards_ss.h"
#include "support/shown_cells.h"
#include "support/standard_file.h"

namespace {

class Evaluation : public ::testing::Test {
  protected:
    Evaluation() {
        sheet.attachHidden();
        gSettings.current().diagnostics = true;
    }

    /// Loads a document and writes `values` into the variables in order; the rest is empty.
    void load(const std::string& document, const Vor_StringArray& values = {}) {
        library.writeStandard("Sheet", document);
        ASSERT_EQ(sheet.loadFile("Sheet"), Acad::eOk) << lastRunFailure().str();
        ASSERT_EQ(sheet.initVarCells(), Acad::eOk) << lastRunFailure().str();
        for (int i = 0; i < sheet.varCells().length(); ++i)
            ASSERT_EQ(sheet.varCells()[i].setNewValue(sheet,
                                                      values.isIndex(i) ? values[i] : Vor_String()),
                      Acad::eOk);
    }
    Vor_String value(const Vor_String& name) {
        int index = 0;
        return sheet.varCells().findVarCell(name, index) == Acad::eOk
                   ? sheet.varCells()[index].value()
                   : Vor_String("?");
    }
    Vor_String cell(int column, int row, Vor_Spread::Reading kind = Vor_Spread::Reading::value) {
        Vor_String text;
        sheet.getCellText(column, row, text, kind);
        return text;
    }

    TemporaryLibrary library;
    TwStandardsSS sheet;
    std::vector<MessageBox> boxes;
    MessageListenerScope listener{[this](const MessageBox& box) {
        boxes.push_back(box);
        return true;
    }};
};

TEST_F(Evaluation, TheWorkedExampleGivesItsFormulasAndResults) {
    library.write("prof/IPE.pr",
                  "IPE\t1\nSysName\tEnglish\tDutch\tGerman\tFrench\tI/O\th\tb\n"
                  "200\tIPE 200\tIPE 200\tIPE 200\tIPE 200\t1\t200\t100\n");
    load(documentOf({{"Input"},
                     {"String Column", "Double Thickness"},
                     {"Output"},
                     {"Double Width", "Double Length"},
                     {"Local"},
                     {"Double Gap"},
                     {"Calc"},
                     {"Gap=2*Thickness"},
                     {"Width=ROUNDTO(SECTIONSIZE(Column, 2) + Gap, 5)"},
                     {"Length=Width * 1.5"}}),
         {"IPE-200", "10.5"});
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    const char* formulas[] = {"2*B2", "ROUNDTO(SECTIONSIZE(A2, 2) + A6, 5)", "A4 * 1.5"};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(cell(1, 8 + i, Vor_Spread::Reading::formula), formulas[i]);
    EXPECT_EQ(value("Gap"), "21");
    EXPECT_EQ(value("Width"), "120");
    EXPECT_EQ(value("Length"), "180");
    EXPECT_EQ(cell(2, 4), "180");
    EXPECT_EQ(cell(2, 4, Vor_Spread::Reading::formula), "");
    EXPECT_TRUE(boxes.empty());
    const Vor_String coordinates[] = {"A4", "kept"};
    for (int i = 0; i < 2; ++i) {
        Vor_String coordinate = "kept";
        (void)sheet.getVarCoordName(i == 0 ? "width" : "None", coordinate);
        EXPECT_EQ(coordinate, coordinates[i]);
    }
}

TEST_F(Evaluation, ResultsTakeTheFormOfTheirVariable) {
    struct Case {
        const char* equation;
        const char* value;  // of the variable
        const char* shown;  // by its cell
    };
    const Case cases[] = {
        {"D=1/3", "0.3333333", "0.3333333"},
        {"D=2/3*10^6", "666666.6666667", "666666.6666667"},
        {"D=-0.00000004", "0", "0"},
        {"D=1e14*10", "1000000000000000", "old"},  // beyond what a number cell takes
        {"D=\"12.50\"", "12.50", "12.5"},
        {"D=\"abc\"", "abc", "old"},
        {"D=\"\"", "", ""},
        {"D=1=1", "1", "1"},
        {"D=1/0", "#DIV/0!", "#DIV/0!"},
        {"D=NA()", "#N/A", "#N/A"},
        {"D= D + 1 ", "8", "8"},
        {"I=2.5", "2.5", "3"},
        {"I=-2.5", "-2.5", "-3"},
        {"I=1/3", "0.3333333", "0"},
        {"S=1/3", "0.333333333333333", "0.333333333333333"},
        {"S=\"M\"&20", "M20", "M20"},
        {"S=\"007\"", "007", "007"},
        {"S=1=1", "TRUE", "TRUE"},
        {"S=1/0", "#DIV/0!", "#DIV/0!"},
        {"s=\"x\"", "x", "x"},
        {" D  =  3 ", "3", "3"},
        {"D==3", "3", "3"},
    };
    for (const Case& row : cases) {
        load(standardOf({}, {"Double D", "Int I", "String S"}, {}, {row.equation}),
             {"7", "7", "7"});
        EXPECT_EQ(sheet.calcCells(), Acad::eOk);
        const Vor_String equation(row.equation);
        const int target = equation.hasSubString("D", true) && !equation.beginsWith("I") ? 0
                           : equation.beginsWith("I")                                    ? 1
                                                                                         : 2;
        const char* names[] = {"D", "I", "S"};
        EXPECT_EQ(value(names[target]), row.value) << row.equation;
        const Vor_String shown = std::string_view(row.shown) == "old" ? "7" : row.shown;
        EXPECT_EQ(cell(1, 3 + target), shown) << row.equation;
    }
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Evaluation, WhatCannotBeEvaluatedIsReportedAndTheRestGoesOn) {
    struct Case {
        const char* equation;
        const char* name;        // as the message writes it
        const char* expression;  // empty: nothing is reported
    };
    const Case cases[] = {
        {"just a label", "", "just a label"},
        {"Unknown=1", "Unknown = ", "1"},
        {"=1", "", "1"},
        {"Out=Foo+1", "Out = ", "Foo+1"},
        {"Out=1+", "Out = ", "1+"},
        {"Out=", "Out = ", ""},
        {"Out=CallChild(x", "Out = ", "CallChild(x"},
        {"CallChildren=5", "CallChildren = ", "5"},
        {"MyCallChild", "", "MyCallChild"},
        {"Out=\"text\"", nullptr, nullptr},
        {"Out=1/0", nullptr, nullptr},
    };
    for (const Case& row : cases) {
        boxes.clear();
        load(standardOf({"Double In"}, {"Double Out", "Double After"}, {},
                        {row.equation, "After=In*2"}),
             {"4", "9"});
        EXPECT_EQ(sheet.calcCells(), Acad::eOk) << row.equation;
        EXPECT_EQ(value("After"), "8") << row.equation;
        if (!row.expression) {
            EXPECT_TRUE(boxes.empty()) << row.equation;
            continue;
        }
        EXPECT_EQ(cell(1, 4), "9") << row.equation;
        ASSERT_EQ(boxes.size(), 1U) << row.equation;
        EXPECT_EQ(boxes[0].icon, MessageIcon::exclamation);
        EXPECT_EQ(boxes[0].text,
                  std::string("The following equation failed:\n") + row.name + row.expression +
                      "\nSpreadsheet : " + sheet.filePath().str() +
                      " (line: 8)\nHere's a tip for finding the cause :\nIf this equation "
                      "contains variable names, then the translator does not know the value of "
                      "the variable. Make sure the variable exists either in input, output, local "
                      "declarations or among the gen_ variables.");
    }
    gSettings.current().diagnostics = false;
    boxes.clear();
    load(standardOf({}, {"Double Out"}, {}, {"label"}));
    EXPECT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Evaluation, LaterEquationsSeeEarlierOnesRowByRowAndTheLastAssignmentWins) {
    load(documentOf({{"Input"},
                     {"Double A"},
                     {"Output"},
                     {"Double B", "Double C"},
                     {"Calc"},
                     {"B=A+1", "C=B*10"},
                     {"", "B=B+C"},
                     {"A=B", "", "C=C+A"}}),
         {"1"});
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_EQ(value("B"), "22");
    EXPECT_EQ(value("C"), "42");
    EXPECT_EQ(value("A"), "22");
    const int last = 2;
    EXPECT_EQ(sheet.assignedIn(last), (control::CellAddress{3, 8}));
}

TEST_F(Evaluation, EquationsMayLookAtTheCellsOfOthersEvenWhenNobodyElseDoes) {
    const std::pair<const char*, const char*> cases[] = {
        {"A7", "2"},
        {"MAX(A7)", "2"},
        {"SUM(A7:A7)", "2"},
        {"INDIRECT(\"A\"&7)", "2"},
        {"OFFSET(A1,6,0)", "2"},
        {"INDEX(A7,1)", "2"},
        {"SUM(A:A)", "#CIRC!"},
    };
    for (const bool fills : {true, false}) {
        for (const auto& [format, expected] : cases) {
            load(standardOf({}, {"Double B", "Double C"}, {}, {"B=2", "C=" + std::string(format)}));
            sheet.setFillsEquationCells(fills);
            ASSERT_EQ(sheet.calcCells(), Acad::eOk);
            EXPECT_EQ(value("C"), expected) << format;
        }
    }
}

TEST_F(Evaluation, FormulaCellsMayLookAtTheCellsOfEquations) {
    using Formulas = std::vector<std::pair<std::string, std::string>>;
    const std::pair<Formulas, const char*> cases[] = {
        {{{"C1", "A7*10"}}, "20"},
        {{{"C1", "C2*10"}, {"C2", "D7+1"}, {"D7", "A7"}}, "30"},
        {{{"C1", "SUM(A6:A7)"}}, "2"},
        {{{"C1", "SUM(A6:INDEX(A:A,7))"}}, "2"},
        {{{"C1", "INDIRECT(\"A7\")"}}, "2"},
        {{{"C1", "OFFSET(A1,6,0)"}}, "2"},
        {{{"C1", "SUMIF(A6,\"Calc\",A7)&SUMIF(A1:A2,\">0\",A6)"}}, "20"},
        {{{"C1", "B4"}, {"B4", "A4"}}, "2"},  // the variable alone
    };
    for (const bool fills : {true, false}) {
        for (const int style : {0, 2}) {
            for (const auto& [formulas, expected] : cases) {
                load(withFormulas(standardOf({}, {"String C", "Double B"}, {}, {"B=2", "C=C1"}),
                                  formulas));
                sheet.setFillsEquationCells(fills);
                sheet.setRefStyle(style);
                ASSERT_EQ(sheet.calcCells(), Acad::eOk);
                EXPECT_EQ(value("C"), expected) << formulas[0].second << " " << fills << style;
            }
        }
    }
}

TEST_F(Evaluation, AFormulaBelowCalcIsTheEquationThatItShowsWhenItsTurnComes) {
    for (const bool fills : {true, false}) {
        load(withFormulas(standardOf({}, {"Double B", "Double L"}, {}, {"B=4", "L=LEN(C9)"}),
                          {{"C9", "IF(A7=4,\"B=\"&\"5\",\"\")"}}));
        sheet.setFillsEquationCells(fills);
        ASSERT_EQ(sheet.calcCells(), Acad::eOk);
        EXPECT_EQ(value("L"), "3") << fills;
        EXPECT_EQ(value("B"), "5") << fills;
    }
}

TEST_F(Evaluation, EquationsAreWrittenInA1WhateverTheSheetShows) {
    load(standardOf({"Double A"}, {"Double B", "String S"}, {}, {"B=A*2+A2", "S=B&\"R1C1\""}),
         {"5"});
    sheet.setRefStyle(2);
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_EQ(value("S"), "15R1C1");
    EXPECT_EQ(cell(1, 8, Vor_Spread::Reading::formula), "R[-6]C*2+R[-6]C");
    sheet.setRefStyle(0);
    EXPECT_EQ(cell(1, 8, Vor_Spread::Reading::formula), "A2*2+A2");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Evaluation, DeclarationsAreReadFromTheSheetAsItIs) {
    const std::string document = standardOf({"Double A"}, {"Double B"}, {}, {"B=Q", "B=A"});
    for (const char* declaration : {"Double A", "Double Q", "Double A"}) {
        load(document);
        ASSERT_EQ(sheet.loadFile("Sheet"), Acad::eOk);
        EXPECT_EQ(sheet.calcCells(), Acad::eInvalidInput);  // without variables
        sheet.setData(1, 2, declaration);
        ASSERT_EQ(sheet.initVarCells(), Acad::eOk);
        EXPECT_EQ(sheet.varCells()[0].name(), Vor_String(declaration + 7));
    }
}

TEST_F(Evaluation, AVariableReadsWhatItsCellShows) {
    load(standardOf({"Double A"}, {}, {}, {}), {"2.5"});
    Vor_String shown = "kept";
    EXPECT_EQ(TwVarCell("A", TwCellType::input, TwValueType::Double).getCurrentValue(sheet, shown),
              Acad::eInvalidInput);
    EXPECT_EQ(shown, "kept");
    EXPECT_EQ(sheet.varCells()[0].getCurrentValue(sheet, shown), Acad::eOk);
    EXPECT_EQ(shown, "2.5");
}

TEST_F(Evaluation, MissingCalcFails) {
    load(documentOf({{"Input"}, {"Output"}, {"Double B"}, {"B=1"}}));
    EXPECT_EQ(sheet.calcCells(), Acad::eInvalidInput);
    EXPECT_TRUE(lastRunFailure().hasSubString("\"Calc\"")) << lastRunFailure().str();
}

TEST_F(Evaluation, NamesakesAreDroppedWithAMessageEveryTime) {
    gSettings.current().diagnostics = false;
    const std::string document =
        standardOf({"Double A", "Double b"}, {"Int a", "Double C"}, {"String A"}, {"C=A+1"});
    for (int round = 0; round < 2; ++round) {
        boxes.clear();
        load(document, {"5", "1", "9"});
        ASSERT_EQ(sheet.varCells().length(), 5);
        ASSERT_EQ(sheet.calcCells(), Acad::eOk);
        EXPECT_EQ(sheet.varCells().length(), 3);
        EXPECT_EQ(value("C"), "6");
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0].caption, "Variable names must be unique");
        EXPECT_EQ(boxes[0].icon, MessageIcon::exclamation);
        EXPECT_EQ(boxes[0].text,
                  "There were duplicate variable names found in the standards file " +
                      sheet.filePath().str() +
                      ".\nThe duplicates will be ignored. Please correct this file.\n"
                      "Duplicate variable names:\n\na\nA");
    }
}

TEST_F(Evaluation, GenVariablesAreReplacedInEveryCell) {
    load(standardOf({"Double gen_Kind"}, {"Double Width", "String Grade"}, {},
                    {"Width = gen_Length / 2", "Grade=gen_Grade"}));
    sheet.setGenVars({"gen_Length", "gen_Grade", "unused"}, {"600", "S235"});
    sheet.replaceGenVars();
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_EQ(value("Width"), "300");
    EXPECT_EQ(value("Grade"), "S235");
    EXPECT_EQ(cell(1, 8, Vor_Spread::Reading::formula), "600 / 2");
    EXPECT_TRUE(boxes.empty());

    load(standardOf({}, {"Double Width"}, {}, {"Width = gen_Length / 2"}));
    sheet.setGenVars({}, {});
    sheet.replaceGenVars();
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(Evaluation, AValueThatReadsCalcIsFoundAsTheMarker) {
    load(standardOf({"String A"}, {"Double B"}, {}, {"B=1"}), {"calc"});
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_GT(boxes.size(), 1U);  // the rows below it are no equations
    EXPECT_EQ(value("B"), "1");
    // Values that are written into cells below it are equations when their turn comes.
    boxes.clear();
    load(standardOf({"String A", "String E"}, {"String B"}, {"String L"}, {}), {"calc", "L=5"});
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_EQ(value("L"), "5");
    EXPECT_EQ(boxes.size(), 4U);  // Output, Local, 5, Calc
    boxes.clear();
    load(standardOf({"String A"}, {"Double B"}, {}, {"B=2"}), {"other"});
    ASSERT_EQ(sheet.calcCells(), Acad::eOk);
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(value("B"), "2");
}

/// The variables and what their cells show after a run.
std::string dumpVariables(const TwStandardsSS& sheet) {
    std::string text;
    for (const TwVarCell& cell : sheet.varCells()) {
        Vor_String shown;
        sheet.getCellText(cell.column(), cell.row(), shown, Vor_Spread::Reading::data);
        text += cell.name().str() + "=" + cell.value().str() + " " + shown.str() + "\n";
    }
    return text;
}

/// Everything a sheet shows after a run.
std::string dump(const TwStandardsSS& sheet) {
    return dumpVariables(sheet) + shownCells(sheet);
}

/// What was prepared once must give what each cell's own text gives, in every run.
TEST_F(Evaluation, PreparedEquationsGiveTheSameAsTheTextsOfTheMoment) {
    gSettings.current().diagnostics = false;
    std::mt19937 random(11);
    const auto pick = [&](auto& list) -> decltype(auto) {
        return list[random() % std::size(list)];
    };
    const std::string types[] = {"Int ", "Double ", "String "};
    const std::string names[] = {"A", "Gap", "x.y", "B3", "gen_X", "Len", "Calc", "T T"};
    const std::string parts[] = {"1.5",
                                 "2",
                                 "\"t\"",
                                 "LEN(\"abc\")",
                                 "A",
                                 "Gap",
                                 "x.y",
                                 "B3",
                                 "gen_X",
                                 "T T",
                                 "ROUND(Gap,1)",
                                 "IF(A>2,Gap,B3)",
                                 "1/0",
                                 "ROUNDTO(Gap,5)",
                                 "A15",
                                 "SUM(A1:B30)",
                                 "INDIRECT(\"A15\")",
                                 "1E99",
                                 "RAND()*0"};
    const std::string operators[] = {"+", "*", "&", "-", ">", "/"};
    const Vor_String values[] = {"", "3", "2.75", "12", "Calc", "gen_X", "A=1"};
    for (int round = 0; round < 300; ++round) {
        std::vector<std::vector<std::string>> rows;
        std::vector<std::string> markers{"Input", "Output", "Local", "Calc"};
        // Half of the sheets never look at equation cells.
        const auto part = [&] {
            return parts[random() % (round % 2 == 0 ? 14 : std::size(parts))];
        };
        if (round % 3 == 0) std::shuffle(markers.begin(), markers.end(), random);
        for (const std::string& marker : markers) {
            rows.push_back({marker});
            for (int i = 0; i < 3; ++i) {
                if (marker != "Calc") {
                    rows.push_back({pick(types) + pick(names), "label"});
                    continue;
                }
                for (int j = 0; j < 2; ++j)
                    rows.push_back({pick(names) + "=" + part() + pick(operators) + part(),
                                    random() % 4 == 0 ? "no equation" : ""});
            }
        }
        library.writeStandard("Sheet", documentOf(rows));
        Vor_StringArray given;
        for (int i = 0; i < 12; ++i) given.append(pick(values));
        const auto start = [&](const char* genValue, bool isTouched) {
            ASSERT_EQ(sheet.loadFile("Sheet"), Acad::eOk) << lastRunFailure().str();
            if (isTouched) {
                sheet.setData(2, 1, "touched");
                sheet.setData(2, 1, "");
            }
            ASSERT_EQ(sheet.initVarCells(), Acad::eOk);
            for (int i = 0; i < sheet.varCells().length(); ++i)
                (void)sheet.varCells()[i].setNewValue(sheet, given[i]);
            sheet.setGenVars({"gen_X"}, {genValue});
            if (round % 4 == 0 && *genValue) sheet.replaceGenVars();
        };
        // Runs with other values before must not matter.
        for (const char* genValue : {"", "3"}) {
            start(genValue, false);
            sheet.setFillsEquationCells(*genValue);
            ASSERT_EQ(sheet.calcCells(), Acad::eOk);
        }
        std::string dumps[4];
        std::string variables;
        for (int way = 0; way < 5; ++way) {
            // Ways 0 and 1 prepare and remember; 2 starts from a touched sheet; 3 goes cell by
            // cell.
            start("7", way == 2);
            sheet.setFillsEquationCells(way != 4);
            if (way == 3) {
                sheet.dropDuplicates();
                int column = 0;
                int marker = 0;
                ASSERT_TRUE(sheet.findNext("Calc", false, 1, 1, column, marker));
                for (int row = marker + 1; row <= sheet.nrRows(); ++row)
                    for (column = 1; column <= sheet.nrCols(); ++column)
                        (void)sheet.calcCell(column, row);
            } else {
                ASSERT_EQ(sheet.calcCells(), Acad::eOk);
            }
            if (way == 0) variables = dumpVariables(sheet);
            EXPECT_EQ(dumpVariables(sheet), variables) << "way " << way << "\n" << documentOf(rows);
            if (way == 4) break;
            dumps[way] = dump(sheet);
            EXPECT_EQ(dumps[way], dumps[0]) << "way " << way << "\n" << documentOf(rows);
        }
        if (HasFailure()) return;
    }
}

}  // namespace
