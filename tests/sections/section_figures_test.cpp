// The figures that follow from a shape: against what catalogues print, and against a slow twin that
// cuts the drawn outline into strips.
#include "sections/section_figures.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "core_api/files.h"
#include "core_api/text/text_helpers.h"
#include "drawing/section_outline.h"
#include "sections/section_area.h"
#include "sections/section_types.h"
#include "sections/vor_prof_values_table.h"
#include "test_folders.h"

namespace {

using drawing::Contour;

// --- the twin -----------------------------------------------------------------------------------

struct Strip {
    double y, height;
    std::vector<double> crossings;  // of the line in its middle with the outline, from left
};

struct Sums {
    double area = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;
};

std::vector<Strip> stripsOf(const std::vector<Contour>& contours) {
    constexpr int count = 6000;
    const drawing::Box box = drawing::boundsOf(contours.front());
    const double height = box.height() / count;
    std::vector<Strip> strips;
    for (int i = 0; i < count; ++i) {
        Strip strip{box.bottom + (i + 0.5) * height, height, {}};
        for (const Contour& contour : contours)
            for (size_t k = 0; k < contour.size(); ++k) {
                const auto a = contour[k], b = contour[(k + 1) % contour.size()];
                if ((a.y > strip.y) != (b.y > strip.y))
                    strip.crossings.push_back(a.x + (b.x - a.x) * (strip.y - a.y) / (b.y - a.y));
            }
        std::ranges::sort(strip.crossings);
        strips.push_back(std::move(strip));
    }
    return strips;
}

Sums sumOf(const std::vector<Strip>& strips) {
    Sums sum;
    for (const Strip& strip : strips)
        for (size_t k = 0; k + 1 < strip.crossings.size(); k += 2) {
            const double l = strip.crossings[k], r = strip.crossings[k + 1], y = strip.y;
            const double area = (r - l) * strip.height;
            sum.area += area;
            sum.x += area * (l + r) / 2;
            sum.y += area * y;
            sum.xx += (r * r * r - l * l * l) / 3 * strip.height;
            sum.yy += area * y * y;
            sum.xy += area * (l + r) / 2 * y;
        }
    return sum;
}

/// Strips are added from below until they are half of the area.
double plasticModulus(const std::vector<Strip>& strips) {
    const auto areaOf = [](const Strip& strip) {
        double width = 0;
        for (size_t k = 0; k + 1 < strip.crossings.size(); k += 2)
            width += strip.crossings[k + 1] - strip.crossings[k];
        return width * strip.height;
    };
    double whole = 0, below = 0, modulus = 0;
    for (const Strip& strip : strips) whole += areaOf(strip);
    size_t middle = 0;
    while (below + areaOf(strips[middle]) < whole / 2) below += areaOf(strips[middle++]);
    for (const Strip& strip : strips)
        modulus += areaOf(strip) * std::abs(strip.y - strips[middle].y);
    return modulus;
}

std::vector<Contour> mirrored(std::vector<Contour> contours) {
    for (Contour& contour : contours)
        for (auto& point : contour) std::swap(point.x, point.y);
    return contours;
}

void expectTwin(int type, const std::vector<double>& values) {
    const auto figures = SectionFigures::of(type, values);
    ASSERT_TRUE(figures) << type;
    const std::vector<Contour> contours = drawing::sectionOutline(type, values).contours();
    const drawing::Box box = drawing::boundsOf(contours.front());
    const std::vector<Strip> strips = stripsOf(contours);
    const Sums sum = sumOf(strips);
    const double cx = sum.x / sum.area, cy = sum.y / sum.area;
    const double iy = sum.yy - cy * sum.y, iz = sum.xx - cx * sum.x, iyz = sum.xy - cx * sum.y;
    const double radius = std::sqrt((iy - iz) * (iy - iz) / 4 + iyz * iyz);
    const struct {
        const char* column;
        double value;
    } rows[] = {
        {"cy mm", cy},
        {"cz mm", cx},
        {"Iy mm4", iy},
        {"Iz cm4", iz / 1e4},
        {"Iu mm4", (iy + iz) / 2 + radius},
        {"Iv mm4", (iy + iz) / 2 - radius},
        {"Wel,y mm3", iy / std::max(cy, box.top - cy)},
        {"Wel,z cm3", iz / std::max(cx, box.right - cx) / 1000},
        {"Wpl,y mm3", plasticModulus(strips)},
        {"Wpl,z mm3", plasticModulus(stripsOf(mirrored(contours)))},
        {"iy cm", std::sqrt(iy / sum.area) / 10},
        {"iz mm", std::sqrt(iz / sum.area)},
    };
    // The drawing has arcs of 3 degrees, which costs a round bar 0.1 %.
    constexpr double ofDrawing = 0.0025;
    for (const auto& row : rows)
        EXPECT_NEAR(figures->valueOf(row.column).value_or(0), row.value,
                    ofDrawing * row.value + 0.02)
            << row.column << " of type " << type << " " << testing::PrintToString(values);
}

TEST(SectionFigures, AreThoseOfTheOutlineCutIntoStrips) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> factor(0.85, 1.15);
    for (int type = 1; type <= sectionTypeCount; ++type)
        for (int round = 0; round < 4; ++round) {
            const auto textbook = drawing::textbookValues(type);
            std::vector<double> values(textbook.begin(), textbook.end());
            for (double& value : values)
                if (round > 0) value *= factor(random);
            if (drawing::sectionOutline(type, values).isEmpty()) continue;
            ASSERT_NO_FATAL_FAILURE(expectTwin(type, values));
        }
}

