// Settings that travel with a sheet, and what saving does to the files they name.
#include "spread/tw_sheet_settings.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <cerrno>
#include <filesystem>

#include "core_api/library_names.h"
#include "core_api/settings.h"
#include "platform/files.h"
#include "platform/registry/registry.h"
#include "spread/sheet_preparation.h"
#include "spread/vor_spread.h"
#include "support/temporary_folder.h"

namespace {

using registry::Root;

TEST(PropList, TextHasThreeFieldsAnEntry) {
    TwPropList list;
    EXPECT_TRUE(list.setDouble("d", 2.5) && list.setInt("i", -7) && list.setLong("l", 1LL << 40));
    EXPECT_TRUE(list.setText("t", "a b") && list.setBool("b", true));
    EXPECT_TRUE(list.setInt("d", 3)) << "takes the place of the number";
    EXPECT_FALSE(list.setText("t", "a\xA4") || list.setInt("\xA4", 1));
    EXPECT_EQ(list.write().str(),
              "d\xA4"
              "2\xA4"
              "3\xA4i\xA4"
              "2\xA4-7\xA4l\xA4"
              "3\xA4"
              "1099511627776\xA4t\xA4"
              "4\xA4"
              "a b\xA4"
              "b\xA4"
              "2\xA4"
              "1\xA4");
    list.setDouble("d", 0.1);
    TwPropList again;
    again.read(list.write());
    EXPECT_EQ(again, list);
    EXPECT_EQ(again.getDouble("d"), 0.1);
    EXPECT_EQ(again.getInt("t"), std::nullopt);
}

TEST(PropList, AShorterListOfTextsTakesThePlaceOfALongerOne) {
    TwPropList list;
    EXPECT_TRUE(list.setTexts("v", {"a", "b", "c"}) && list.setInt("z", 1));
    EXPECT_FALSE(list.setTexts("v", {"d", "\xA4"}) || list.setTexts("\xA4", {"d"}));
    EXPECT_EQ(list.getTexts("v"), Vor_StringArray({"a", "b", "c"}));
    EXPECT_TRUE(list.setTexts("v", {"d"}));
    EXPECT_EQ(list.getTexts("v"), Vor_StringArray({"d"}));
    EXPECT_TRUE(list.setTexts("v", {}));
    EXPECT_EQ(list.entries().size(), 1U);
}

TEST(PropList, ReadsWhatParses) {
    const struct {
        const char* text;
        size_t entries;
        const char* written;
    } cases[] = {
        {"", 0, ""},
        {"a\xA4"
         "4\xA4x\xA4"
         "b\xA4"
         "2",
         1,
         "a\xA4"
         "4\xA4x\xA4"},
        {"a\xA4"
         "4",
         0, ""},
        {"a\xA4"
         "4\xA4x",
         1,
         "a\xA4"
         "4\xA4x\xA4"},
        {"a\xA4"
         "9\xA4x\xA4",
         1,
         "a\xA4"
         "0\xA4\xA4"},
        {"a\xA4"
         "1\xA4"
         "2.5x\xA4"
         "b\xA4"
         "2\xA4-3.9\xA4"
         "c\xA4"
         "3\xA4\xA4",
         3,
         "a\xA4"
         "1\xA4"
         "2.5000000000\xA4"
         "b\xA4"
         "2\xA4-3\xA4"
         "c\xA4"
         "3\xA4"
         "0\xA4"},
        {"a\xA4"
         "2\xA4"
         "1\xA4"
         "a\xA4"
         "4\xA4z\xA4",
         1,
         "a\xA4"
         "4\xA4z\xA4"},
    };
    for (const auto& each : cases) {
        TwPropList list;
        list.setInt("before", 1);
        list.read(each.text);
        EXPECT_EQ(list.entries().size(), each.entries) << each.text;
        EXPECT_EQ(list.write().str(), each.written) << each.text;
    }
}

class SheetSettings : public testing::Test {
  protected:
    SheetSettings() : m_vorDir(gSettings.vorDir()) {
        ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        gSettings.setVorDir(folder.inside("addon"));
        sheet.attachHidden();
    }
    ~SheetSettings() override {
        gSettings.setVorDir(m_vorDir);
        ::unsetenv("XDG_CONFIG_HOME");
    }
    void writeRegistry(const char* name, const std::string& value) {
        std::string error;
        EXPECT_TRUE(registry::write(Root::machine, TwEditorRegistry::key, name, value, error));
    }
    static std::string settingsFile(const char* font) {
        TwSheetSettings settings;
        settings.defaultFont = font;
        settings.defaultTextHeight = 17;
        return settings.toList().write().str();
    }

