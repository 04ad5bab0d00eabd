// What is drawn: areas, lines, letters and whole pictures.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "drawing/canvas.h"
#include "drawing/contours.h"
#include "drawing/figure.h"
#include "drawing/part_picture.h"
#include "drawing/stroke_font.h"

namespace {

using namespace drawing;

std::vector<Label> labelsOf(const Sketch& sketch) {
    std::vector<Label> labels;
    for (const SketchItem& item : sketch.items)
        if (const auto* label = std::get_if<Label>(&item)) labels.push_back(*label);
    return labels;
}

/// The box of all pixels that are not paper.
CRect inkOf(const CBitmap& picture) {
    CRect ink{picture.width(), picture.height(), 0, 0};
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.at(x, y) != CBitmap::white)
                ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
                       std::max(ink.bottom, y + 1)};
    return ink;
}

TEST(Canvas, CoversPixelsByTheShareThatLiesInside) {
    Canvas canvas(8, 4);
    const Contour square{{1.5, 1}, {4, 1}, {4, 2.25}, {1.5, 2.25}};
    canvas.fill(std::array{square}, CBitmap::black);
    const struct {
        int x, y, grey;
    } pixels[] = {{0, 1, 255}, {1, 1, 128}, {2, 1, 0}, {3, 2, 191}, {4, 1, 255}, {2, 3, 255}};
    for (const auto& [x, y, grey] : pixels)
        EXPECT_NEAR(static_cast<int>(canvas.bitmap().at(x, y) & 0xFF), grey, 1) << x << "," << y;
}

TEST(Canvas, LinesCoverWhatTheirWidthTakesAndCountOnceWherePiecesMeet) {
    const auto grey = [](const Canvas& canvas, int x, int y) {
        return static_cast<int>(canvas.bitmap().at(x, y) & 0xFF);
    };
    const struct {
        std::vector<Point> points;
        double width;
        int x, y, grey;
    } cases[] = {
        {{{2, 5}, {18, 5}}, 2, 10, 4, 0},           // along a row: two rows of pixels
        {{{2, 5}, {18, 5}}, 2, 10, 6, 255},         //
        {{{2, 5.5}, {18, 5.5}}, 0.5, 10, 5, 128},   // thinner than a pixel
        {{{2, 5}, {18, 5}}, 1, 10, 5, 128},         // between two rows
        {{{4, 1}, {4, 9}}, 3, 2, 5, 128},           // along a column
        {{{4, 1}, {4, 9}}, 3, 3, 5, 0},             //
        {{{2, 2}, {6, 6}, {10, 2}}, 1, 6, 6, 180},  // a round corner
        {{{8.5, 5.5}}, 4, 10, 5, 128},              // a dot
        {{{8.5, 5.5}}, 4, 11, 5, 255},              //
    };
    for (const auto& each : cases) {
        Canvas canvas(20, 10);
        canvas.stroke(each.points, each.width, CBitmap::black);
        EXPECT_NEAR(grey(canvas, each.x, each.y), each.grey, 1)
            << each.points[0].x << ' ' << each.width << ' ' << each.x << ',' << each.y;
    }
}

TEST(Canvas, LeavesHolesAndGapsFree) {
    Canvas canvas(40, 20);
    const std::vector<Contour> ring{{{0, 0}, {20, 0}, {20, 20}, {0, 20}},
                                    {{5, 5}, {15, 5}, {15, 15}, {5, 15}}};
    canvas.fill(ring, CBitmap::black);
    EXPECT_EQ(canvas.bitmap().at(2, 2), CBitmap::black);
    EXPECT_EQ(canvas.bitmap().at(10, 10), CBitmap::white);
    canvas.stroke(std::array{Point{22, 10}, Point{40, 10}}, 2, CBitmap::black, false, true);
    EXPECT_EQ(canvas.bitmap().at(24, 10), CBitmap::black);
    EXPECT_NE(canvas.bitmap().at(28, 10), CBitmap::black);  // between two dashes
    EXPECT_EQ(canvas.bitmap().at(32, 10), CBitmap::black);
    // What lies outside the picture is left out.
    canvas.stroke(std::array{Point{-50, -50}, Point{500, 10}}, 3, CBitmap::black);
}

