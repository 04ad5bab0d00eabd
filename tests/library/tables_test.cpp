// Section tables and data files against geometry and against each other: a slipped column or a
// mistyped size shows as an area that its dimensions cannot have.
#include <cmath>
#include <numbers>
#include <set>

#include "core_api/files.h"
#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "library/sample_library.h"

namespace {

class SectionTables : public SampleLibrary {
  protected:
    /// Calls visit(name, values) for every size of the table; the values from number 1.
    template <class Visit>
    static void each(const char* tableName, Visit&& visit) {
        int index = 0;
        ASSERT_TRUE(gSectionTables.hasTable(tableName, index)) << tableName;
        const SectionTable* table = gSectionTables.table(index);
        ASSERT_NE(table, nullptr) << tableName;
        EXPECT_GT(table->rows().length(), 10) << tableName;
        for (int row = 0; row < table->rows().length(); ++row) {
            std::vector<double> values{0};
            for (int i = 0; i < table->valueColumns().length(); ++i)
                values.push_back(textToDouble(valueOf(*table, row, i)));
            visit(table->fullName(row).str(), values);
        }
    }
    static std::string_view valueOf(const SectionTable& table, int row, int index) {
        const Vor_String* text = table.value(row, index);
        return text ? text->view() : "missing";
    }
    /// `massAt` is the number of the value in kg/m; the area in cm2 follows it.
    static void expectArea(const std::string& name, const std::vector<double>& v, size_t massAt,
                           double mm2) {
        const double area = v[massAt + 1] * 100;
        EXPECT_NEAR(area, mm2, 0.002 * mm2) << name;
        EXPECT_NEAR(v[massAt], area * 7.85e-3, 0.0125 * v[massAt]) << name;
    }
    static constexpr double corners = 4 - std::numbers::pi;
};

TEST_F(SectionTables, AreasFollowFromTheDimensions) {
    for (const char* table : {"IPE", "HEA", "HEB", "HEM"})
        each(table, [](const std::string& name, const std::vector<double>& v) {
            const double h = v[1], b = v[2], tw = v[3], tf = v[4], r = v[5];
            expectArea(name, v, 6, 2 * b * tf + (h - 2 * tf) * tw + corners * r * r);
        });
    // The taper of a channel takes as much at the edge as it adds at the web.
    for (const char* table : {"UPN", "UPE"})
        each(table, [](const std::string& name, const std::vector<double>& v) {
            const double h = v[1], b = v[2], tw = v[3], tf = v[4];
            EXPECT_NEAR(v[10] * 100, 2 * b * tf + (h - 2 * tf) * tw, 0.06 * v[10] * 100) << name;
            EXPECT_NEAR(v[9], v[10] * 0.785, 0.01 * v[9]) << name;
        });
    each("L", [](const std::string& name, const std::vector<double>& v) {
        const double h = v[1], b = v[2], t = v[3], root = v[5], toe = v[6];
        EXPECT_EQ(t, v[4]) << name;
        expectArea(name, v, 7, t * (h + b - t) + corners / 4 * (root * root - 2 * toe * toe));
    });
    for (const char* table : {"RHS", "SHS", "RHSC", "SHSC"})
        each(table, [](const std::string& name, const std::vector<double>& v) {
            const double h = v[1], b = v[2], t = v[3], ro = v[4], ri = v[5];
            expectArea(name, v, 6, 2 * t * (h + b - 2 * t) - corners * (ro * ro - ri * ri));
        });
    for (const char* table : {"CHS", "CHSC"})
        each(table, [](const std::string& name, const std::vector<double>& v) {
            expectArea(name, v, 3, std::numbers::pi * v[2] * (v[1] - v[2]));
        });
}

TEST_F(SectionTables, EverySizeIsFoundByItsTwoNames) {
    for (const Vor_String& tableName : gSectionTables.tableNames())
        each(tableName.c_str(), [](const std::string& name, const std::vector<double>&) {
            Vor_String userName;
            Vor_String found;
            ASSERT_TRUE(gSectionTables.getUserName(name, userName)) << name;
            ASSERT_TRUE(gSectionTables.getSystemName(userName.view(), found)) << name;
            EXPECT_EQ(found.str(), name);
        });
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
