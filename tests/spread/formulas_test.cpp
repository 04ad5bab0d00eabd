// The Formulas dialog: reading files and looking values up without anybody, trying formulas with a
// user.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/resource_override.h"
#include "spread/formulas/calculating_sheet.h"
#include "spread/formulas/formulas_dialog.h"
#include "spread/formulas/formulas_starters.h"
#include "support/printed.h"
#include "support/temporary_folder.h"
#include "support/test_user.h"

namespace {

using control::Reading;
using testing::HasSubstr;
using Dlg = TwFormulasDlg;

constexpr int header = Vor_Spread::headerIndex;

std::string shown(const Vor_Spread& spread, int col, int row, Reading reading = Reading::data) {
    Vor_String text;
    spread.getCellText(col, row, text, reading);
    return text.str();
}

class FormulasTest : public testing::Test {
  protected:
    FormulasTest() {
        sheet.attachHidden();
        registerFromTable(sheet);
        sheet.setNrCols(6, false);
        sheet.setNrRows(5);
        writeTable();
    }

    // Section, Area, Bolts, Stocked: text, number with 2 decimals, whole number, check box.
    void writeTable() {
        Vor_Spread table;
        table.attachHidden();
        table.setNrCols(5, false);
        table.setNrRows(3);
        table.setRow(header, Vor_StringArray{"Section", "Area", "Bolts", "Stocked", "Note"});
        table.setNumberCell({2, -1, 2, -1}, 2);
        table.setNumberCell({3, -1, 3, -1}, 0);
        table.setCheckBoxCell({4, -1, 4, -1});
        table.setRow(1, Vor_StringArray{"HEA-200", "53.8", "4", "1", "20"});
        table.setRow(2, Vor_StringArray{"IPE-300", "53.81", "6", "0", ""});
        table.setRow(3, Vor_StringArray{"IPE-400", "", "", "1", "long"});
        ASSERT_TRUE(table.saveToFile(path("table.sss")));
    }

    Vor_String path(const char* name) const { return folder.inside(name); }
    std::string quoted(const char* name) const { return "\"" + folder.inside(name) + "\""; }
    /// `text` with FILE for the table's path in quotes.
    Vor_String formula(Vor_String text) const {
        text.replaceSubString("FILE", quoted("table.sss"), true);
        return text;
    }
    /// What a file whose cell A1 holds the formula shows there when the dialog evaluates it.
    std::string evaluated(const char* text) {
        EXPECT_TRUE(sheet.setFormula(1, 1, formula(text))) << text;
        EXPECT_TRUE(sheet.saveToFile(path("caller.sss")));
        Dlg dialog(nullptr);
        dialog.mode = Dlg::Mode::evaluateCell;
        dialog.fileName = path("caller.sss");
        dialog.cellColumn = dialog.cellRow = 1;
        EXPECT_EQ(dialog.doModal(), IDOK);
        return dialog.cellText.str();
    }