TEST(SectionFigures, OfSimpleShapesByHand) {
    using std::numbers::pi;
    const struct {
        int type;
        std::vector<double> values;
        const char* column;
        double value;
    } cases[] = {
        {8, {60, 20}, "Iy cm4", 60 * 8000 / 12e4},
        {8, {60, 20}, "Iz cm4", 216000 * 20 / 12e4},
        {8, {60, 20}, "Wpl,z cm3", 20 * 3600 / 4e3},
        {8, {60, 20}, "A m2", 0.0012},
        {8, {60, 20}, "wel.y CM3", 60 * 400 / 6e3},
        {9, {40}, "I cm4", pi / 64 * 256},
        {9, {40}, "Wel cm3", pi / 32 * 64},
        {9, {40}, "i mm", 10},
        {9, {40}, "Wpl cm3", 64.0 / 6},
        {10, {80, 80, 5, 0}, "I cm4", (std::pow(8, 4) - std::pow(7, 4)) / 12},
        {10, {80, 60, 5, 10}, "Inner radius", 5},
        {1, {100, 50, 6, 10, 0}, "Iy cm4", (5 * 1000 - 4.4 * 512) / 12},
        {1, {100, 50, 6, 10, 0}, "Wpl,y cm3", 2 * (5 * 4.5 + 2.4 * 2)},
        {3, {60, 60, 6, 6, 0, 0}, "cy mm", (360 * 30 + 324 * 3) / 684.0},
        {7, {100, 50, 5, 5, 0, 0, 0, 0}, "ez mm", (500 * 2.5 + 450 * 27.5) / 950},
    };
    for (const auto& c : cases) {
        const auto figures = SectionFigures::of(c.type, c.values);
        ASSERT_TRUE(figures);
        EXPECT_NEAR(figures->valueOf(c.column).value_or(-1), c.value, 2e-5 * c.value)
            << c.column << " of type " << c.type;
    }
    const auto flat = SectionFigures::of(8, std::vector<double>{60, 20});
    for (const char* column :
         {"I cm4", "Iy", "Iy kg", "Iy cm3", "Area", "Area cm", "It cm4", "ez mm", "Wel,u cm3",
          "Wel,v cm3", "Wpl,u cm3", "Wpl,v cm3", "Inner radius", "Width", "", " cm", "iyy cm"})
        EXPECT_FALSE(flat->valueOf(column)) << column;
    EXPECT_FALSE(SectionFigures::of(8, std::vector<double>{60}));
    EXPECT_FALSE(SectionFigures::of("Box.dwg", {}));
}

