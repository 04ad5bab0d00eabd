// The pages of section groups and section types, as a user works on them.
#include <gmock/gmock.h>

#include "core_api/settings.h"
#include "frame/starters.h"
#include "sections/dialogs/library_dialog.h"
#include "support/own_settings.h"
#include "support/printed.h"
#include "support/temporary_folder.h"
#include "support/test_user.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Page = CataloguePage;

class CataloguePages : public testing::Test {
  protected:
    using Step = std::function<void(Page&)>;

    CataloguePages() {
        gSettings.setLibDir(folder.inside());
        for (const char* name : {"Beams", "Tubes", "Angles"})
            groups().setLangs(groups().appendNewGrp(), {name, "", "", ""});
        for (const long group : {2L, 7L}) {
            SectionType type;
            type.group = group;
            type.remark = "r" + std::to_string(group);
            type.names = {group == 2 ? "RHS" : "L", "", "", ""};
            types().append(type);
        }
    }
    ~CataloguePages() override { gSettings = Vor_Settings(); }

    SectionGroupArray& groups() { return data.catalogue.groups; }
    Vor_Array<SectionType>& types() { return data.catalogue.types; }

    /// Steps on the page of groups or types, then the button.
    void work(LibraryDialog::Page which, const std::vector<Step>& steps, int button = IDOK) {
        auto& answer =
            user.whenOpens(LibraryDialog::resourceNumber).selects(LibraryDialog::pageTabs, which);
        for (const Step& step : steps)
            answer.does([step, which](CDialog& dialog) {
                step(*dynamic_cast<LibraryDialog&>(dialog).cataloguePage(which));
            });
        answer.presses(button);
        StartDlgEditLibSections(data, "");
    }
    static Step presses(int button) {
        return [button](Page& page) { EXPECT_TRUE(page.press(button)) << button; };
    }
    static Step selects(int entry) {
        return [entry](Page& page) { EXPECT_TRUE(page.pick(Page::entryList, entry)); };
    }
    static Step names(int row, const char* text) {
        return [=](Page& page) { EXPECT_TRUE(page.names().userEnters(1, row, text)); };
    }
    static Step shows(std::vector<std::string> entries, int selected) {
        return [=](Page& page) {
            const auto* list = page.itemAs<CListBox>(Page::entryList);
            std::vector<std::string> shown;
            for (const auto& item : list->items())
                shown.push_back((item.isChecked ? "+" : "-") + item.text);
            EXPECT_EQ(shown, entries);
            EXPECT_EQ(list->selected(), selected);
        };
    }

    OwnSettings own;
    TemporaryFolder folder;
    Printed host;
    HostScope installed{host};
    DlgEditLibData data;
    TestUser user;
};

TEST_F(CataloguePages, GroupsAreNamedSwitchedAddedAndRemoved) {
    work(LibraryDialog::groups,
         {shows({"+Beams", "+Tubes", "+Angles"}, 0),
          [](Page& page) {
              Vor_String language;
              page.names().getData(Vor_Spread::headerIndex, 3, language);
              EXPECT_EQ(language, "German");
              EXPECT_TRUE(page.type(Page::pictureField, "beam.bmp"));
          },
          names(1, "Beams and columns"), selects(1),
          shows({"+Beams and columns", "+Tubes", "+Angles"}, 1),
          [](Page& page) { EXPECT_EQ(page.item(Page::pictureField)->text(), ""); },
          presses(Page::removeButton), shows({"+Beams and columns", "+Angles"}, 1),
          presses(Page::removeButton), shows({"+Beams and columns"}, 0), presses(Page::addButton),
          shows({"+Beams and columns", "+New group"}, 1)});
    ASSERT_EQ(groups().length(), 2);
    EXPECT_EQ(groups().getImage(0), "beam.bmp");
    EXPECT_EQ(groups().getLangs(1)[2], "Neue Gruppe");
    DlgEditLibData nextDay;
    EXPECT_TRUE(nextDay.readCatalogue());
    EXPECT_TRUE(nextDay.catalogue == data.catalogue);
}

TEST_F(CataloguePages, OnlyWhatIsInUseCanBeChanged) {
    const auto canChange = [](bool expected) {
        return [=](Page& page) {
            EXPECT_EQ(page.item(Page::pictureField)->isEnabled(), expected);
            EXPECT_EQ(page.names().userEnters(1, 4, "Poutres"), expected);
            EXPECT_EQ(page.itemAs<CButton>(Page::enabledBox)->isChecked(), expected);
        };
    };
    work(LibraryDialog::groups, {canChange(true), presses(Page::enabledBox), canChange(false),
                                 shows({"-Beams", "+Tubes", "+Angles"}, 0),
                                 [](Page& page) {
                                     page.itemAs<CListBox>(Page::entryList)->userChecks(0, true);
                                     page.itemAs<CListBox>(Page::entryList)->userChecks(2, false);
                                 },
                                 canChange(true), shows({"+Beams", "+Tubes", "-Angles"}, 0),
                                 selects(2), canChange(false)});
    EXPECT_EQ(groups().getLangs(0)[3], "Poutres");
    EXPECT_FALSE(groups().getEnabled(2));
}

