// The tables page of the section library, as a user works on it.
#include "sections/dialogs/library_dialog.h"

#include <errno.h>
#include <gmock/gmock.h>

#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "frame/starters.h"
#include "platform/window/text_question.h"
#include "sections/section_types.h"
#include "spread/find_replace_dlg.h"
#include "support/failing_steps.h"
#include "support/own_settings.h"
#include "support/printed.h"
#include "support/temporary_folder.h"
#include "support/test_user.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Page = TablesPage;

constexpr const char* header = "SysName\tI/O\tEnglish\tDutch\tGerman\tFrench";

class LibraryDialogTest : public testing::Test {
  protected:
    using Step = std::function<void(Page&)>;

    LibraryDialogTest() {
        gSettings.setLibDir(folder.inside());
        folder.write("prof/HEA.pr", std::string("1\n") + header +
                                        "\tHeight\tWidth\tWeb\tFlange\tRadius\n"
                                        "100\t1\tHEA 100\t\t\t\t96\t100\t5\t8\t12\n"
                                        "120\t0\tHEA 120\t\t\t\t114\t120\t5\t8\t12\n");
        folder.write("prof/RHS.pr", std::string("10\n") + header +
                                        "\tHeight\tWidth\tWall\tRadius\n"
                                        "50x30x3\t1\tRHS\t\t\t\t50\t30\t3\t4\n");
    }
    ~LibraryDialogTest() override {
        gSettings = Vor_Settings();
        gSectionTables.reload();
    }

    /// Opens the library on a section, lets the user do the steps, and closes it.
    bool run(const std::vector<Step>& steps, int button = IDOK, const char* section = "") {
        auto& answer = user.whenOpens(LibraryDialog::resourceNumber);
        for (const Step& step : steps)
            answer.does([step](CDialog& dialog) {
                step(*dynamic_cast<LibraryDialog&>(dialog).tablesPage());
            });
        answer.presses(button);
        return StartDlgEditLibSections(data, section);
    }
    void answersToSaving(const char* table, int button) {
        user.whenMessage(std::string("The table <") + table + "> was changed. Save it?")
            .presses(button);
    }
    void asksForName(const char* name, int button = IDOK) {
        user.whenOpens(textQuestionNumber).types(textQuestionField, name).presses(button);
    }

    static std::vector<std::string> tables(const Page& page) {
        std::vector<std::string> names;
        for (const auto& item : page.itemAs<CListBox>(Page::tableList)->items())
            names.push_back(item.text);
        return names;
    }
    static std::string cell(Page& page, int col, int row) {
        return page.sheet().grid().text(col, row, control::Reading::data);
    }
    static std::string templateOf(const Page& page) {
        return page.itemAs<CComboBox>(Page::templateList)->selectedText();
    }
    static Step presses(int button) {
        return [button](Page& page) { EXPECT_TRUE(page.press(button)) << button; };
    }
    static Step picks(const char* table) {
        return [table](Page& page) {
            auto* list = page.itemAs<CListBox>(Page::tableList);
            list->userSelects(list->find(table));
        };
    }
    static Step picksTemplate(const Vor_String& display) {
        return [display](Page& page) {
            auto* list = page.itemAs<CComboBox>(Page::templateList);
            list->userSelects(list->find(display));
        };
    }
    static Step types(int col, int row, const char* text) {
        return [=](Page& page) { EXPECT_TRUE(page.sheet().userEnters(col, row, text)) << text; };
    }
    std::string file(const char* name) { return folder.read(std::string("prof/") + name + ".pr"); }

    OwnSettings own;
    TemporaryFolder folder;
    Printed host;
    HostScope installed{host};
    DlgEditLibData data;
    TestUser user;
};

// --- showing ------------------------------------------------------------------------------------

