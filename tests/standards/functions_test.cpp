// The functions of standards, called from formulas as equations call them.
#include <gtest/gtest.h>

#include "core_api/sections/section_tables.h"
#include "platform/window/message_box.h"
#include "standards/data_files.h"
#include "standards/run_chain.h"
#include "standards/tw_standards_ss.h"
#include "support/standard_file.h"

namespace {

class Functions : public ::testing::Test {
  protected:
    Functions() {
        sheet.attachHidden();
        sheet.setNrCols(4, false);
        sheet.setNrRows(4);
        sheet.registerFunctions();
        library.write("prof/IPE.pr",
                      "IPE\t1\nSysName\tEnglish\tDutch\tGerman\tFrench\tI/O\th\tb\n"
                      "200\tIPE 200\tIPE 200\tIPE 200\tIPE 200\t1\t200\t100\n");
        gSectionTables.reload();
    }

    /// What a formula shows; "refused" when it cannot be set.
    Vor_String result(const char* formula) {
        if (!sheet.setFormula(4, 4, formula)) return "refused";
        Vor_String text;
        sheet.getCellText(4, 4, text, Vor_Spread::Reading::value);
        return text;
    }
    void expectResults(std::initializer_list<std::pair<const char*, const char*>> cases) {
        for (const auto& [formula, expected] : cases)
            EXPECT_EQ(result(formula), expected) << formula;
    }

    TemporaryLibrary library;
    TwStandardsSS sheet;
};

TEST_F(Functions, NumbersAndTexts) {
    sheet.setData(1, 1, "text");
    expectResults({
        {"ROUNDTO(12, 5)", "10"},
        {"ROUNDTO(12.5, 5)", "15"},
        {"ROUNDTO(-12.5, 5)", "-15"},
        {"ROUNDTO(2.675, 0.01)", "2.68"},
        {"ROUNDTO(7, 0)", "7"},
        {"ROUNDTO(\"7\", 5)", "#VALUE!"},
        {"ROUNDTO(B1, 5)", "#VALUE!"},
        {"ROUNDTO(7)", "refused"},
        {"GETARRAYITEM(\"A;B;C\", 2)", "B"},
        {"GETARRAYITEM(\"A;B;C\", 3.9)", "C"},
        {"GETARRAYITEM(\"A;B;C\", 0)&\"|\"", "|"},
        {"GETARRAYITEM(\"A;B;C\", 4)&\"|\"", "|"},
        {"GETARRAYITEM(\"A;B;C\", -1e99)", "#VALUE!"},
        {"GETARRAYITEM(\"A;;C\", 2)&\"|\"", "|"},
        {"GETARRAYITEM(5, 1)", "#VALUE!"},
        {"TONUMBER(\" 12.5 mm\")", "12.5"},
        {"TONUMBER(\"x\")", "0"},
        {"TONUMBER(12)", "#VALUE!"},
        {"ISNULL(0)", "1"},
        {"ISNULL(B1)", "1"},
        {"ISNULL(\"\")", "1"},
        {"ISNULL(\"\"\"\"\"\")", "1"},
        {"ISNULL(A1)", "0"},
        {"ISNULL(0.1)", "0"},
        {"ISNULL(1/0)", "#VALUE!"},
        {"ISPOSITIVE(2)", "1"},
        {"ISPOSITIVE(-2)", "0"},
        {"ISPOSITIVE(\"2 m\")", "1"},
        {"ISPOSITIVE(\"\")", "0"},
        {"ISPOSITIVE(B1)", "0"},
        {"ISPOSITIVE(NA())", "#VALUE!"},
    });
}

TEST_F(Functions, Sections) {
    expectResults({
        {"SECTIONSIZE(\"IPE-200\", 1)", "200"},
        {"SECTIONSIZE(\"ipe 200\", 2.9)", "100"},
        {"SECTIONSIZE(\"IPE-200\", 3)", "#VALUE!"},
        {"SECTIONSIZE(\"IPE-200\", 0)", "#VALUE!"},
        {"SECTIONSIZE(\"XYZ\", 1)", "#VALUE!"},
        {"SECTIONSIZE(1, 1)", "#VALUE!"},
        {"GETSYSNAME(\"IPE 200\")", "IPE-200"},
        {"GETSYSNAME(\"My plate\")", "My plate"},
    });
}

TEST_F(Functions, TablesAreLookedUpByJoinedKeys) {
    library.writeData("Loads.txt",
                      "// section;row\tload\n"
                      "IPE-200;2\t12.5\tignored\n"
                      "ipe-200;2\tsecond\n"
                      "IPE 200;x\tby name\n"
                      "\n"
                      "0.5\thalf // of it\n"
                      "lonely\n"
                      "none\t// nothing\n"
                      "nothing\t // \tbut words\n"
                      "\tempty key\n");
    library.write("Loads2.txt", "IPE 200\tsection\nother\tother\n");
    expectResults({
        {"GETCELL(\"Loads.txt\", \"IPE-200\", 2)", "12.5"},
        {"GETCELL(\"Loads.txt\", \"IPE-200\", \"2\")", "12.5"},
        {"GETCELL(\"loads.TXT\", \"ipe-200;2\")", "12.5"},
        {"GETCELL(\"\"\"Loads.txt\"\"\", \"IPE 200\", \"\"\"x\"\"\")", "by name"},
        {"GETCELL(\"Loads.txt\", 0.5)", "half"},
        {"GETCELL(\"Loads.txt\", 0.5, B1, 7)", "half"},
        {"GETCELL(\"Loads.txt\", B1)", "empty key"},
        {"GETCELL(\"Loads.txt\", \"lonely\")", "#VALUE!"},
        {"GETCELL(\"Loads.txt\", \"none\")", ""},
        {"GETCELL(\"Loads.txt\", \"nothing\")", ""},
        {"GETCELL(\"Loads.txt\", \"IPE-200\", 3)", "#VALUE!"},
        {"GETCELL(\"Missing.txt\", 1)", "#VALUE!"},
        {"GETCELL(\"Loads.txt\")", "refused"},
        {"GETCELL(\"Loads2.txt\", \"IPE-200\")", "#VALUE!"},
        {"GETPROFCELL(\"Loads2.txt\", \"IPE-200\")", "section"},
        {"GETPROFCELL(\"Loads2.txt\", \"IPE 200\")", "#VALUE!"},
        {"GETPROFCELL(\"Loads2.txt\", \"OTHER\")", "other"},
    });
    library.writeData("Empty.txt", "// nothing\n\n");
    EXPECT_EQ(result("GETCELL(\"Empty.txt\", \"\")"), "#VALUE!");
}

TEST_F(Functions, SizesAreChosenFromTheirFilesOrRounded) {
    library.writeData("Flats.txt",
                      "/* old */ 80x8 // note\n100x10\n// only a note\n  \n60\n"
                      "/* 70x8 */\n120 x 8\n");
    expectResults({
        {"STDSIZEWITHTOLERANCE(\"Flats.txt\", 5, 78, 10, 10)", "80"},
        {"STDWIDTHWITHTOLERANCE(\"Flats.txt\", 5, 8, 95, 40, 40)", "80"},
        {"STDWIDTHWITHTOLERANCE(\"Flats.txt\", 5, 8, 105, 5, 40)", "120"},
        {"STDWIDTHWITHTOLERANCE(\"Flats.txt\", 5, 9, 65, 10, 40)", "60"},
        {"STDTHICKNESSWITHTOLERANCE(\"Flats.txt\", 1, 9.5, 1, 1)", "10"},
        {"STDTHICKNESSWITHTOLERANCE(\"Flats.txt\", 1, 0.4, 1, 1)", "0"},
        {"STDSIZEWITHTOLERANCE(\"Flats.txt\", 5, 92, 4, 4)", "90"},
        {"STDSIZEWITHTOLERANCE(\"Missing.txt\", 5, 78, 10, 10)", "80"},
        {"STDSIZEWITHTOLERANCE(\"Flats.txt\", 5, \"78\", 10, 10)", "#VALUE!"},
        {"STDSIZEWITHTOLERANCE(1, 5, 78, 10, 10)", "#VALUE!"},
        {"STDSIZEWITHTOLERANCE(\"Flats.txt\", 5, 78, 10)", "refused"},
    });
}

TEST_F(Functions, TolerancesWithoutRoomAreToldAndTheFunctionGoesOn) {
    std::vector<MessageBox> boxes;
    const MessageListenerScope listener([&](const MessageBox& box) {
        boxes.push_back(box);
        return true;
    });
    EXPECT_EQ(result("STDSIZEWITHTOLERANCE(\"Missing.txt\", 5, 78, 2.5, -2.5)"), "75.5");
    EXPECT_TRUE(boxes.empty());
    gSettings.current().diagnostics = true;
    EXPECT_EQ(result("STDSIZEWITHTOLERANCE(\"Missing.txt\", 5, 78, 2.5, -2.5)"), "75.5");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Invalid tolerances provided.\n DownTolerance is :2.5UpTolerance is :-2.5\nAdding "
              "both tolerances should result in a positive value.");
    EXPECT_EQ(boxes[0].icon, MessageIcon::exclamation);
}

