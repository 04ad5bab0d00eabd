// What is found in a standard before anybody runs it.
#include "standards/check/standards_check.h"

#include <gtest/gtest.h>

#include "support/standard_file.h"

namespace {

/// "8:1 error: text" a line; paths of the library taken out.
std::string findings(const TemporaryLibrary& library, const std::string& name) {
    std::string text;
    for (const StandardsFinding& finding : checkStandard(name)) {
        Vor_String message = finding.message;
        message.replaceSubString(library.inside(), "");
        text +=
            std::to_string(finding.row) + ":" + std::to_string(finding.column) +
            (finding.severity == StandardsFinding::Severity::error ? " error: " : " warning: ") +
            message.str() + "\n";
    }
    return text;
}

struct Case {
    std::string document;
    std::vector<const char*> expected;  ///< the beginning of each finding
};

void expectFindings(TemporaryLibrary& library, const std::vector<Case>& cases) {
    for (const Case& row : cases) {
        library.writeStandard("Sheet", row.document);
        const std::string found = findings(library, "Sheet");
        std::string_view rest = found;
        for (const char* expected : row.expected) {
            EXPECT_TRUE(rest.starts_with(expected)) << row.document << found << expected;
            rest.remove_prefix(std::min(rest.find('\n') + 1, rest.size()));
        }
        EXPECT_EQ(rest, "") << row.document;
    }
}

TEST(Check, ASoundStandardHasNoFindings) {
    TemporaryLibrary library;
    expectFindings(library,
                   {{standardOf({"Double A", "String S"}, {"Double B", "String T"}, {"Double L"},
                                {"L=A*2", "B=IF(S=\"x\",L,gen_Gap)", "T=S&GETSYSNAME(S)"}),
                     {}}});
}

TEST(Check, MarkersAndDeclarations) {
    TemporaryLibrary library;
    expectFindings(
        library,
        {
            {documentOf({{"Label"}}),
             {"0:0 error: no cell reads \"Input\"", "0:0 error: no cell reads \"Output\"",
              "0:0 error: no cell reads \"Calc\""}},
            {documentOf({{"Input"}}),
             {"0:0 error: no cell reads \"Output\"", "0:0 error: no cell reads \"Calc\""}},
            {documentOf(
                 {{"Input"}, {"Output"}, {"Int A"}, {"Calc"}, {"A=1"}, {"Local"}, {"Int L"}}),
             {"6:1 error: there is no \"=\"", "7:1 error: the declaration of \"L\" lies below",
              "7:1 error: there is no \"=\"", "7:1 warning: nothing uses the local \"L\""}},
            {standardOf({"Double A", "Int"}, {"Double a", "Double B"}, {}, {"B=A"}),
             {"3:1 warning: this declares a variable without a name",
              "3:1 warning: no equation uses the input \"\"",
              "5:1 error: \"a\" is declared before"}},
            {standardOf({"Double Len", "Double RoundTo", "Double B5", "Double 12", "Double  x",
                         "Double a=b", "Double true"},
                        {"Double Out"}, {}, {"Out=Len+RoundTo+B5+12+true"}),
             {"2:1 warning: \"Len\" is also a function", "3:1 warning: \"RoundTo\" is also",
              "4:1 warning: \"B5\" looks like a cell", "5:1 warning: \"12\" takes the place",
              "6:1 warning: the name \" x\" begins with a blank",
              "6:1 warning: no equation uses the input \" x\"",
              "7:1 warning: the name \"a=b\" holds a", "7:1 warning: no equation uses",
              "8:1 warning: \"true\" is also a function"}},
        });
    EXPECT_EQ(findings(library, "Missing").substr(0, 11), "0:0 error: ");
    library.writeStandard("Broken", "vormant-sheet 1\nsize 1 x\n");
    EXPECT_NE(findings(library, "Broken").find("Broken.tws:2"), std::string::npos);
}

TEST(Check, EquationsAndTheUseOfVariables) {
    TemporaryLibrary library;
    expectFindings(library,
                   {
                       {standardOf({"Double A"}, {"Double B"}, {},
                                   {"label", "C=A", "B=A+", "B=Foo(A)", "B=X", "B=gen_"}),
                        {"7:1 error: there is no \"=\"", "8:1 error: no variable \"C\" is declared",
                         "9:1 error: the equation would be refused: ",
                         "10:1 error: the equation would be refused: ",
                         "11:1 error: the equation would be refused: ",
                         "12:1 error: the equation would be refused: "}},
                       {standardOf({"Double A", "Double Unused"}, {"Double B", "Double Never"},
                                   {"Double L", "Double M", "Double N", "Double O"},
                                   {"B=A+L", "L=1", "M=2", "B=N"}),
                        {"3:1 warning: no equation uses the input \"Unused\"",
                         "6:1 warning: no equation assigns the output \"Never\"",
                         "9:1 warning: the local \"M\" is assigned and never used",
                         "10:1 warning: the local \"N\" is used and never assigned",
                         "11:1 warning: nothing uses the local \"O\"",
                         "13:1 warning: the local \"L\" is used before"}},
                       {standardOf({"Double gen.Gap", "String Kind"}, {"Double B"}, {},
                                   {"B=IF(Kind=\"the kind\",gen.Gap,0)"}),
                        {"8:1 warning: the text in quotes holds the variable name \"Kind\""}},
                   });
}

TEST(Check, ChildCalls) {
    TemporaryLibrary library;
    library.writeStandard("Base", standardOf({"Double X"}, {"Double Y"}, {}, {"Y=X"}));
    library.writeStandard(
        "Back", standardOf({"Double X"}, {"Double Y"}, {}, {"CallChild(Sheet.tws, X, Y)"}));
    library.writeStandard(
        "Round", standardOf({"Double X"}, {"Double Y"}, {}, {"CallChild(Back.tws, X, Y)"}));
    library.writeStandard("Broken", "nothing");
    library.writeStandard("Childs/Detour", standardOf({"Double X"}, {"Double Y"}, {},
                                                      {"CallChild(..\\Sheet.tws, X, Y)"}));
    library.writeStandard(
        "Twice", standardOf({"Double X", "Double x"}, {"Double Y"}, {"Double Y"}, {"Y=X"}));
    const auto calling = [](const char* call) {
        return standardOf({"Double A"}, {"Double B"}, {}, {call});
    };
    const char* unused = "2:1 warning: no equation uses the input \"A\"";
    const char* unassigned = "4:1 warning: no equation assigns the output \"B\"";
    expectFindings(
        library,
        {
            {calling("CallChild(Base.tws, A, B)"), {}},
            {calling("CallChild(Base.tws)"),
             {unused, unassigned, "7:1 error: the call needs a file"}},
            {calling("CallChild Base.tws"), {unused, unassigned, "7:1 error: the call needs its"}},
            {calling("CallChild(None.tws, A, B)"),
             {unused, unassigned, "7:1 error: there is no child file \"None.tws\""}},
            {calling("CallChild(Base.tws, A, C)"), {unassigned, "7:1 error: the call names \"C\""}},
            {calling("CallChild(Base.tws, A)"), {unassigned, "7:1 error: the call names too few"}},
            {calling("CallChild(Base.tws, A, B, B)"), {"7:1 warning: the call names more"}},
            {calling("CallChild(Base.tws, A, A)"),
             {unassigned, "7:1 error: the input \"A\" stands in the place"}},
            {calling("CallChild(Broken.tws, A, B)"),
             {unused, unassigned, "7:1 error: the child cannot be loaded: "}},
            {calling("CallChild(Sheet.tws, A, B)"),
             {"7:1 error: the calls go in a circle: Sheet.tws > Sheet.tws"}},
            {calling("CallChild(Twice.tws, A, A, B)"),
             {"7:1 error: the child declares more than once: x: its results"}},
            {calling("CallChild(Detour.tws, A, B)"),
             {"7:1 error: the calls go in a circle: Sheet.tws > Detour.tws > Sheet.tws"}},
            {calling("CallChild(Round.tws, A, B)"),
             {"7:1 error: the calls go in a circle: Sheet.tws > Round.tws > Back.tws > Sheet.tws"}},
        });
    // As deep as runs go, and one deeper.
    library.writeStandard("Deep33", standardOf({"Double X"}, {"Double Y"}, {}, {"Y=X"}));
    for (int i = 32; i > 0; --i)
        library.writeStandard(
            "Deep" + std::to_string(i),
            standardOf({"Double X"}, {"Double Y"}, {},
                       {"CallChild(Deep" + std::to_string(i + 1) + ".tws, X, Y)"}));
    expectFindings(library, {{calling("CallChild(Deep2.tws, A, B)"), {}},
                             {calling("CallChild(Deep1.tws, A, B)"),
                              {"7:1 error: standards call each other more than 32 deep"}}});
}

}  // namespace