TEST_F(LibraryDialogTest, OpensOnTheTableAndSizeOfASection) {
    folder.write("prof/Castellated.dwg", "");
    run({[](Page& page) {
            EXPECT_THAT(tables(page), ElementsAre("HEA", "RHS"));
            EXPECT_EQ(page.itemAs<CListBox>(Page::tableList)->selectedText(), "HEA");
            EXPECT_EQ(page.sheet().currentRow(), 2);
            EXPECT_EQ(cell(page, 3, 2), "HEA 120");
            EXPECT_EQ(templateOf(page), "<I section>");
            const auto& items = page.itemAs<CComboBox>(Page::templateList)->items();
            ASSERT_EQ(items.size(), 25u);
            EXPECT_EQ(items[9].text, "<Rectangular tube>");
            EXPECT_EQ(items[24].text, "Castellated.dwg");
            EXPECT_FALSE(page.sheet().isChanged());
        }},
        IDCANCEL, "HEA-120");
    run({[](Page& page) { EXPECT_EQ(cell(page, 1, 1), "100"); }}, IDCANCEL, "NONE-1");
    EXPECT_EQ(data.tableNames.length(), 0) << "the caller's data after Cancel";
    run({picks("RHS")});
    EXPECT_EQ(data.tableNames, (Vor_StringArray{"HEA", "RHS"}));
}

TEST_F(LibraryDialogTest, WorksWithoutAnyTable) {
    for (const char* name : {"HEA.pr", "RHS.pr"})
        std::filesystem::remove(folder.path() / "prof" / name);
    run({[](Page& page) {
             for (const int id : {Page::deleteButton, Page::renameButton, Page::saveButton,
                                  Page::insertRowButton, Page::deleteRowButton})
                 EXPECT_FALSE(page.press(id)) << id;
             EXPECT_TRUE(page.press(Page::newButton));
         },
         presses(Page::saveButton)});
    EXPECT_EQ(file("New table"),
              std::string("-1\n") + header + "\tValue1\tValue2\n\t1\t\t\t\t\t0\t0\n");
}

// --- changing and saving ------------------------------------------------------------------------

TEST_F(LibraryDialogTest, AsksToSaveBeforeItShowsAnotherTableAndBeforeItCloses) {
    const std::string before = file("HEA");
    answersToSaving("HEA", IDCANCEL);
    answersToSaving("HEA", IDYES);
    answersToSaving("RHS", IDNO);
    run({types(7, 1, "97"), picks("RHS"),
         [](Page& page) {
             EXPECT_EQ(page.itemAs<CListBox>(Page::tableList)->selectedText(), "HEA");
             EXPECT_EQ(cell(page, 7, 1), "97");
         },
         picks("RHS"),
         [](Page& page) {
             EXPECT_EQ(cell(page, 1, 1), "50x30x3");
             EXPECT_EQ(templateOf(page), "<Rectangular tube>");
         },
         types(7, 1, "51")});
    EXPECT_NE(file("HEA"), before);
    EXPECT_THAT(file("HEA"), HasSubstr("\t97\t100\t"));
    EXPECT_THAT(file("RHS"), HasSubstr("\t50\t30\t"));
    Vor_String height;
    EXPECT_EQ(getSectionValue("HEA-100", 0, height), Acad::eOk);
    EXPECT_EQ(height, "97") << "what the rest of the program knows";
}

TEST_F(LibraryDialogTest, StaysOpenWhenTheUserOrTheDiskSaysNo) {
    const std::string before = file("HEA");
    answersToSaving("HEA", IDCANCEL);
    answersToSaving("HEA", IDYES);
    user.whenMessage("HEA.pr").presses(IDOK);
    answersToSaving("HEA", IDNO);
    auto full = std::make_shared<std::optional<FailingSteps>>();
    user.whenOpens(LibraryDialog::resourceNumber)
        .does([](CDialog& dialog) {
            auto& page = *dynamic_cast<LibraryDialog&>(dialog).tablesPage();
            page.sheet().userEnters(1, 1, "110");
        })
        .presses(IDOK)
        .does([&](CDialog& dialog) {
            EXPECT_FALSE(dialog.isEnded());
            full->emplace(FailingSteps::flushing, ENOSPC);
        })
        .presses(IDOK)
        .does([&](CDialog& dialog) {
            EXPECT_FALSE(dialog.isEnded());
            full->reset();
        })
        .presses(IDCANCEL);
    EXPECT_FALSE(StartDlgEditLibSections(data, ""));
    EXPECT_EQ(file("HEA"), before);
}