TEST_F(Functions, DataFilesAreFoundNearestFirstAndReadAgainWhenTheyChange) {
    const auto sizes = [&] {
        const auto list = readSizeList("Sizes.txt");
        return list ? list->first : std::vector<double>{};
    };
    EXPECT_FALSE(findDataFile("Sizes.txt"));
    library.write("Sizes.txt", "1\n");
    EXPECT_EQ(sizes(), (std::vector<double>{1}));
    library.write("Connection Standards/Sizes.txt", "2\n");
    EXPECT_EQ(sizes(), (std::vector<double>{2}));
    library.writeData("Sizes.txt", "3\n");
    EXPECT_EQ(sizes(), (std::vector<double>{3}));
    // Rewritten at once, with the same size: clocks of file systems do not tell.
    const auto now = std::filesystem::file_time_type::clock::now();
    for (const char* content : {"4\n", "5\n", "6\n"}) {
        library.writeData("Sizes.txt", content);
        std::filesystem::last_write_time(
            library.path() / "Connection Standards" / "Data" / "Sizes.txt", now);
        EXPECT_EQ(sizes(), (std::vector<double>{static_cast<double>(content[0] - '0')}));
    }
    for (const char* content : {"11\n", "12\n"}) {
        const RunningStandard run;
        library.writeData("Sizes.txt", content);
        EXPECT_EQ(sizes(), (std::vector<double>{std::stod(content)}));
    }
    const std::string elsewhere = library.write("Other/Own.txt", "7\n");
    EXPECT_EQ(findDataFile(elsewhere), Vor_String(elsewhere));

    // Within a run one look is enough; the next run looks again.
    {
        const RunningStandard run;
        EXPECT_FALSE(findDataFile("Later.txt"));
        library.writeData("Later.txt", "8\n");
        EXPECT_FALSE(findDataFile("Later.txt"));
    }
    const RunningStandard run;
    EXPECT_TRUE(findDataFile("Later.txt"));
}

}  // namespace