TEST(Hatch, StaysInsideAndOutOfHoles) {
    const std::vector<Contour> ring{{{0, 0}, {30, 0}, {30, 30}, {0, 30}}, circle({15, 15}, 8)};
    const auto strokes = hatch(ring, 3, 1);
    EXPECT_GT(strokes.size(), 10u);
    for (const Stroke& stroke : strokes) {
        const Point middle = (stroke.points[0] + stroke.points[1]) * 0.5;
        EXPECT_NEAR(stroke.points[0].x + stroke.points[0].y,
                    stroke.points[1].x + stroke.points[1].y, 1e-9);
        EXPECT_GT(length(middle - Point{15, 15}), 7.9);
        EXPECT_GE(boundsOf(stroke.points).left, 0);
        EXPECT_LE(boundsOf(stroke.points).right, 30);
    }
}

TEST(StrokeFont, DrawsEveryCharacterThatPeopleType) {
    std::set<std::vector<std::pair<double, double>>> shapes;
    const std::string characters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.,-+=/%():'\"#_<>*?!;"
        "\xB0\xB2\xD7\xD8\xF8";
    for (const char character : characters) {
        std::vector<std::pair<double, double>> shape;
        for (const auto& stroke : textStrokes(std::string(1, character), 16)) {
            const Box box = boundsOf(stroke);
            EXPECT_TRUE(box.left >= 0 && box.bottom >= -4 && box.right <= 16 && box.top <= 18)
                << character;
            for (const Point& point : stroke) shape.emplace_back(point.x, point.y);
        }
        EXPECT_TRUE(shapes.insert(shape).second) << character << " looks like another one";
    }
    EXPECT_EQ(textStrokes("\xE9", 16), textStrokes("e", 16));
    EXPECT_EQ(textStrokes("\x80", 16), textStrokes("\x81", 16));  // a box
    EXPECT_FALSE(textStrokes("\x80", 16).empty());
    EXPECT_DOUBLE_EQ(textWidth("M20", 20), 2 * textWidth("M20", 10));
}

TEST(Contours, RoundingsThatDoNotFitAreRefused) {
    const std::vector<Corner> fits{{{0, 0}, 5}, {{10, 0}, 5}, {{10, 10}, 5}, {{0, 10}, 5}};
    const auto disc = rounded(fits);
    ASSERT_TRUE(disc);
    EXPECT_NEAR(signedArea(*disc), 25 * 3.14159265, 0.05);
    EXPECT_TRUE(isSimple(*disc));
    auto tooRound = fits;
    tooRound[0].radius = 5.1;
    EXPECT_FALSE(rounded(tooRound));
    EXPECT_FALSE(isSimple(Contour{{0, 0}, {10, 10}, {10, 0}, {0, 10}}));
    // A strip bends more tightly where it is short, and not at all where it is too short.
    const std::vector<Point> path{{0, 10}, {0, 0}, {3.5, 0}};
    EXPECT_TRUE(bent(path, {2, 0, 2}));
    EXPECT_FALSE(bent(std::vector<Point>{{0, 10}, {0, 0}, {1.5, 0}}, {2, 0, 2}));
}

class TypePictures : public testing::TestWithParam<int> {
  protected:
    std::span<const double> values() const { return textbookValues(GetParam()); }
    Figure figure() const {
        return figureOf(sectionOutline(GetParam(), values()),
                        letterLabels(sectionValueCount(GetParam())));
    }
};

TEST_P(TypePictures, ShowALetterForEachValueClearOfAllElse) {
    const Sketch sketch = laidOut(figure(), {});
    const std::vector<Label> labels = labelsOf(sketch);
    ASSERT_EQ(labels.size(), values().size());
    std::set<std::string> letters;
    for (const Label& label : labels) {
        letters.insert(label.text.str());
        for (const Label& other : labels)
            EXPECT_TRUE(&label == &other || !boundsOf(label).overlaps(boundsOf(other)))
                << label.text.view() << " on " << other.text.view();
    }
    EXPECT_EQ(letters.size(), values().size());
    EXPECT_EQ(*letters.begin(), "A");
    // Drawn alone, a letter changes no pixel that the rest has inked.
    Sketch rest = sketch;
    std::erase_if(rest.items,
                  [](const SketchItem& item) { return std::holds_alternative<Label>(item); });
    const CBitmap without = painted(rest);
    for (const Label& label : labels) {
        const Box box = boundsOf(label);
        for (int y = static_cast<int>(box.bottom); y < box.top; ++y)
            for (int x = static_cast<int>(box.left); x < box.right; ++x)
                EXPECT_EQ(without.at(x, y), CBitmap::white)
                    << label.text.view() << " at " << x << "," << y;
    }
}

