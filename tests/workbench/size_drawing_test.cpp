// The drawing beside a section table: it follows the selection, keeps its numbers readable and says
// why there is nothing to draw.
#include <QImage>

#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "sections/section_types.h"
#include "workbench/dialog_problems.h"
#include "workbench/starters_fixture.h"
#include "workbench/window/dialog_font.h"

namespace {

using testing::HasSubstr;

class SizeDrawing : public StartersTest {
  protected:
    ~SizeDrawing() override { gSectionTables.reload(); }

    TablePage& openTable(const char* file, Language language = Language::english) {
        openProgram(language);
        auto* page = dynamic_cast<TablePage*>(
            window->open(LibraryKind::sectionTable, gSettings.libDir() + "prof\\" + file));
        if (!page) throw std::runtime_error("the table does not open");
        QTest::qWait(20);
        return *page;
    }
    static QImage drawn(TablePage& page) { return page.drawing().figure().grab().toImage(); }
    static int inkIn(const QImage& image) {
        const QRgb paper = image.pixel(0, 0);
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) != paper;
        return count;
    }
};

TEST_F(SizeDrawing, FollowsTheKeyboard) {
    TablePage& page = openTable("IPE.pr");
    const QImage first = drawn(page);
    EXPECT_GT(inkIn(first), 500);
    EXPECT_EQ(page.drawing().reason(), "");
    const QString figures = page.drawing().figures();
    page.table().setFocus();
    QTest::keyClick(&page.table(), Qt::Key_Down);
    EXPECT_NE(drawn(page), first);
    EXPECT_NE(page.drawing().figures(), figures);
    EXPECT_TRUE(page.select("IPE-300"));
    // 53.81 cm2 and 42.2 kg/m are published.
    EXPECT_THAT(page.drawing().figures().toStdString(), HasSubstr("53.81 "));
    EXPECT_THAT(page.drawing().figures().toStdString(), HasSubstr("42.2"));
    saveGrab(*window, "size-drawing");
}

TEST_F(SizeDrawing, SpeaksTheLanguageOfTheDesktop) {
    TablePage& page = openTable("UPN.pr", Language::german);
    EXPECT_THAT(page.drawing().figures().toStdString(), HasSubstr("Querschnitt"));
    saveGrab(*window, "size-drawing-german");
}

TEST_F(SizeDrawing, SaysWhyThereIsNone) {
    SizePanel panel;
    panel.resize(300, 360);
    panel.show();
    const Vor_StringArray columns = sectionTypeColumns(1);
    const auto show = [&](const char* drawnAs, std::initializer_list<const char*> cells) {
        Vor_StringArray values;
        for (const char* cell : cells) values.append(cell);
        panel.showSize({"X-1", drawnAs, columns, values});
        return inkIn(panel.figure().grab().toImage());
    };
    const QString thickness = toQt(columns[2]);
    EXPECT_GT(show("1", {"100", "50", "5", "8", "7"}), 500);
    EXPECT_EQ(panel.reason(), "");
    EXPECT_EQ(show("1", {"100", "50", "60", "8", "7"}), 0);
    EXPECT_TRUE(panel.reason().contains(thickness)) << panel.reason().toStdString();
    EXPECT_EQ(panel.figures(), "");
    saveGrab(panel, "size-without-shape");
    EXPECT_EQ(show("1", {"100", "50", "five", "8", "7"}), 0);
    EXPECT_TRUE(panel.reason().contains(thickness)) << panel.reason().toStdString();
    EXPECT_EQ(show("99", {"100"}), 0);
    EXPECT_NE(panel.reason(), "");
    EXPECT_EQ(show("Castellated beam.dwg", {"100"}), 0);
    EXPECT_TRUE(panel.reason().contains("Castellated beam.dwg"));
}

// Every size of the library, as wide as the panel begins and as narrow as it gets.
TEST_F(SizeDrawing, KeepsNumbersApart) {
    openProgram();
    for (const double width : {320.0, 200.0}) {
        const drawing::FigurePaper paper{
            .width = width, .height = 360, .capHeight = FigureView::labelHeight};
        for (int t = 0; t < gSectionTables.tableNames().length(); ++t) {
            const SectionTable& table = *gSectionTables.table(t);
            for (int row = 0; row < table.rows().length(); ++row) {
                std::vector<double> values;
                while (const Vor_String* text = table.value(row, static_cast<int>(values.size())))
                    values.push_back(textToDouble(*text));
                const int type = sectionTypeNumber(table.drawnAs());
                const auto outline = drawing::sectionOutline(type, values);
                if (outline.isEmpty()) continue;  // the panel says why
                const auto sketch =
                    laidOut(figureOf(outline, drawing::numberLabels(type, values)), paper);
                std::vector<drawing::Box> boxes;
                for (const auto& item : sketch.items)
                    if (const auto* label = std::get_if<drawing::Label>(&item))
                        boxes.push_back(boundsOf(*label));
                EXPECT_FALSE(boxes.empty()) << table.fullName(row).str();
                for (size_t i = 0; i < boxes.size(); ++i)
                    for (size_t j = 0; j < i; ++j)
                        EXPECT_FALSE(boxes[i].overlaps(boxes[j]))
                            << table.fullName(row).str() << ", " << width << " wide";
            }
        }
    }
}

}  // namespace
