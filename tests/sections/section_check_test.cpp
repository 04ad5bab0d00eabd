// What the check of section tables finds, each row of the table with its place.
#include "sections/section_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/files.h"
#include "sections/value_rules.h"
#include "sections/vor_prof_values_table.h"
#include "support/temporary_folder.h"
#include "test_folders.h"

namespace {

std::string found(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += std::to_string(finding.row) + ":" + std::to_string(finding.column) +
                (finding.severity == Finding::Severity::error ? " error: " : " warning: ") +
                finding.message.str() + "\n";
    return text;
}

constexpr const char* header = "SysName\tI/O\tEnglish\tDutch\tGerman\tFrench\t";

TEST(SectionCheck, FindsWhatCannotBe) {
    const struct {
        std::string file;
        const char* finding;  // begins one of the lines; empty: nothing at all
    } cases[] = {
        {std::string("1\n") + header +
             "Height\tWidth\tWeb thickness\tFlange thickness\tRadius\n"
             "80\t1\ta\ta\ta\ta\t80\t46\t3.8\t5.2\t5\n",
         ""},
        {std::string("8\n") + header + "Breedte\tDicke\n1\t1\ta\t\t\t\t10\t5\n", ""},
        {std::string("25\n") + header + "b\n1\t1\ta\t\t\t\t10\n", "1:1 error: \"25\" is no type"},
        {std::string("\n") + header + "b\n1\t1\ta\t\t\t\t10\n", "1:1 warning: nothing says"},
        {std::string("8\n") + header + "Width\n1\t1\ta\t\t\t\t10\n", "2:0 error: there are 7"},
        {std::string("9\n") + header + "Size\n1\t1\ta\t\t\t\t10\n",
         "2:7 warning: \"Size\" stands where the type has Diameter"},
        {std::string("8\n") + header + "Width\tSize\n1\t1\ta\t\t\t\t10\t5\n",
         "2:8 warning: \"Size\" stands where the type has Thickness"},
        {std::string("9\n") + header + "Diameter\n", "0:0 warning: the table has no sizes"},
        {std::string("9\n") + header + "Diameter\n1\t1\ta\t\t\t\t10\n1\t1\tb\t\t\t\t12\n",
         "4:1 error: \"1\" is the system name of line 3 already"},
        {std::string("9\n") + header + "Diameter\n1\t1\ta\t\t\t\t10\n2\t1\t\tA\t\t\t12\n",
         "4:4 warning: \"A\" names the size of line 3"},
        {std::string("9\n") + header + "Diameter\n\t1\ta\t\t\t\t10\n",
         "3:1 error: the size has no"},
        {std::string("9\n") + header + "Diameter\n1\t1\t\t\t\t\t10\n", "3:3 warning: the size has"},
        {std::string("9\n") + header + "Diameter\n1\tyes\ta\t\t\t\t10\n",
         "3:2 warning: \"yes\" is neither"},
        {std::string("9\n") + header + "Diameter\n1\t1\ta\t\t\t\n", "3:0 error: the size has 6"},
        {std::string("9\n") + header + "Diameter\n1\t1\ta\t\t\t\tten\n",
         "3:7 error: Diameter is \"ten\", which is no number"},
        {std::string("9\n") + header + "Diameter\n1\t1\ta\t\t\t\t0\n",
         "3:7 error: Diameter is \"0\", which has to be above 0"},
        {std::string("1\n") + header +
             "Height\tWidth\tWeb thickness\tFlange thickness\tRadius\n"
             "80\t1\ta\ta\ta\ta\t80\t46\t46\t5.2\t0\n",
         "3:9 error: the web is not thinner"},
        {std::string("1\n") + header +
             "Height\tWidth\tWeb thickness\tFlange thickness\tRadius\n"
             "80\t1\ta\ta\ta\ta\t80\t46\t4\t40\t0\n",
         "3:10 error: two flanges"},
        {std::string("11\n") + header + "Diameter\tThickness\n1\t1\ta\ta\ta\ta\t20\t10\n",
         "3:8 error: the wall"},
        {std::string("14\n") + header + "Leg\tThickness\tAngle\n1\t1\ta\ta\ta\ta\t20\t2\t190\n",
         "3:9 error: the angle"},
        {std::string("8\n") + header +
             "Width\tThickness\tmass kg/m\tArea cm2\n"
             "1\t1\ta\t\t\t\t100\t10\t7.9\t\n",  // as catalogues round
         ""},
        {std::string("8\n") + header +
             "Width\tThickness\tMass kg/m\n"
             "1\t1\ta\t\t\t\t100\t10\t8.0\n",
         "3:9 warning: Mass kg/m is \"8.0\"; the values give 7.85"},
        {std::string("8\n") + header +
             "Width\tThickness\tArea cm2\n"
             "1\t1\ta\t\t\t\t100\t10\t1000\n",
         "3:9 warning: Area cm2 is \"1000\"; the values give 10"},
        {std::string("12\n") + header +
             "Height\tWidth\tLip height\tThickness\tArea cm2\n"
             "1\t1\ta\t\t\t\t200\t70\t20\t2\t7\n",  // has bends
         ""},
        {std::string("12\n") + header +
             "Height\tWidth\tLip height\tThickness\tMass kg/m\n"
             "1\t1\ta\t\t\t\t200\t70\t20\t2\t3.5\n",
         "3:11 warning: Mass kg/m is \"3.5\"; the values give 5.84"},
        {std::string("1\n") + header +
             "Height\tWidth\tWeb thickness\tFlange thickness\tRadius\tIy cm4\n"
             "300\t1\ta\t\t\t\t300\t150\t7.1\t10.7\t15\t9356\n",
         "3:12 warning: Iy cm4 is \"9356\"; the values give 8356"},
        {"9\n", "2:0 error: the section table has no column names"},
    };
    const TemporaryFolder folder;
    for (const auto& c : cases) {
        const std::string text = found(checkSectionFile(folder.write("T.pr", c.file)));
        if (*c.finding)
            EXPECT_THAT("\n" + text, testing::HasSubstr(std::string("\n") + c.finding)) << c.file;
        else
            EXPECT_EQ(text, "") << c.file;
    }
}

/// Each rule at its border, on each side of what it compares with.
TEST(SectionCheck, ValuesJustInsideARuleHoldAndJustOutsideBreakIt) {
    const struct {
        std::vector<int> types;
        std::vector<double> inside;
        size_t changed;
        double outside;
        int broken;
    } cases[] = {
        {{1, 2, 3, 5, 6, 7, 17}, {80, 46, 45.9, 5, 0, 0, 0, 0}, 2, 46, 2},
        {{1, 6, 7}, {80, 46, 4, 39.9, 0, 0, 0, 0}, 3, 40, 3},
        {{2, 3, 5, 17}, {80, 46, 4, 79.9, 0, 0}, 3, 80, 3},
        {{1, 6}, {80, 46, 4, 5, 21, 0, 0, 0}, 4, 21.1, 4},
        {{1, 6}, {40, 46, 4, 10, 10, 0, 0, 0}, 4, 10.1, 4},
        {{7}, {200, 46, 4, 5, 42, 0, 0, 0}, 4, 42.1, 4},
        {{7}, {80, 46, 4, 5, 35, 0, 0, 0}, 4, 35.1, 4},
        {{5, 17}, {80, 46, 4, 5, 21}, 4, 21.1, 4},
        {{5, 17}, {20, 46, 4, 5, 15}, 4, 15.1, 4},
        {{3}, {80, 46, 4, 5, 42, 0}, 4, 42.1, 4},
        {{3}, {20, 46, 4, 5, 15, 0}, 4, 15.1, 4},
        {{6, 7}, {80, 46, 4, 5, 0, 0, 99.9, 0}, 6, 100, 6},
        {{6, 7}, {80, 46, 4, 5, 0, 0, 0, 42}, 7, 42.1, 7},
        {{6, 7}, {80, 46, 4, 5, 0, 0, 50, 9.9}, 7, 10, 7},
        {{10}, {100, 60, 29.9, 0}, 2, 30, 2},
        {{10}, {60, 100, 29.9, 0}, 2, 30, 2},
        {{10}, {100, 60, 5, 30}, 3, 30.1, 3},
        {{10}, {60, 100, 5, 30}, 3, 30.1, 3},
        {{11}, {20, 9.9}, 1, 10, 1},
        {{4}, {20, 30, 40, 9.9}, 3, 10, 3},
        {{4}, {100, 30, 40, 29.9}, 3, 30, 3},
        {{4}, {100, 40, 30, 29.9}, 3, 30, 3},
        {{12}, {100, 50, 49.9, 2}, 2, 50, 2},
        {{12}, {100, 40, 0, 19.9}, 3, 20, 3},
        {{12}, {40, 100, 0, 19.9}, 3, 20, 3},
        {{13}, {20, 0, 30, 40, 0, 9.9}, 5, 10, 5},
        {{13}, {100, 0, 30, 40, 0, 29.9}, 5, 30, 5},
        {{13}, {100, 0, 40, 30, 0, 29.9}, 5, 30, 5},
        {{14}, {20, 19.9, 90}, 1, 20, 1},
        {{14}, {20, 2, 180}, 2, 180.1, 2},
        {{14}, {20, 2, 0.1}, 2, 0, 2},
        {{15, 16, 18, 19, 20, 23, 24}, {100, 40, 39.9}, 2, 40, 2},
        {{15, 16, 18, 19, 20, 23, 24}, {40, 100, 39.9}, 2, 40, 2},
        {{21}, {100, 40, 0, 19.9, 0, 90}, 3, 20, 3},
        {{21}, {40, 100, 0, 19.9, 0, 90}, 3, 20, 3},
        {{21}, {100, 40, 0, 2, 0, 179.9}, 5, 180, 5},
        {{21}, {100, 40, 0, 2, 0, 0.1}, 5, 0, 5},
        {{22}, {100, 49.9, 200, 2}, 1, 50, 1},
        {{22}, {100, 0, 40, 19.9}, 3, 20, 3},
        {{22}, {40, 0, 100, 19.9}, 3, 20, 3},
    };
    for (const auto& c : cases)
        for (const int type : c.types) {
            const std::string shown = testing::PrintToString(std::pair(type, c.inside));
            std::vector<double> values = c.inside;
            EXPECT_FALSE(brokenRule(type, values)) << shown;
            values[c.changed] = c.outside;
            const BrokenRule* broken = brokenRule(type, values);
            EXPECT_EQ(broken ? broken->value : -1, c.broken) << shown;
        }
}

TEST(SectionCheck, TellsOfNamesAndFilesThatCannotBeUsed) {
    const TemporaryFolder folder;
    const std::string bad = folder.write("BAD.pr", "9\nSysName\t\\x\n");
    EXPECT_EQ(found(checkSectionFile(bad)),
              "0:0 error: " + bad + ":2: a backslash stands alone; write it twice\n");
    const std::string hyphen =
        folder.write("A-B.pr", std::string("9\n") + header + "Diameter\n1\t1\ta\t\t\t\t10\n");
    EXPECT_THAT(found(checkSectionFile(hyphen)), testing::StartsWith("0:0 error: a table's name"));
}

TEST(SectionCheck, TheSampleLibraryHasNothingToFind) {
    for (const Vor_String& path :
         ObjectExportFindFiles(VORMANT_SOURCE_DIR "/library/prof/", "*.pr"))
        EXPECT_EQ(found(checkSectionFile(path)), "") << path.view();
}

}  // namespace