TEST_P(TypePictures, FillTheirFrameAndStayInIt) {
    const struct {
        FigurePaper paper;
        int border;
    } sizes[] = {
        {{}, 4},
        {{.width = 64, .height = 48, .capHeight = 0, .lineWidth = 1, .hatchSpacing = 0}, 1},
        {{.width = 200, .height = 300}, 4}};
    for (const auto& [paper, border] : sizes) {
        const CBitmap picture = painted(laidOut(figure(), paper));
        const CRect ink = inkOf(picture);
        EXPECT_GE(ink.left, border);
        EXPECT_GE(ink.top, border);
        EXPECT_LE(ink.right, picture.width() - border);
        EXPECT_LE(ink.bottom, picture.height() - border);
        EXPECT_TRUE(ink.width() > 0.8 * picture.width() || ink.height() > 0.8 * picture.height());
    }
}

INSTANTIATE_TEST_SUITE_P(All, TypePictures, testing::Range(1, sectionOutlineTypes + 1));

TEST(Figures, SayValuesAsDrawingsDo) {
    const auto texts = [](int type, std::vector<double> values) {
        std::string all;
        for (const Vor_String& label : numberLabels(type, values)) all += label.str() + ";";
        return all;
    };
    EXPECT_EQ(texts(1, {300, 150, 7.1, 10.7, 15, 42.2}), "300;150;7.1;10.7;R15;");
    EXPECT_EQ(texts(7, {200, 75, 8.5, 11.5, 11.5, 0, 8, 37.5}), "200;75;8.5;11.5;R11.5;;8 %;37.5;");
    EXPECT_EQ(texts(11, {168.3, 8}),
              "\xD8"
              "168.3;8;");
    EXPECT_EQ(texts(14, {50, 4, 60}), "50;4;60\xB0;");
}

TEST(PartPictures, ShowEachKindOfPart) {
    using Kind = DrawnPart::Kind;
    const struct {
        const char* name;
        DrawnPart part;
        std::set<std::string> labels;
        size_t contours;
    } parts[] = {
        {"plate",
         {
             .kind = Kind::plate,
             .length = 220,
             .width = 140,
             .thickness = 12,
             .holes = {{{40, 30}, 22},
                       {{110, 110}, 22},
                       {{215, 70}, 22}},  // the last one sticks out
         },
         {"220", "140", "12"},
         4},
        {"long plate, a hole in the part left out",
         {
             .kind = Kind::plate,
             .length = 3000,
             .width = 100,
             .thickness = 10,
             .holes = {{{40, 50}, 18}, {{1500, 50}, 18}, {{2960, 50}, 18}},
         },
         {"3000", "100", "10"},
         5},
        {"beam",
         {.kind = Kind::profile,
          .length = 6250,
          .sectionType = 1,
          .sectionValues = {300, 150, 7.1, 10.7, 15}},
         {"300", "150", "6250"},
         3},
        {"tube",
         {.kind = Kind::profile, .length = 100, .sectionType = 11, .sectionValues = {168.3, 8}},
         {"\xD8"
          "168.3",
          "100"},
         3},
        {"bolt", {.kind = Kind::bolt, .length = 60, .diameter = 20}, {"60", "M20"}, 2},
    };
    for (const auto& [name, part, expected, contours] : parts) {
        const Figure figure = partFigure(part);
        size_t count = 0;
        for (const FigureArea& area : figure.areas) count += area.contours.size();
        EXPECT_EQ(count, contours) << name;
        std::set<std::string> labels;
        for (const Label& label : labelsOf(laidOut(figure, {}))) labels.insert(label.text.str());
        EXPECT_EQ(labels, expected) << name;
        const CBitmap picture = partPicture(part, 240, 120);
        ASSERT_EQ(picture.width(), 240) << name;
        const CRect ink = inkOf(picture);
        EXPECT_TRUE(ink.left > 2 && ink.top > 2 && ink.right < 238 && ink.bottom < 118) << name;
    }
}

TEST(PartPictures, AreEmptyForPartsThatCannotBe) {
    using Kind = DrawnPart::Kind;
    for (const DrawnPart& part :
         {DrawnPart{},
          DrawnPart{
              .kind = Kind::plate,
    .length = 100,
    .width = 50,
          },
          DrawnPart{.kind = Kind::bolt, .length = 60},
          DrawnPart{
              .kind = Kind::profile, .length = 100, .sectionType = 11, .sectionValues = {20, 30}}})
        EXPECT_TRUE(partPicture(part, 100, 100).isEmpty());
}

}  // namespace