TEST_F(LibraryDialogTest, UndoesStepByStepUntilThereIsNothingToSave) {
    run({types(7, 1, "97"), presses(Page::insertRowButton),
         [](Page& page) {
             EXPECT_EQ(page.sheet().nrRows(), 3);
             EXPECT_EQ(cell(page, 2, 1), "1") << "a new size is in use";
             EXPECT_EQ(cell(page, 1, 2), "100");
             EXPECT_TRUE(page.sheet().userClicks(2, 1));
             EXPECT_EQ(cell(page, 2, 1), "0");
         },
         presses(Page::rowDownButton), [](Page& page) { EXPECT_EQ(cell(page, 1, 1), "100"); },
         presses(Page::deleteRowButton), [](Page& page) { EXPECT_EQ(page.sheet().nrRows(), 2); },
         presses(Page::undoButton), presses(Page::undoButton), presses(Page::undoButton),
         [](Page& page) {
             EXPECT_EQ(cell(page, 2, 1), "1");
             EXPECT_EQ(page.sheet().nrRows(), 3);
         },
         presses(Page::undoButton),
         [](Page& page) {
             EXPECT_EQ(page.sheet().nrRows(), 2);
             EXPECT_TRUE(page.sheet().isChanged());
         },
         presses(Page::undoButton),
         [](Page& page) {
             EXPECT_EQ(cell(page, 7, 1), "96");
             EXPECT_FALSE(page.sheet().isChanged());
             EXPECT_FALSE(page.press(Page::undoButton));
             EXPECT_FALSE(page.sheet().undo());
             EXPECT_FALSE(page.press(Page::saveButton));
         }});
}

TEST_F(LibraryDialogTest, KeepsTextsAsTheyAreTypedAndPastesRows) {
    run({types(1, 1, "050"),
         [](Page& page) {
             WindowSystem::current().setClipboardText("140\t1\tHEA 140\n160\n");
             page.sheet().setActiveCell(1, 2);
             EXPECT_TRUE(page.press(Page::pasteButton));
             EXPECT_EQ(page.sheet().nrRows(), 3);
             EXPECT_EQ(cell(page, 2, 3), "1");
             EXPECT_EQ(cell(page, Vor_Spread::headerIndex, 3), "HEA");
             EXPECT_TRUE(page.press(Page::undoButton));
             EXPECT_EQ(page.sheet().nrRows(), 2);
             WindowSystem::current().setClipboardText("1\t2\t3\n");
             page.sheet().setActiveCell(10, 1);
             EXPECT_TRUE(page.press(Page::pasteButton));
             EXPECT_EQ(page.sheet().nrCols(), 11);
         },
         presses(Page::saveButton)});
    ASSERT_EQ(user.messages().size(), 1u);
    EXPECT_THAT(user.messages()[0].text, HasSubstr("more fields in a line"));
    EXPECT_THAT(file("HEA"), HasSubstr("\n050\t1\t"));
}

TEST_F(LibraryDialogTest, ReplacedTextsCanBeSavedAndUndone) {
    user.whenMessage("cells").presses(IDOK);
    run({presses(Page::findButton), [](Page& page) {
             CDialog& find = *page.sheet().findDialog();
             find.type(TwFindReplaceDlg::findField, "HEA");
             find.type(TwFindReplaceDlg::replaceField, "HE-A");
             find.press(TwFindReplaceDlg::replaceAllButton);
             EXPECT_EQ(cell(page, 3, 2), "HE-A 120");
             EXPECT_TRUE(page.item(Page::saveButton)->isEnabled());
             EXPECT_TRUE(page.press(Page::undoButton));
             EXPECT_EQ(cell(page, 3, 2), "HEA 120");
             EXPECT_FALSE(page.sheet().isChanged());
         }});
}

TEST_F(LibraryDialogTest, AsksBeforeItReplacesAFileThatSomebodyElseChanged) {
    answersToSaving("HEA", IDYES);
    user.whenMessage("changed by another program").presses(IDCANCEL);
    answersToSaving("HEA", IDNO);
    run({types(1, 1, "110"), [this](Page&) { folder.write("prof/HEA.pr", "other\n"); },
         picks("RHS"),
         [](Page& page) {
             EXPECT_EQ(page.itemAs<CListBox>(Page::tableList)->selectedText(), "HEA");
         }});
    EXPECT_EQ(file("HEA"), "other\n");
}

