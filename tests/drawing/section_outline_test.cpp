// The outlines of section types against closed formulas for their areas and boxes, and what becomes
// of values that make no section.
#include "drawing/section_outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core_api/text/text_helpers.h"

namespace {

using drawing::OutlineProblem;
using drawing::problemText;
using drawing::SectionOutline;
using drawing::sectionOutline;
using Values = std::vector<double>;
constexpr double pi = std::numbers::pi;

/// What a rounding of radius 1 takes off a corner of `degrees`.
double corner(double degrees = 90) {
    return 1 / std::tan(degrees * pi / 360) - (180 - degrees) * pi / 360;
}

/// A bend is rounded by two thicknesses outside and one inside.
double bend(double t, double degrees = 90) {
    return 3 * t * t * corner(degrees);
}

struct Case {
    int type;
    Values values;
    double width, height;  ///< 0: not compared
    double area;
};

std::vector<Case> cases() {
    const double waveSlope = std::hypot(81 - 3, 40.0);  // of a crash barrier's seven parts of 40
    const double waveAngle = 180 - std::atan2(81 - 3, 40.0) * 180 / pi;
    const double sigmaSlope = std::hypot(26, 25.0);
    const double sigmaAngle = 180 - std::atan2(26, 25.0) * 180 / pi;
    const double sigmaWeb = 2 * 50 + 70 + 2 * sigmaSlope;
    const double sigmaBends = 4 * bend(6, sigmaAngle);
    const double lean = 1 / std::tan(70 * pi / 360);  // of a lip at 70 degrees, in the miter
    return {
        {1, {300, 150, 7.1, 10.7, 15}, 150, 300, 2 * 150 * 10.7 + 278.6 * 7.1 + 900 * corner()},
        {1, {100, 50, 6, 10, 0}, 50, 100, 2 * 500 + 80 * 6},
        {2, {60, 40, 3, 3}, 40, 60, 60 * 3 + 37 * 3 - bend(3)},
        {3, {100, 75, 8, 8, 10, 5}, 75, 100, 8 * 167 + (100 - 2 * 25) * corner()},
        {3, {60, 40, 5, 7, 0, 0}, 40, 60, 60 * 5 + 35 * 7},
        {3, {45, 45, 3, 3, 7, 3.5}, 45, 45, 3 * 87 + (49 - 2 * 12.25) * corner()},
        {4, {100, 50, 40, 3}, 50, 100, 3 * (100 + 47 + 37) - 2 * bend(3)},
        {5, {60, 60, 7, 7, 7}, 60, 60, 60 * 7 + 53 * 7 + 2 * 49 * corner()},
        {6, {100, 50, 6, 10, 0, 0, 10, 5}, 50, 100, 600 + 4 * 22 * 10.6},
        {7, {100, 50, 6, 10, 0, 0, 10, 22}, 50, 100, 600 + 2 * 44 * 10},
        {8, {100, 10}, 100, 10, 1000},
        {9, {20}, 20, 20, 100 * pi},
        {10, {100, 50, 4, 8}, 50, 100, 100 * 50 - 92 * 42 - (64 - 16) * 4 * corner()},
        {10, {100, 50, 4, 0}, 50, 100, 100 * 50 - 92 * 42},
        {11, {100, 5}, 100, 100, pi * (2500 - 2025)},
        {12, {200, 70, 20, 2}, 70, 200, 2 * (200 + 2 * 68 + 2 * 18) - 4 * bend(2)},
        {12, {200, 70, 0, 2}, 70, 200, 2 * (200 + 2 * 68) - 2 * bend(2)},
        {13, {200, 20, 70, 60, 18, 2}, 128, 200, 2 * (200 + 68 + 58 + 18 + 16) - 4 * bend(2)},
        {13, {200, 0, 70, 60, 0, 2}, 128, 200, 2 * (200 + 68 + 58) - 2 * bend(2)},
        {14, {50, 4, 90}, 50 * std::sqrt(2.0), 0, 50 * 4 + 46 * 4 - bend(4)},
        {15, {60, 80, 2, 25}, 130, 60, 2 * (80 + 2 * 58 + 2 * 25) - 4 * bend(2)},
        {16,
         {310, 81, 3, 15},
         81,
         310,
         3 * (2 * 15 + 3 * 40 + 4 * waveSlope) - 8 * bend(3, waveAngle)},
        {17, {100, 100, 6, 9, 12}, 100, 100, 900 + 91 * 6 + 2 * 144 * corner()},
        {18,
         {220, 90, 6, 50, 70, 26, 28},
         90,
         220,
         6 * (sigmaWeb + 2 * 90 + 2 * 28 - 4 * 6) - 4 * bend(6) - sigmaBends},
        {19,
         {220, 90, 6, 50, 70, 26, 40, 30, 70},
         0,  // the bend at the lip does not reach the corner
         220,
         6 * (sigmaWeb + 2 * 90 + 40 + 30 - 2 * 6 - 2 * 6 * lean) - 2 * bend(6) - 2 * bend(6, 70) -
             sigmaBends},
        {20,
         {220, 90, 6, 50, 70, 26},
         90,
         220,
         6 * (sigmaWeb + 2 * 90 - 2 * 6) - 2 * bend(6) - sigmaBends},
        {21, {200, 70, 20, 2, 15, 90}, 70, 200, 2 * (200 + 2 * 68 + 18 + 13) - 4 * bend(2)},
        {22, {200, 20, 70, 2}, 70, 200, 2 * (200 + 2 * 68 + 2 * 18) - 4 * bend(2)},
        {23, {130, 90, 4, 80, 30}, 166, 130, 4 * (130 + 86 + 76 + 26) - 3 * bend(4)},
        {24,
         {120, 90, 4, 60, 80, 30, 90},
         222,
         120,
         4 * (90 + 2 * 116 + 56 + 76 + 2 * 26) - 6 * bend(4)},
    };
}

TEST(SectionOutline, HasTheAreaAndTheBoxOfItsValues) {
    for (const Case& c : cases()) {
        const SectionOutline outline = sectionOutline(c.type, c.values);
        ASSERT_FALSE(outline.isEmpty()) << c.type;
        EXPECT_NEAR(outline.area(), c.area, 0.001 * c.area) << c.type;
        const drawing::Box box = outline.box();
        EXPECT_NEAR(box.left, 0, 1e-9) << c.type;
        EXPECT_NEAR(box.bottom, 0, 1e-9) << c.type;
        EXPECT_NEAR(c.width > 0 ? box.width() : 0, c.width, 1e-6 * c.width) << c.type;
        EXPECT_NEAR(c.height > 0 ? box.height() : 0, c.height, 1e-6 * c.height) << c.type;
    }
}

TEST(SectionOutline, OfTextbookValuesIsWholeAndShowsEveryValue) {
    for (int type = 1; type <= drawing::sectionOutlineTypes; ++type) {
        const auto values = drawing::textbookValues(type);
        EXPECT_EQ(static_cast<int>(values.size()), drawing::sectionValueCount(type));
        const SectionOutline outline = sectionOutline(type, values);
        ASSERT_FALSE(outline.isEmpty()) << type;
        EXPECT_TRUE(isSimple(outline.outer)) << type;
        EXPECT_GT(signedArea(outline.outer), 0) << type;
        const drawing::Box box = outline.box();
        for (const auto& hole : outline.holes) {
            EXPECT_TRUE(isSimple(hole)) << type;
            EXPECT_LT(signedArea(hole), 0) << type;
            EXPECT_GT(boundsOf(hole).left, box.left) << type;
            EXPECT_LT(boundsOf(hole).right, box.right) << type;
        }
        std::vector<int> shown(values.size());
        for (const auto& dimension : outline.dimensions)
            ++shown.at(static_cast<size_t>(dimension.value));
        for (size_t i = 0; i < shown.size(); ++i) EXPECT_EQ(shown[i], 1) << type << " value " << i;
    }
}

TEST(SectionOutline, MeasuresSpansAsLongAsTheirValues) {
    for (int type = 1; type <= drawing::sectionOutlineTypes; ++type) {
        const auto values = drawing::textbookValues(type);
        for (const auto& each : sectionOutline(type, values).dimensions) {
            using Kind = drawing::Dimension::Kind;
            if (each.kind != Kind::span && each.kind != Kind::across) continue;
            const drawing::Point along =
                each.kind == Kind::span ? leftOf(each.away) : unit(each.to - each.from);
            EXPECT_NEAR(std::abs(dot(each.to - each.from, along)),
                        values[static_cast<size_t>(each.value)], 1e-6)
                << type << " value " << each.value;
        }
    }
}

TEST(SectionOutline, RefusesValuesThatMakeNoSection) {
    using Kind = OutlineProblem::Kind;
    const double nan = std::nan("");
    const struct {
        int type;
        Values values;
        Kind kind;
        int value;
    } refused[] = {
        {0, {100}, Kind::noType, -1},
        {25, {100}, Kind::noType, -1},
        {1, {200, 100, 8, 12}, Kind::missing, 4},
        {1, {200, nan, 8, 12, 10}, Kind::missing, 1},
        {1, {200, 0, 8, 12, 10}, Kind::notPositive, 1},
        {1, {200, 100, 8, 12, -1}, Kind::negative, 4},
        {1, {200, 100, 100, 12, 10}, Kind::tooLarge, 2},
        {1, {200, 100, 8, 100, 10}, Kind::tooLarge, 3},
        {1, {200, 100, 8, 12, 47}, Kind::tooLarge, 4},
        {2, {60, 40, 40, 3}, Kind::tooLarge, 2},
        {3, {100, 100, 10, 10, 91, 0}, Kind::tooLarge, 4},
        {3, {100, 100, 10, 10, 12, 13}, Kind::tooLarge, 5},
        {3, {100, 100, 10, 10, 2, 11}, Kind::tooLarge, 5},
        {3, {20, 20, 10, 10, 80, 60}, Kind::tooLarge, 5},  // the toe is longer than its leg
        {5, {100, 100, 10, 100, 0}, Kind::tooLarge, 3},
        {6, {200, 100, 8, 12, 10, 5, 80, 40}, Kind::tooLarge, 6},  // no edge left
        {6, {200, 100, 8, 12, 10, 5, 14, 60}, Kind::tooLarge, 7},
        {7, {100, 50, 6, 10, 8, 11, 8, 25}, Kind::tooLarge, 5},
        {9, {-5}, Kind::notPositive, 0},
        {10, {100, 50, 25, 0}, Kind::tooLarge, 2},
        {10, {100, 50, 4, 26}, Kind::tooLarge, 3},
        {11, {100, 50}, Kind::tooLarge, 1},
        {12, {100, 50, 50, 2}, Kind::tooLarge, 2},
        {12, {100, 50, 2, 3}, Kind::tooLarge, 3},
        {13, {100, 99, 50, 50, 10, 2}, Kind::tooLarge, 1},
        {14, {50, 4, 0}, Kind::notAnAngle, 2},
        {14, {50, 4, 180}, Kind::notAnAngle, 2},
        {14, {50, 40, 60}, Kind::tooLarge, 1},
        {15, {60, 80, 40, 25}, Kind::tooLarge, 2},
        {16, {310, 81, 3, 155}, Kind::tooLarge, 3},
        {18, {220, 90, 6, 110, 70, 26, 28}, Kind::tooLarge, 3},
        {18, {220, 90, 6, 50, 121, 26, 28}, Kind::tooLarge, 4},
        {18, {220, 90, 6, 50, 70, 86, 28}, Kind::tooLarge, 5},
        {18, {220, 90, 6, 50, 70, 80, 108}, Kind::collision, -1},  // the web meets the lips
        {21, {200, 70, 150, 2, 150, 60}, Kind::collision, -1},
        {23, {130, 90, 4, 80, 127}, Kind::tooLarge, 4},
        {24, {120, 90, 4, 60, 200, 110, 20}, Kind::collision, -1},
    };
    for (const auto& c : refused) {
        const SectionOutline outline = sectionOutline(c.type, c.values);
        EXPECT_TRUE(outline.isEmpty()) << c.type;
        EXPECT_EQ(outline.problem.kind, c.kind) << c.type << " value " << c.value;
        EXPECT_EQ(outline.problem.value, c.value) << c.type;
        EXPECT_FALSE(problemText(outline.problem, {}).hasSubString("%1"));
    }
}

TEST(SectionOutline, NamesTheValueThatIsWrong) {
    Vor_StringArray names;
    for (const char* name : {"Height", "Width", "Web thickness"}) names.append(name);
    EXPECT_EQ(problemText({OutlineProblem::Kind::tooLarge, 2}, names).str(),
              "Web thickness is too large for the other values.");
    EXPECT_EQ(problemText({OutlineProblem::Kind::notPositive, 2}, {}).str(),
              "C has to be greater than 0.");
    EXPECT_TRUE(problemText({}, names).isEmpty());
}

TEST(SectionOutline, LeavesOutWhatTablesHoldBesides) {
    const SectionOutline outline = sectionOutline(9, Values{20, 2.47, 3.14});
    EXPECT_NEAR(outline.area(), 100 * pi, 0.3);
}

}  // namespace