    TemporaryFolder folder;
    Printed host;
    HostScope scope{host};
    Vor_Spread sheet;
};

TEST_F(FormulasTest, ReadsAFileIntoTextsWithoutAnybody) {
    Vor_String title = "old";
    Vor_StringArray names{"old"};
    Vor_Array<Vor_StringArray> rows{{"old"}};
    ASSERT_TRUE(ReadSSFile(path("table.sss"), title, names, rows));
    EXPECT_EQ(title, "HEA-200");
    EXPECT_EQ(names, (Vor_StringArray{"Section", "Area", "Bolts", "Stocked", "Note"}));
    ASSERT_EQ(rows.length(), 3);
    EXPECT_EQ(rows[1], (Vor_StringArray{"IPE-300", "53.81", "6", "0", ""}));
    EXPECT_EQ(host.text, "Loading spreadsheet:" + folder.inside("table.sss") + "\n");
}

TEST_F(FormulasTest, FilesThatCannotBeReadGiveNothingAndSayWhy) {
    folder.write("damaged.sss", "vormant-sheet 1\nsize 2 1\ncells\nA1 \"half\n");
    for (const char* name : {"missing.sss", "damaged.sss", ""}) {
        host.text.clear();
        Vor_String title = "old";
        Vor_StringArray names{"old"};
        Vor_Array<Vor_StringArray> rows{{"old"}};
        EXPECT_FALSE(ReadSSFile(path(name), title, names, rows)) << name;
        EXPECT_TRUE(title.isEmpty() && names.isEmpty() && rows.isEmpty()) << name;
        EXPECT_THAT(host.text, HasSubstr("Formulas\n")) << name;
        const size_t told = host.text.find("Formulas\n");
        EXPECT_THAT(host.text.substr(told), HasSubstr(folder.inside(name))) << name;
    }
    EvaluateSS();
    EXPECT_THAT(host.text, HasSubstr("Loading spreadsheet:c:\\a\\t3.sss\n"));
}

// A program that reads files is stopped by no message box, and finds the module's own dialog.
TEST_F(FormulasTest, ReadingAFileStopsNobodyAndPutsTheModulesResourcesInFront) {
    struct Watched : Printed {
        explicit Watched(ModuleInstance module) : module(module) {}
        void print(std::string_view text) override {
            Printed::print(text);
            wasInFront = wasInFront && gResourceOverride.current() == module;
        }
        ModuleInstance module;
        bool wasInFront = true;
    } watched(this);
    const HostScope watching(watched);
    gResourceOverride.SaveDefaultResource(this);
    TestUser user;  // there is somebody who could be asked
    Vor_String title;
    Vor_StringArray names;
    Vor_Array<Vor_StringArray> rows;
    EXPECT_FALSE(ReadSSFile(path("missing.sss"), title, names, rows));
    EXPECT_TRUE(user.messages().empty());
    EXPECT_THAT(watched.text, HasSubstr("missing.sss"));
    user.whenOpens(Dlg::resourceNumber).presses(IDCANCEL);
    EvaluateSS();
    EXPECT_TRUE(watched.wasInFront);
    gResourceOverride.SaveDefaultResource(nullptr);
    EXPECT_EQ(gResourceOverride.current(), nullptr);
}

TEST_F(FormulasTest, LooksValuesUpInTheSheetOfAFile) {
    sheet.setData(1, 2, "IPE-300");
    sheet.setNumberCell(2, 2, 0);
    sheet.setData(2, 2, "6");
    struct Case {
        const char* formula;
        const char* expected;
    };
    const Case cases[] = {
        {"FROMTABLE(FILE,A1)", "HEA-200"},
        {"FROMTABLE(FILE,B2)*2", "107.62"},
        {"FROMTABLE(FILE,C2)*2", "12"},
        {"FROMTABLE(FILE,D1)+1", "2"},
        {"FROMTABLE(FILE,\"section\",\"AREA\",\"hea-200\")", "53.8"},
        {"FROMTABLE(FILE,\"Section\",\"Bolts\",A2)", "6"},
        {"FROMTABLE(FILE,\"Bolts\",\"Section\",B2)", "IPE-300"},
        {"FROMTABLE(FILE,\"Note\",\"Section\",40/2)", "HEA-200"},
        // A range names nothing: the text before it is looked for again.
        {"FROMTABLE(FILE,\"Section\",A1:B2,\"IPE-400\")", "IPE-400"},
        // No value.
        {"FROMTABLE(12,A1)", ""},
        {"FROMTABLE(FILE,A1:B2)", ""},
        {"FROMTABLE(FILE,\"A1\")", ""},
        {"FROMTABLE(FILE,\"Section\",\"Weight\",\"HEA-200\")", ""},
        {"FROMTABLE(FILE,\"Name\",\"Area\",\"HEA-200\")", ""},
        {"FROMTABLE(FILE,\"Section\",\"Area\",\"HEA-201\")", ""},
        {"FROMTABLE(FILE,1/0)", ""},
        {"FROMTABLE(\"c:\\nowhere\\table.sss\",A1)", ""},
        // A number cell without a number cannot be read.
        {"FROMTABLE(FILE,B3)", "#VALUE!"},
        {"FROMTABLE(FILE,\"Section\",\"Bolts\",\"IPE-400\")", "0"},
    };
    for (const Case& row : cases) EXPECT_EQ(evaluated(row.formula), row.expected) << row.formula;
    EXPECT_THAT(host.text, HasSubstr("Result is string: HEA-200\n"));
    EXPECT_THAT(host.text, HasSubstr("Result is double: 53.810000\n"));
    EXPECT_THAT(host.text, HasSubstr("Result is long: 6\n"));
    EXPECT_THAT(host.text, HasSubstr("FROMTABLE: cannot read c:\\nowhere\\table.sss"));
    EXPECT_FALSE(sheet.setFormula(1, 1, "FROMTABLE(\"x\")"));
    EXPECT_FALSE(sheet.setFormula(1, 1, "FROMTABLE(\"x\",A1,A1,A1,A1)"));
}

TEST_F(FormulasTest, CopiesATextIntoTheCallingSheet) {
    struct Case {
        const char* formula;
        const char* before;  // of cell B2
        const char* after;
    };
    const Case cases[] = {
        {"FROMTABLE(FILE,B2,B2)", "old", "53.81"},
        {"FROMTABLE(FILE,\"Section\",B2)", "old", "old"},
        {"FROMTABLE(FILE,B2,\"B2\")", "old", "old"},
        {"FROMTABLE(\"missing\",B2,B2)", "old", "old"},
    };
    for (const Case& row : cases) {
        sheet.setData(2, 2, row.before);
        ASSERT_TRUE(sheet.setFormula(1, 1, formula(row.formula))) << row.formula;
        {
            const CalculatingSheet calculating(sheet);
            ASSERT_TRUE(sheet.reCalcCell(1, 1));
        }
        EXPECT_EQ(shown(sheet, 2, 2), row.after) << row.formula;
        EXPECT_EQ(shown(sheet, 1, 1), "") << row.formula;
        EXPECT_EQ(CalculatingSheet::current(), nullptr);
    }
    // Its own cell: the formula gives way to the text, when it is done.
    ASSERT_TRUE(sheet.setFormula(1, 1, formula("FROMTABLE(FILE,B2,A1)")));
    {
        const CalculatingSheet calculating(sheet);
        sheet.reCalcCell(1, 1);
    }
    EXPECT_EQ(shown(sheet, 1, 1), "53.81");
    EXPECT_EQ(shown(sheet, 1, 1, Reading::formula), "");
}

TEST_F(FormulasTest, OutsideOfAnEvaluationNothingIsLookedUp) {
    ASSERT_TRUE(sheet.setFormula(1, 1, formula("FROMTABLE(FILE,B2)&\"none\"")));
    EXPECT_EQ(shown(sheet, 1, 1), "none");
    EXPECT_EQ(host.text, "");
}

TEST_F(FormulasTest, TablesThatLookEachOtherUpEnd) {
    Vor_String self = formula("FROMTABLE(FILE,A1)&FROMTABLE(FILE,A1)");
    self.replaceSubString("table.sss", "caller.sss", true);
    EXPECT_EQ(evaluated(self.c_str()), "");
    EXPECT_THAT(host.text, HasSubstr("without end"));
}

TEST_F(FormulasTest, AUserTriesFormulasOnASheet) {
    TestUser user;
    const auto typesIntoGrid = [](int col, int row, const char* text) {
        return [=](CDialog& dialog) {
            EXPECT_TRUE(static_cast<Dlg&>(dialog).grid().userEnters(col, row, text)) << text;
        };
    };
    const auto shows = [](int col, int row, std::string expected) {
        return [=](CDialog& dialog) {
            EXPECT_EQ(shown(static_cast<Dlg&>(dialog).grid(), col, row), expected);
        };
    };
    user.whenOpens(Dlg::resourceNumber)
        .does(typesIntoGrid(2, 2, "3"))
        .does(typesIntoGrid(4, 1, "=B2*2"))
        .does(shows(4, 1, "6.00"))
        .does(typesIntoGrid(2, 2, "4"))
        .does(shows(4, 1, "6.00"))
        .presses(Dlg::recalculate)
        .does(shows(4, 1, "8.00"))
        .presses(Dlg::autoCalculate)
        .does(typesIntoGrid(2, 2, "5"))
        .does(shows(4, 1, "10.00"))
        .does([](CDialog& dialog) {
            EXPECT_FALSE(dialog.item(Dlg::recalculate)->isEnabled());
            EXPECT_FALSE(static_cast<Dlg&>(dialog).grid().userEnters(5, 5, "=NONSENSE(1)"));
            EXPECT_FALSE(static_cast<Dlg&>(dialog).grid().userEnters(5, 5, "10000"));
        })
        .presses(Dlg::autoCalculate)
        .presses(Dlg::r1c1Style)
        .does(shows(1, 1, "R[1]C[-2]*2"))
        .presses(Dlg::a1Style)
        .does(shows(1, 1, "B2*2"))
        .does(typesIntoGrid(1, 5, "7"))
        .presses(Dlg::defaultStyle)
        .does(shows(1, 5, "7.00"))
        .types(Dlg::fileNameBox, folder.inside("tried.sss"))
        .presses(Dlg::saveButton)
        .does(typesIntoGrid(2, 2, "1"))
        .presses(Dlg::loadButton)
        .does(shows(2, 2, "5.00"))
        .types(Dlg::fileNameBox, folder.inside("missing.sss"))
        .presses(Dlg::loadButton)
        .does(shows(2, 2, "5.00"))
        .types(Dlg::fileNameBox, folder.inside("no folder\\x.sss"))
        .presses(Dlg::saveButton)
        .presses(IDCANCEL);
    Dlg dialog(nullptr);
    EXPECT_EQ(dialog.doModal(), IDCANCEL);
    EXPECT_THAT(host.text, HasSubstr("Load failed\n"));
    EXPECT_THAT(host.text, HasSubstr("Save failed\n"));
    ASSERT_EQ(user.messages().size(), 2u);
    EXPECT_THAT(user.messages()[0].text, HasSubstr("missing.sss"));
    EXPECT_THAT(user.messages()[1].text, HasSubstr("no folder"));
}

TEST_F(FormulasTest, AFileThatAnotherProgramWroteIsLoadedAgainOrReplaced) {
    TestUser user;
    const std::string file = folder.inside("tried.sss");
    const auto typesAndSaves = [&](ScriptedUser::Answer& script, const char* text) {
        script
            .does([&, text](CDialog& dialog) {
                EXPECT_TRUE(sheet.setData(2, 2, "from elsewhere") && sheet.saveToFile(file));
                EXPECT_TRUE(static_cast<Dlg&>(dialog).grid().userEnters(2, 2, text));
            })
            .presses(Dlg::saveButton);
    };
    const auto shows = [](const char* expected) {
        return [=](CDialog& dialog) {
            EXPECT_EQ(shown(static_cast<Dlg&>(dialog).grid(), 2, 2), expected);
        };
    };
    auto& script = user.whenOpens(Dlg::resourceNumber);
    script.types(Dlg::fileNameBox, file).presses(Dlg::saveButton);
    for (const int answer : {IDCANCEL, IDYES, IDNO})
        user.whenMessage("was changed by another program").presses(answer);
    typesAndSaves(script, "3");
    script.does(shows("3.00")).presses(Dlg::loadButton);
    typesAndSaves(script, "4");
    script.does(shows("4")).presses(Dlg::loadButton).does(shows("4"));
    typesAndSaves(script, "5");
    script.does(shows("from elsewhere")).presses(IDCANCEL);
    Dlg dialog(nullptr);
    EXPECT_EQ(dialog.doModal(), IDCANCEL);
    EXPECT_EQ(user.messages().size(), 3u);
}

TEST_F(FormulasTest, WithAUserTheDialogStaysOpenAfterALookUp) {
    TestUser user;
    user.whenOpens(Dlg::resourceNumber)
        .does([](CDialog& dialog) {
            EXPECT_EQ(shown(static_cast<Dlg&>(dialog).grid(), 1, 1), "HEA-200");
        })
        .presses(IDCANCEL);
    const CalculatingSheet calculating(sheet);
    ASSERT_TRUE(sheet.setFormula(1, 1, formula("FROMTABLE(FILE,C1)")));
    EXPECT_EQ(shown(sheet, 1, 1), "4");
}

}  // namespace