TEST_F(LibraryDialogTest, LoadsOrReplacesAFileThatSomebodyElseChanged) {
    const std::string other = "1\nSysName\tI/O\tEN\n999\t1\tother\n";
    user.whenMessage("changed by another program").presses(IDNO);
    user.whenMessage("changed by another program").presses(IDYES);
    run({types(1, 1, "110"), [&](Page&) { folder.write("prof/HEA.pr", other); },
         [&](Page& page) {
             page.press(Page::saveButton);
             EXPECT_EQ(cell(page, 1, 1), "999");
             EXPECT_FALSE(page.sheet().isChanged());
             EXPECT_EQ(file("HEA"), other);
         },
         types(1, 1, "998"), [&](Page&) { folder.write("prof/HEA.pr", other + "1\t1\tone\n"); },
         [&](Page& page) {
             page.press(Page::saveButton);
             EXPECT_THAT(file("HEA"), HasSubstr("998"));
         }});
}

// --- tables that cannot be read -----------------------------------------------------------------

TEST_F(LibraryDialogTest, ShowsWhyATableCannotBeReadAndLeavesItsFileAlone) {
    const std::pair<const char*, const char*> bad[] = {
        {"1\nSysName\tI/O\n200\t\\x\n", ":3: a backslash stands alone"},
        {"1\n", "there are no column names"},
    };
    for (const auto& [content, why] : bad) {
        folder.write("prof/BAD.pr", content);
        run({picks("BAD"),
             [why = why](Page& page) {
                 EXPECT_EQ(page.sheet().nrRows(), 0);
                 EXPECT_THAT(page.item(Page::problemLabel)->text(), HasSubstr(why));
                 EXPECT_THAT(page.item(Page::problemLabel)->text(), HasSubstr("BAD.pr"));
                 for (const int id : {Page::renameButton, Page::saveButton, Page::insertRowButton,
                                      Page::rowNamesButton, Page::templateList})
                     EXPECT_FALSE(page.item(id)->isEnabled()) << id;
             },
             picks("RHS"),
             [](Page& page) { EXPECT_EQ(page.item(Page::problemLabel)->text(), ""); }});
        EXPECT_EQ(file("BAD"), content);
    }
}

TEST_F(LibraryDialogTest, ATableWithoutSizesGetsItsFirst) {
    folder.write("prof/NEW.pr", std::string("9\n") + header + "\tDiameter\n");
    run({picks("NEW"), presses(Page::insertRowButton), types(1, 1, "20"), types(7, 1, "20"),
         presses(Page::saveButton)});
    EXPECT_EQ(file("NEW"), std::string("9\n") + header + "\tDiameter\n20\t1\t\t\t\t\t20\n");
}

// --- tables that come, go and change their names ------------------------------------------------

TEST_F(LibraryDialogTest, ANewTableGetsAFreeNameAndIsOfferedForSaving) {
    folder.write("prof/New table.pr", file("RHS"));
    answersToSaving("New table_1", IDYES);
    answersToSaving("New table_2", IDNO);
    run({presses(Page::newButton),
         [](Page& page) {
             EXPECT_THAT(tables(page), ElementsAre("HEA", "New table", "RHS", "New table_1"));
             EXPECT_EQ(cell(page, 7, Vor_Spread::headerIndex), "Value1");
             EXPECT_EQ(cell(page, 8, 1), "0");
             EXPECT_EQ(templateOf(page), "");
         },
         picksTemplate("<Flat>"), types(1, 1, "10x5"), presses(Page::newButton),
         picks("New table_1"),
         [](Page& page) {
             EXPECT_THAT(tables(page), ElementsAre("HEA", "New table", "RHS", "New table_1"));
             EXPECT_EQ(cell(page, 1, 1), "10x5");
         }});
    EXPECT_EQ(file("New table_1"),
              std::string("8\n") + header + "\tWidth\tThickness\n10x5\t1\t\t\t\t\t0\t0\n");
    EXPECT_EQ(file("New table_2"), "");
}