TEST(SectionFigures, HaveFourDigits) {
    const struct {
        std::vector<double> values;
        const char* column;
        const char* text;
    } cases[] = {
        {{100, 10}, "Mass kg/m", "7.85"}, {{100, 10}, "Iz cm4", "83.33"},
        {{100, 10}, "Iz mm4", "833300"},  {{1000, 30}, "Iz cm4", "250000"},
        {{1000, 31}, "Iz cm4", "258300"}, {{10, 3}, "Iy cm4", "0.00225"},
        {{100, 10}, "Iy cm4", "0.8333"},  {{100, 10}, "Width", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(SectionFigures::of(8, c.values)->textOf(c.column), c.text) << c.column;
}

// --- catalogues ---------------------------------------------------------------------------------

// Figures of four digits, the last of which is off by half at most.
constexpr double ofFourDigits = 0.0006;
// Toes of more than the thickness of their leg end where catalogues do not say.
constexpr double ofThickToes = 0.003;
constexpr double ofPrintedMass = 0.0125;

TEST(SectionFigures, AreThoseThatCataloguesPrint) {
    int compared = 0;
    for (const Vor_String& path :
         ObjectExportFindFiles(VORMANT_SOURCE_DIR "/library/prof/", "*.pr")) {
        Vor_ProfValuesTable table;
        ASSERT_TRUE(table.readFromPath(path));
        for (int row = 0; row < table.rows.length(); ++row) {
            const auto figures = SectionFigures::of(table, row);
            ASSERT_TRUE(figures) << path.view() << " " << row;
            const int dimensions = sectionTypeColumns(sectionTypeNumber(table.drawnAs)).length();
            for (int col = table.firstValueColumn() + dimensions; col < table.columnNames.length();
                 ++col, ++compared) {
                const Vor_String& column = table.columnNames[col];
                const double printed = textToDouble(table.rows[row][col]);
                const double share = column.equal("Mass kg/m")    ? ofPrintedMass
                                     : table.tableName.equal("L") ? ofThickToes
                                                                  : ofFourDigits;
                EXPECT_NEAR(figures->valueOf(column).value_or(0), printed, share * printed)
                    << table.tableName.view() << "-" << table.rows[row][0].view() << " "
                    << column.view();
                EXPECT_TRUE(figures->allows(column, table.rows[row][col]));
                EXPECT_FALSE(figures->allows(column, std::to_string(printed * 1.03 + 0.07)));
            }
        }
    }
    EXPECT_GT(compared, 7900);
}

TEST(SectionFigures, AllowWhatIsRoundedOrBent) {
    const struct {
        int type;
        std::vector<double> values;
        const char* column;
        const char* printed;
        bool isAllowed;
    } cases[] = {
        {8, {100, 10}, "Area cm2", "10.09", true},
        {8, {100, 10}, "Area cm2", "10.11", false},
        {8, {100, 10}, "Mass kg/m", "7.9", true},
        {8, {100, 10}, "Mass kg/m", "8", true},
        {8, {100, 10}, "Mass kg/m", "8.0", false},
        {8, {100, 10}, "Iy cm4", "1", true},
        {8, {100, 10}, "Iy cm4", "0.9", false},
        {8, {100, 10}, "Iy cm4", "", true},
        {8, {100, 10}, "Iy cm4", "see note", true},
        {8, {100, 10}, "Remark", "5", true},
        {12, {200, 70, 20, 2}, "Area cm2", "7", true},
        {12, {200, 70, 20, 2}, "Area cm2", "6", false},
        {10, {80, 60, 5, 10}, "Inner radius", "7", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(SectionFigures::of(c.type, c.values)->allows(c.column, c.printed), c.isAllowed)
            << c.column << " " << c.printed;
}

}  // namespace