    TemporaryFolder folder;
    Vor_Spread sheet;

  private:
    Vor_String m_vorDir;
};

TEST_F(SheetSettings, TravelInTheCornerTag) {
    TwSheetSettings settings;
    EXPECT_FALSE(settings.writeToSheet(sheet)) << "not loaded";
    settings.loaded = true;
    settings.smartPrint = false;
    settings.marginTop = 30;
    settings.footerFile = "c:\\f\xA4.sss";
    settings.varNames = {"Date", "Title"};
    settings.varValues = {"", "x"};
    EXPECT_TRUE(settings.writeToSheet(sheet));
    Vor_String tag;
    sheet.getCellTag(0, 0, tag);
    EXPECT_TRUE(
        tag.hasSubString("smartPrint\xA4"
                         "2\xA4"
                         "0\xA4",
                         true))
        << tag.str();
    EXPECT_TRUE(
        tag.hasSubString("varNames1\xA4"
                         "4\xA4Title\xA4",
                         true))
        << tag.str();
    settings.footerFile = "c:\\f.sss";
    TwSheetSettings read;
    EXPECT_TRUE(read.readFromSheet(sheet));
    EXPECT_EQ(read, settings);
    EXPECT_TRUE(setVariables(sheet, {"A"}, {"B"}));
    read.readFromSheet(sheet);
    EXPECT_EQ(read.varNames, (Vor_StringArray{"A"}));
    EXPECT_EQ(read.marginTop, 30);
}

TEST_F(SheetSettings, FilesGiveWhatTheyHaveAndDefaultsTheRest) {
    folder.write("addon/own.twd",
                 "marginLeft\xA4"
                 "2\xA4"
                 "12\xA4"
                 "colors\xA4"
                 "2\xA4"
                 "0\xA4"
                 "bor");
    TwSheetSettings settings;
    EXPECT_TRUE(settings.readFromFile("own"));
    EXPECT_EQ(settings.marginLeft, 12);
    EXPECT_FALSE(settings.colors);
    EXPECT_TRUE(settings.border);
    EXPECT_FALSE(settings.readFromFile("none"));
    TwSheetSettings usual;
    usual.loaded = true;
    EXPECT_EQ(settings, usual);
    std::string error;
    settings.marginRight = 1;
    EXPECT_TRUE(settings.writeToFile("new", error)) << error;
    EXPECT_TRUE(usual.readFromFile("new"));
    EXPECT_EQ(usual.marginRight, 1);
}

TEST_F(SheetSettings, TheRegistryGivesTextsOfAtMost256Bytes) {
    TwEditorRegistry editor;
    EXPECT_FALSE(editor.read());
    EXPECT_EQ(editor.language.str(), "EN");
    writeRegistry("Language", "NL");
    EXPECT_FALSE(editor.read());
    EXPECT_EQ(editor.language.str(), "NL");
    writeRegistry("Default Settings", std::string(257, 'x'));
    EXPECT_FALSE(editor.read());
    EXPECT_EQ(editor.defaultSettings.str(), "");
    writeRegistry("Default Settings", std::string(256, 'x'));
    EXPECT_TRUE(editor.read());
}

TEST_F(SheetSettings, NewSheetsArePreparedFromTheNamedOrTheUsualSettings) {
    folder.write("addon/bill.twd", settingsFile("Arial"));
    folder.write("addon/usual.twd", settingsFile("Courier"));
    writeRegistry("Default Settings", "usual");
    const struct {
        const char* name;
        const char* font;
    } cases[] = {{"bill", "Arial"}, {"missing", "Courier"}};
    for (const auto& each : cases) {
        ASSERT_TRUE(prepareSheet(sheet, each.name, true));
        EXPECT_EQ(sheet.nrCols(), 6);
        EXPECT_EQ(sheet.nrRows(), 11);
        const control::CellFormat& body = sheet.grid().format(6, 11);
        EXPECT_EQ(body.font.name, each.font);
        EXPECT_EQ(body.font.height, 17);
        EXPECT_EQ(body.font.weight, 400);
        EXPECT_EQ(body.type.kind, control::CellKind::edit);
        EXPECT_EQ(body.type.maxLength, 100);
        EXPECT_EQ(sheet.grid().format(3, control::headerIndex).font.weight, 700);
        EXPECT_EQ(sheet.grid().format(control::headerIndex, 3).font.name, each.font);
        TwSheetSettings carried;
        carried.readFromSheet(sheet);
        EXPECT_EQ(carried.defaultFont.str(), each.font);
    }
    for (const int option : {7, 12, 21, 25}) EXPECT_TRUE(sheet.getBool(option)) << option;
    EXPECT_TRUE(sheet.grid().view().textTips);
    EXPECT_FALSE(sheet.grid().view().noteIndicators);
    sheet.setData(1, 1, "kept");
    EXPECT_TRUE(prepareSheet(sheet, "bill", false));
    EXPECT_EQ(sheet.grid().text(1, 1, control::Reading::data), "kept");
}

TEST_F(SheetSettings, SavingTakesHeadersAndFootersAlong) {
    prepareSheet(sheet, "none", true);
    TwSheetSettings settings;
    settings.readFromSheet(sheet);
    settings.headerFile = folder.write("forms/head.sss", "header");
    folder.write("forms/head.bmp", "picture");
    settings.footerFile = folder.inside("forms\\missing.sss");
    settings.writeToSheet(sheet);
    std::filesystem::create_directories(folder.path() / "bills");
    const std::string path = folder.inside("bills\\a.sss");
    ASSERT_TRUE(saveSheet(sheet, path));
    EXPECT_FALSE(sheet.getBool(30)) << "though the reference was written into the sheet";
    EXPECT_EQ(folder.read("bills/head.sss"), "header");
    EXPECT_EQ(folder.read("bills/head.bmp"), "picture");
    TwSheetSettings now, saved;
    now.readFromSheet(sheet);
    EXPECT_EQ(now.headerFile.str(), folder.inside("bills\\head.sss"));
    EXPECT_EQ(now.footerFile, settings.footerFile);
    Vor_Spread again;
    again.attachHidden();
    ASSERT_TRUE(again.loadFromFile(path));
    saved.readFromSheet(again);
    EXPECT_EQ(saved.headerFile, settings.headerFile) << "the file keeps the reference it had";
    EXPECT_TRUE(saveSheet(sheet, path)) << "the header lies there already";
    EXPECT_EQ(folder.read("bills/head.sss"), "header");
    EXPECT_FALSE(saveSheet(sheet, folder.inside("nowhere\\a.sss")));
}

TEST_F(SheetSettings, CopiesOfHeadersReplaceNothing) {
    const auto save = [&](const char* header, HeaderFiles which) {
        prepareSheet(sheet, "none", true);
        TwSheetSettings settings;
        settings.readFromSheet(sheet);
        settings.headerFile = header ? folder.inside(header) : "";
        settings.writeToSheet(sheet);
        std::string error;
        const bool isSaved = saveSheet(sheet, folder.inside("bills\\a.sss"), which, error);
        EXPECT_EQ(isSaved, error.empty()) << error;
        settings.readFromSheet(sheet);
        const std::string reference = settings.headerFile.str();
        return (isSaved ? "saved " : "not saved ") +
               reference.substr(std::min(reference.rfind('\\') + 1, reference.size()));
    };
    const std::string document = "vormant-sheet 1\nsize 1 1\ncells\nend 0\n";
    folder.write("forms/head.sss", document);
    folder.write("bills/head.sss", "the user's own");
    const auto all = HeaderFiles::allOrNothing, named = HeaderFiles::whereUsable;
    EXPECT_EQ(save("forms\\head.sss", all), "saved head 2.sss");
    EXPECT_EQ(save("forms\\head.sss", all), "saved head 2.sss") << "the same serves again";
    EXPECT_EQ(folder.read("bills/head.sss"), "the user's own");
    EXPECT_EQ(folder.read("bills/head 2.sss"), document);
    folder.write("forms/head.sss", document + "\n");
    EXPECT_EQ(save("forms\\head.sss", named), "saved head 3.sss") << "renewed";
    // A picture keeps the name of its sheet.
    folder.write("forms/head.sss", document);
    folder.write("forms/head.bmp", "no picture");
    folder.write("bills/head 2.bmp", "another");
    EXPECT_EQ(save("forms\\head.sss", named), "saved head 4.sss");
    EXPECT_EQ(folder.read("bills/head 4.bmp"), "no picture");
    // In programs what is no sheet and no bitmap is nobody's header, nor what lies elsewhere.
    setLibraryNameRule({OutsideNames::refused, "allow it"});
    folder.write("other/head.sss", document);
    EXPECT_EQ(save("other\\head.sss", named), "saved head.sss") << "as it was";
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "bills/head 5.sss"));
    const Vor_String library = gSettings.libDir();
    gSettings.setLibDir(folder.inside("forms\\"));
    folder.write("forms/secret", "key");
    for (const char* bad : {"forms\\secret", "forms\\head.sss", "forms\\none.sss"}) {
        std::filesystem::remove(folder.path() / "bills/a.sss");
        const std::string name = std::string(bad).substr(6);
        EXPECT_EQ(save(bad, all), "not saved " + name);
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "bills/a.sss"));
        EXPECT_EQ(save(bad, named), "saved " + name);
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "bills/secret"));
    }
    gSettings.setLibDir(library);
    setLibraryNameRule({});
}