TEST_F(LibraryDialogTest, RenamesTheFileWithWhatIsInTheSheet) {
    asksForName("Wide flange.pr");
    run({types(1, 1, "110"), presses(Page::renameButton), [](Page& page) {
             EXPECT_THAT(tables(page), ElementsAre("Wide flange", "RHS"));
             EXPECT_EQ(cell(page, Vor_Spread::headerIndex, 1), "Wide flange");
             EXPECT_EQ(templateOf(page), "<I section>");
             EXPECT_FALSE(page.sheet().isChanged());
         }});
    EXPECT_EQ(file("HEA"), "");
    EXPECT_THAT(file("Wide flange"), testing::StartsWith("1\nSysName"));
    EXPECT_THAT(file("Wide flange"), HasSubstr("\n110\t1\t"));
    int index = 0;
    EXPECT_FALSE(gSectionTables.hasTable("HEA", index));
    EXPECT_TRUE(gSectionTables.hasTable("Wide flange", index));
}

TEST_F(LibraryDialogTest, RefusesNamesThatAreTakenOrNone) {
    folder.write("prof/later.pr", "");
    const std::pair<const char*, const char*> refused[] = {
        {"rhs", "a table named \"rhs\" already"}, {"later", "a table named \"later\" already"},
        {"HE-A", "\"HE-A\" cannot be the name"},  {"a/b", "\"a/b\" cannot be the name"},
        {"..\\x", "cannot be the name"},          {"hea", "a table named \"hea\" already"},
        {"com1", "\"com1\" cannot be the name"},  {"Con.x", "\"Con.x\" cannot be the name"},
    };
    std::vector<Step> steps;
    for (const auto& [name, why] : refused) {
        asksForName(name);
        steps.push_back(presses(Page::renameButton));
    }
    for (const char* same : {"HEA", " HEA ", ""}) {
        asksForName(same);
        steps.push_back(presses(Page::renameButton));
    }
    asksForName("IPE", IDCANCEL);
    steps.push_back(presses(Page::renameButton));
    const std::string before = file("HEA");
    run(steps);
    ASSERT_EQ(user.messages().size(), std::size(refused));
    for (size_t i = 0; i < std::size(refused); ++i)
        EXPECT_THAT(user.messages()[i].text, HasSubstr(refused[i].second));
    EXPECT_EQ(file("HEA"), before);
}

TEST_F(LibraryDialogTest, AFailedRenameKeepsTheOldFile) {
    asksForName("HEB");
    const std::string before = file("HEA");
    run({[](Page& page) {
        const FailingSteps full(FailingSteps::opening, ENOSPC);
        page.press(Page::renameButton);
    }});
    EXPECT_THAT(user.messages().back().text, HasSubstr("HEB.pr"));
    EXPECT_EQ(file("HEA"), before);
}

TEST_F(LibraryDialogTest, DeletesATableAfterAskingAndShowsTheFirst) {
    user.whenMessage("Delete the table <RHS> and its file?").presses(IDNO);
    user.whenMessage("Delete the table <RHS> and its file?").presses(IDYES);
    run({picks("RHS"), presses(Page::deleteButton),
         [](Page& page) { EXPECT_THAT(tables(page), ElementsAre("HEA", "RHS")); },
         presses(Page::deleteButton),
         [](Page& page) {
             EXPECT_THAT(tables(page), ElementsAre("HEA"));
             EXPECT_EQ(cell(page, 1, 1), "100");
         }});
    EXPECT_EQ(file("RHS"), "");
    EXPECT_EQ(user.messages()[0].icon, MessageIcon::exclamation);
}

// --- how sections are drawn ---------------------------------------------------------------------

TEST_F(LibraryDialogTest, ATypeWithFewerValuesAsksBeforeItDropsColumns) {
    user.whenMessage("Remove the surplus columns?").presses(IDNO);
    user.whenMessage("The type <C section> has fewer values").presses(IDYES);
    run({picksTemplate("<Cold formed channel>"),
         [](Page& page) {
             EXPECT_EQ(page.sheet().nrCols(), 11);
             EXPECT_EQ(cell(page, 8, Vor_Spread::headerIndex), "Flange width1");
             EXPECT_EQ(cell(page, 11, Vor_Spread::headerIndex), "Radius");
             EXPECT_TRUE(page.sheet().isChanged());
         },
         picksTemplate("<C section>"),
         [](Page& page) {
             EXPECT_EQ(page.sheet().nrCols(), 10);
             EXPECT_TRUE(page.press(Page::undoButton));
             EXPECT_EQ(page.sheet().nrCols(), 11);
             EXPECT_EQ(cell(page, 11, 2), "12");
             EXPECT_EQ(templateOf(page), "<Cold formed channel>") << "it is undone along";
             EXPECT_TRUE(page.press(Page::redoButton));
             EXPECT_EQ(templateOf(page), "<C section>");
         },
         picksTemplate("<Sigma section>"), [](Page& page) { EXPECT_EQ(page.sheet().nrCols(), 13); },
         presses(Page::saveButton)});
    EXPECT_THAT(file("HEA"), testing::StartsWith("18\n"));
}

