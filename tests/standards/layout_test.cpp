// Where a standard's sections lie, and what they declare.
#include <gtest/gtest.h>

#include "standards/declarations.h"
#include "standards/prepared_standard.h"
#include "standards/run_observer.h"
#include "standards/tw_standards_ss.h"
#include "support/standard_file.h"

namespace {

/// "i Double Width A4" and so on; '!' when there are no variables to be had.
std::string declared(TemporaryLibrary& library, const std::vector<std::vector<std::string>>& rows) {
    library.writeStandard("Sheet", documentOf(rows));
    TwStandardsSS sheet;
    sheet.attachHidden();
    EXPECT_EQ(sheet.loadFile("Sheet"), Acad::eOk) << lastRunFailure().str();
    if (sheet.initVarCells() != Acad::eOk) return "!";
    std::string text;
    for (const TwVarCell& cell : sheet.varCells()) {
        const char* types[] = {"Int", "Double", "String"};
        if (!text.empty()) text += "|";
        text += std::string(1, "iol"[static_cast<int>(cell.cellType())]) + " " +
                types[static_cast<int>(cell.valueType())] + " " + cell.name().str() + " " +
                coordinateName(cell).str();
        EXPECT_TRUE(cell.value().isEmpty());
    }
    return text;
}

TEST(Layout, SectionsRunToTheNearestMarkerBelowWhateverTheirOrder) {
    struct Case {
        std::vector<std::vector<std::string>> rows;
        const char* expected;
    };
    const Case cases[] = {
        {{{"Input"},
          {"String Column", "Double Thickness"},
          {"Output"},
          {"Double Width", "Double Length"},
          {"Local"},
          {"Double Gap"},
          {"Calc"},
          {"Gap=2*Thickness"}},
         "i String Column A2|i Double Thickness B2|o Double Width A4|o Double Length B4|"
         "l Double Gap A6"},
        // No rows of its own; markers in other columns; letter case.
        {{{"", "input"}, {"OUTPUT"}, {"Int N"}, {"Calc"}}, "o Int N A3"},
        // The row of the next marker still belongs to the section.
        {{{"Input"}, {"Int A", "Output", "Int B"}, {"Int C"}}, "i Int A A2|i Int B C2|o Int C A3"},
        // Another order; declarations are listed by kind all the same.
        {{{"Local"}, {"Int L"}, {"Output"}, {"Int O"}, {"Calc"}, {"O=1"}, {"Input"}, {"Int I"}},
         "i Int I A8|o Int O A4|l Int L A2"},
        // Above the first marker, labels, prefixes, blanks.
        {{{"Int Z"},
          {"Input", "x Input"},
          {"Integer n", "Doubles x", "  String   s  ", "Label", "double d"},
          {"Double", "Int", "Width mm"},
          {"Output"}},
         "i Int n A3|i Double x B3|i String   s C3|i Double  A4|i Int  B4"},
        {{{"Input"}, {"Int A"}}, "!"},
        {{{"Output"}, {"Int A"}}, "!"},
        {{{"Inputs"}, {"Output"}}, "!"},
        {{}, "!"},
    };
    TemporaryLibrary library;
    for (const Case& row : cases) EXPECT_EQ(declared(library, row.rows), row.expected);
}

TEST(Layout, ASheetThatClaimsAMillionRowsCostsWhatItHolds) {
    TemporaryLibrary library;
    library.writeStandard("Wide",
                          "vormant-sheet 1\nsize 16384 1048576\ncells\nA1 \"Input\nA2 \"Output\n"
                          "XFD1048000 \"Int Far\nA1048575 \"Calc\nXFD1048576 \"Far=1\nend 5\n");
    Vor_String failure;
    const auto variables = listDeclarations("Wide", failure);
    ASSERT_TRUE(variables) << failure.str();
    ASSERT_EQ(variables->length(), 1);
    EXPECT_EQ((*variables)[0].name(), "Far");
}

TEST(Layout, FilesAreFoundByPathOrByNameAndFailuresSayWhy) {
    TemporaryLibrary library;
    const std::string path =
        library.writeStandard("Plates/End", standardOf({"Int A", "Int a"}, {"Int B"}, {}, {}));
    Vor_String failure;
    for (const std::string& name : {path, std::string("Plates\\End"), std::string("plates\\END")}) {
        const auto variables = listDeclarations(name, failure);
        ASSERT_TRUE(variables) << name << failure.str();
        EXPECT_EQ(variables->length(), 2) << name;
    }
    EXPECT_FALSE(listDeclarations("Plates\\Missing", failure));
    EXPECT_TRUE(failure.hasSubString("Plates\\Missing.tws")) << failure.str();
    library.writeStandard("Broken", "vormant-sheet 1\nsize 1 1\ncells\nA1 \"Input\n");
    EXPECT_FALSE(listDeclarations("Broken", failure));
    EXPECT_TRUE(failure.hasSubString("Broken.tws:")) << failure.str();
    library.writeStandard("NoOutput", documentOf({{"Input"}}));
    EXPECT_FALSE(listDeclarations("NoOutput", failure));
    EXPECT_TRUE(failure.hasSubString("\"Output\"")) << failure.str();

    TwStandardsSS sheet;
    sheet.attachHidden();
    ASSERT_EQ(sheet.loadFile(path), Acad::eOk);
    EXPECT_EQ(sheet.loadFile("Missing"), Acad::eInvalidInput);
    EXPECT_EQ(sheet.filePath(), path.c_str());
}

}  // namespace