TEST_F(SheetSettings, HeadersAreNeverThereWithoutTheirSheet) {
    // The copies cannot get their names: where a program that is killed would have left them.
    struct NoNewNames : files::WriteSteps {
        NoNewNames() { files::installWriteSteps(this); }
        ~NoNewNames() override { files::installWriteSteps(nullptr); }
        int rename(const std::string& from, const std::string& to) override {
            wasAlone =
                !std::filesystem::exists(std::filesystem::path(to).parent_path() / "head.sss");
            return WriteSteps::rename(from, to);
        }
        int renameNew(const std::string&, const std::string&) override { return EIO; }
        bool wasAlone = false;
    };
    folder.write("forms/head.sss", "vormant-sheet 1\nsize 1 1\ncells\nend 0\n");
    prepareSheet(sheet, "none", true);
    TwSheetSettings settings;
    settings.readFromSheet(sheet);
    settings.headerFile = folder.inside("forms\\head.sss");
    settings.writeToSheet(sheet);
    const auto names = [&] {
        std::string all;
        for (const auto& each : std::filesystem::directory_iterator(folder.path() / "bills"))
            all += each.path().filename().string() + " ";
        return all;
    };
    const auto save = [&](const char* name, HeaderFiles which) {
        std::string error;
        const bool isSaved = saveSheet(sheet, folder.inside(name), which, error);
        EXPECT_EQ(isSaved, error.empty()) << error;
        return isSaved;
    };
    std::filesystem::create_directories(folder.path() / "bills/b.sss");
    EXPECT_FALSE(save("bills\\b.sss", HeaderFiles::allOrNothing)) << "a folder of that name";
    std::filesystem::remove(folder.path() / "bills/b.sss");
    {
        NoNewNames disk;
        EXPECT_FALSE(save("bills\\a.sss", HeaderFiles::allOrNothing));
        EXPECT_TRUE(disk.wasAlone);
        EXPECT_EQ(names(), "");
        folder.write("bills/a.sss", "old");
        EXPECT_FALSE(save("bills\\a.sss", HeaderFiles::allOrNothing));
        EXPECT_EQ(folder.read("bills/a.sss"), "old");
        EXPECT_TRUE(save("bills\\a.sss", HeaderFiles::whereUsable)) << "with the header elsewhere";
    }
    EXPECT_EQ(names(), "a.sss ");
    EXPECT_TRUE(save("bills\\head.sss", HeaderFiles::allOrNothing)) << "as its header is called";
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "bills/head 2.sss"));
    settings.readFromSheet(sheet);
    EXPECT_EQ(settings.headerFile.str(), folder.inside("bills\\head 2.sss"));
}

TEST_F(SheetSettings, NameHeadersThatLieBesideTheirFile) {
    TwSheetSettings settings;
    settings.headerFile = "Head.sss";
    settings.footerFile = "Gone.sss";
    folder.write("addon/Bill.twd", settings.toList().write().view());
    folder.write("addon/Head.sss", "");
    ASSERT_TRUE(settings.readFromFile("Bill"));
    EXPECT_EQ(settings.headerFile.str(), folder.inside("addon\\Head.sss"));
    EXPECT_EQ(settings.footerFile.str(), "Gone.sss");
}

}  // namespace