TEST_F(LibraryDialogTest, ShowsThePictureOfTheType) {
    gSettings.setVorDir(folder.inside());
    const std::pair<const char*, int> pictures[] = {
        {"ProfSectionI", 30}, {"Frame", 40}, {"Unknown", 50}};
    for (const auto& [name, width] : pictures)
        folder.write(std::string("icons/") + name + "-big.bmp", encodeBitmap(CBitmap(width, 20)));
    folder.write("prof/Frame.dwg", "");
    const auto shows = [](int width) {
        return [width](Page& page) {
            EXPECT_EQ(page.itemAs<CStatic>(Page::templatePicture)->bitmap().width(), width);
        };
    };
    user.whenMessage("Remove the surplus columns?").presses(IDNO);
    run({shows(30), picks("RHS"), shows(50), picksTemplate("Frame.dwg"), shows(40),
         presses(Page::undoButton), shows(50)});
}

TEST_F(LibraryDialogTest, SavingKeepsADrawnTemplateByItsName) {
    folder.write("prof/Frame.pr", std::string("Gone.dwg\n") + header + "\tA\nx\t1\t\t\t\t\t5\n");
    run({picks("Frame"), [](Page& page) { EXPECT_EQ(templateOf(page), "Gone.dwg"); },
         types(7, 1, "6"), presses(Page::saveButton)});
    EXPECT_EQ(file("Frame"), std::string("Gone.dwg\n") + header + "\tA\nx\t1\t\t\t\t\t6\n");
}

TEST_F(LibraryDialogTest, RowNamesFollowTheTableAndColumnsItsType) {
    run({[](Page& page) {
             page.sheet().setData(Vor_Spread::headerIndex, 2, "other");
             page.sheet().setData(7, Vor_Spread::headerIndex, "h");
         },
         presses(Page::rowNamesButton),
         [](Page& page) {
             EXPECT_EQ(cell(page, Vor_Spread::headerIndex, 2), "HEA");
             EXPECT_EQ(cell(page, 7, Vor_Spread::headerIndex), "Height");
             EXPECT_TRUE(page.press(Page::undoButton));
             EXPECT_EQ(cell(page, Vor_Spread::headerIndex, 2), "other") << "one step";
             EXPECT_EQ(cell(page, 7, Vor_Spread::headerIndex), "h");
             EXPECT_TRUE(page.press(Page::redoButton));
         },
         presses(Page::saveButton)});
}

// --- keys ---------------------------------------------------------------------------------------

TEST_F(LibraryDialogTest, HasKeysForRowsAndTables) {
    const auto hit = [](int key, bool ctrl, bool alt) {
        return [=](Page& page) {
            page.sheet().focus();
            dispatchKey(page.sheet(), {key, true, false, ctrl, alt});
        };
    };
    user.whenMessage("Delete the table <HEA>").presses(IDNO);
    run({hit(keyInsert, true, false), [](Page& page) { EXPECT_EQ(page.sheet().nrRows(), 3); },
         hit(keyDelete, true, false), [](Page& page) { EXPECT_EQ(page.sheet().nrRows(), 2); },
         hit(keyDown, false, true), [](Page& page) { EXPECT_EQ(cell(page, 1, 2), "100"); },
         hit(keyUp, false, true), [](Page& page) { EXPECT_EQ(cell(page, 1, 1), "100"); },
         hit('Z', true, false), hit('Z', true, false), hit('Z', true, false), hit('Z', true, false),
         [](Page& page) {
             CWnd* list = page.item(Page::tableList);
             list->focus();
             dispatchKey(*list, {keyDelete});
         }});
}

}  // namespace
