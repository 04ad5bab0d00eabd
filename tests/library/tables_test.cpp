// Section tables and data files against each other. What the dimensions of sections give is
// compared with published areas in tests/sections.
#include <cmath>
#include <numbers>
#include <set>

#include "core_api/files.h"
#include "core_api/sections/section_catalogue.h"
#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "library/sample_library.h"

namespace {

class SectionTables : public SampleLibrary {};

TEST_F(SectionTables, EverySizeIsFoundByItsTwoNames) {
    const Vor_StringArray names = gSectionTables.tableNames();
    EXPECT_GE(names.length(), 20);
    for (int i = 0; i < names.length(); ++i) {
        const SectionTable* table = gSectionTables.table(i);
        ASSERT_NE(table, nullptr) << names[i].view();
        EXPECT_FALSE(table->rows().isEmpty()) << names[i].view();
        for (int row = 0; row < table->rows().length(); ++row) {
            const Vor_String name = table->fullName(row);
            Vor_String userName;
            Vor_String found;
            ASSERT_TRUE(gSectionTables.getUserName(name, userName)) << name.view();
            ASSERT_TRUE(gSectionTables.getSystemName(userName.view(), found)) << name.view();
            EXPECT_EQ(found, name);
        }
    }
}

TEST_F(SectionTables, TheCatalogueSortsAllOfThem) {
    SectionCatalogue catalogue;
    Vor_String message;
    ASSERT_TRUE(readSectionCatalogue(catalogue, &message)) << message.view();
    Vor_StringArray groups, sorted;
    AcArray<long> ids;
    catalogue.groups.namesOfAllGroups(groups, ids);
    for (const SectionType& type : catalogue.types) {
        EXPECT_TRUE(ids.contains(type.group)) << type.getName().view();
        sorted.appendAll(splitStringAtSymbol(type.remark, ',', true));
    }
    for (const Vor_String& table : gSectionTables.tableNames())
        EXPECT_TRUE(sorted.contains(table)) << table.view();
}

/// The value of a key in a look-up table of the library; NaN when it is not there.
double lookUp(std::string_view file, const std::string& key) {
    Vor_StringArray lines;
    ObjectExportReadFile(gSettings.libDir() + "Connection Standards\\Data\\" + file, lines);
    Vor_String name;
    Vor_String value;
    for (const Vor_String& line : lines)
        if (splitString(line, "\t", name, value) && name.equal(key, true))
            return textToDouble(value);
    return std::nan("");
}

class DataFiles : public SampleLibrary {};

TEST_F(DataFiles, BoltsAndSpacingBelongTogether) {
    for (const std::string size : {"M12", "M16", "M20", "M22", "M24", "M27", "M30", "M36"}) {
        const auto bolt = [&](const char* what) { return lookUp("bolts.txt", size + ";" + what); };
        const auto spacing = [&](const char* what) {
            return lookUp("spacing.txt", size + ";" + what);
        };
        const double d = bolt("d"), pitch = bolt("P"), hole = bolt("d0");
        EXPECT_EQ(size, "M" + std::to_string(static_cast<int>(d)));
        // ISO 898-1: the stress area is that of a circle of d - 0.9382 P.
        EXPECT_NEAR(bolt("As"), std::numbers::pi / 4 * std::pow(d - 0.9382 * pitch, 2), 0.6);
        EXPECT_EQ(bolt("b"), 2 * d + 6) << size;  // ISO 4014
        EXPECT_GT(bolt("e"), bolt("s")) << size;
        EXPECT_GT(bolt("dw"), hole) << size;
        EXPECT_LT(hole, bolt("d0o")) << size;
        EXPECT_LT(bolt("ls"), bolt("ll")) << size;
        EXPECT_EQ(bolt("ll"), 2.5 * d) << size;  // EN 1090-2 Table 11
        // EN 1993-1-8 Table 3.3.
        EXPECT_NEAR(spacing("e1"), 1.2 * hole, 1e-9) << size;
        EXPECT_NEAR(spacing("e3"), 1.5 * hole, 1e-9) << size;
        EXPECT_NEAR(spacing("p1"), 2.2 * hole, 1e-9) << size;
        EXPECT_NEAR(spacing("p2"), 2.4 * hole, 1e-9) << size;
    }
}

TEST_F(DataFiles, FlatsWeighWhatTheirSizeSays) {
    Vor_StringArray lines;
    ASSERT_EQ(ObjectExportReadFile(path("Connection Standards\\Data\\flats.txt"), lines),
              Acad::eOk);
    std::set<std::string> sizes;
    for (const Vor_String& line : lines) {
        Vor_String size, mass, width, thickness;
        if (line.hasSubString("//") || !splitString(line, "\t", size, mass)) continue;
        EXPECT_TRUE(sizes.insert(size.str()).second) << size.view();
        ASSERT_TRUE(splitString(size, "x", width, thickness)) << size.view();
        EXPECT_NEAR(textToDouble(mass), textToDouble(width) * textToDouble(thickness) * 7.85e-3,
                    0.0006)
            << size.view();
    }
    EXPECT_GT(sizes.size(), 100u);
}

}  // namespace