TEST_F(CataloguePages, TypesBelongToGroups) {
    work(LibraryDialog::types,
         {shows({"+RHS", "+L"}, 0),
          [](Page& page) {
              auto* list = page.itemAs<CComboBox>(Page::groupList);
              EXPECT_EQ(list->count(), 3);
              EXPECT_EQ(list->selected(), 1);
              EXPECT_EQ(page.item(Page::remarkField)->text(), "r2");
              EXPECT_TRUE(page.pick(Page::groupList, 2));
              EXPECT_TRUE(page.type(Page::remarkField, "cold"));
          },
          selects(1),
          [](Page& page) { EXPECT_EQ(page.itemAs<CComboBox>(Page::groupList)->selected(), -1); },
          presses(Page::addButton), shows({"+RHS", "+L", "+New type"}, 2)});
    EXPECT_EQ(types()[0].group, 3);
    EXPECT_EQ(types()[0].remark, "cold");
    EXPECT_EQ(types()[1].group, SectionType::noGroup) << "its group does not exist";
    EXPECT_EQ(types()[2].names[1], "Nieuw type");
}

TEST_F(CataloguePages, RemovingDoesNotStoreAndEmptyListsHaveNothingToChange) {
    work(LibraryDialog::types,
         {[](Page& page) { EXPECT_TRUE(page.type(Page::remarkField, "lost")); },
          presses(Page::removeButton), shows({"+L"}, 0), presses(Page::removeButton),
          [](Page& page) {
              for (const int id : {Page::removeButton, Page::enabledBox, Page::pictureField,
                                   Page::groupList, Page::remarkField})
                  EXPECT_FALSE(page.item(id)->isEnabled()) << id;
              EXPECT_EQ(page.item(Page::remarkField)->text(), "");
          }});
    EXPECT_TRUE(types().isEmpty());
}

TEST_F(CataloguePages, TheOtherPageSeesChangedGroups) {
    user.whenOpens(LibraryDialog::resourceNumber)
        .selects(LibraryDialog::pageTabs, LibraryDialog::groups)
        .presses(Page::removeButton)
        .selects(LibraryDialog::pageTabs, LibraryDialog::types)
        .does([](CDialog& dialog) {
            auto* page = dynamic_cast<LibraryDialog&>(dialog).cataloguePage(LibraryDialog::types);
            const auto* list = page->itemAs<CComboBox>(Page::groupList);
            EXPECT_EQ(list->at(0).text, "Tubes");
            EXPECT_EQ(list->selected(), 0);
        })
        .presses(IDCANCEL);
    const SectionCatalogue before = data.catalogue;
    StartDlgEditLibSections(data, "");
    EXPECT_TRUE(data.catalogue == before);
}

TEST_F(CataloguePages, WhatWasNotLookedAtIsNotWritten) {
    user.whenOpens(LibraryDialog::resourceNumber).presses(IDOK);
    StartDlgEditLibSections(data, "");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "prof" / "Types.dat"));
    EXPECT_EQ(types()[1].group, 7);
}

TEST_F(CataloguePages, AFileThatCannotBeReadIsToldAndReplacedOnlyWhenTheUserSaysSo) {
    const auto edit = [](Page& page) { page.press(Page::addButton); };
    const auto file = [&] { return folder.read("prof/Groups.dat"); };
    folder.write("prof/Groups.dat", "damaged\n");
    for (const int answer : {IDNO, IDYES}) {
        EXPECT_FALSE(data.readCatalogue());
        user.whenMessage("Replace the files by what is shown here?").presses(answer);
        work(LibraryDialog::groups, {shows({}, -1), edit});
        EXPECT_EQ(file() == "damaged\n", answer == IDNO);
    }
    ASSERT_EQ(user.messages().size(), 4u);
    EXPECT_THAT(user.messages()[0].text, HasSubstr("Groups.dat:1: the titles are others"));
    EXPECT_THAT(file(), HasSubstr("New group"));
}

TEST_F(CataloguePages, AChangeOfAnotherProgramIsAskedAbout) {
    ASSERT_TRUE(data.writeCatalogue());
    const std::string before = folder.read("prof/Groups.dat");
    for (const int answer : {IDCANCEL, IDNO, IDYES}) {
        ASSERT_TRUE(data.readCatalogue());
        DlgEditLibData other = data;
        auto& script = user.whenOpens(LibraryDialog::resourceNumber);
        script.selects(LibraryDialog::pageTabs, LibraryDialog::groups)
            .does([&](CDialog& dialog) {
                other.catalogue.groups.removeAt(0);
                EXPECT_TRUE(other.writeCatalogue());
                auto* page =
                    dynamic_cast<LibraryDialog&>(dialog).cataloguePage(LibraryDialog::groups);
                page->press(Page::addButton);
            })
            .presses(IDOK);
        if (answer != IDYES)
            script
                .does([&](CDialog& dialog) {
                    auto* page =
                        dynamic_cast<LibraryDialog&>(dialog).cataloguePage(LibraryDialog::groups);
                    const int shown = page->itemAs<CListBox>(Page::entryList)->count();
                    const int others = other.catalogue.groups.length();
                    EXPECT_EQ(shown, answer == IDNO ? others : others + 2);
                })
                .presses(IDCANCEL);
        user.whenMessage("was changed by another program").presses(answer);
        StartDlgEditLibSections(data, "");
        EXPECT_EQ(folder.read("prof/Groups.dat").find("New group") != std::string::npos,
                  answer == IDYES);
        folder.write("prof/Groups.dat", before);
    }
}

TEST_F(CataloguePages, TheListHasKeys) {
    const auto hit = [](int key) {
        return [key](Page& page) {
            CWnd* list = page.item(Page::entryList);
            list->focus();
            EXPECT_TRUE(dispatchKey(*list, {key}));
        };
    };
    work(LibraryDialog::groups, {hit(keyDelete), shows({"+Tubes", "+Angles"}, 0), hit(keyInsert),
                                 shows({"+Tubes", "+Angles", "+New group"}, 2)});
}

}  // namespace
