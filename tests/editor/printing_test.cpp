// Pages of a printed sheet, and what stands on them.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "core_api/library_names.h"
#include "spread/control/document.h"
#include "spread/printing/print_job.h"
#include "support/temporary_folder.h"

namespace {

using control::Grid;
using printing::PageLayout;
using printing::PrintedCell;
using printing::PrintJob;

// 64 pixels a column, 20 a row; a row header of 40 and a column header of 20.
void fill(Grid& grid, int cols, int rows) {
    grid.setCols(cols);
    grid.setRows(rows);
    grid.setData(1, 1, "first");
    grid.setData(cols, rows, "last");
}

std::string pagesText(const PageLayout& layout) {
    std::string text = layout.isLandscape ? "landscape" : "portrait";
    text += " " + std::to_string(std::lround(layout.scale * 100)) + "%";
    for (const printing::Page& page : layout.pages)
        text += " " + std::to_string(page.cols.front()) + "-" + std::to_string(page.cols.back()) +
                "x" + std::to_string(page.rows.front()) + "-" + std::to_string(page.rows.back());
    return text;
}

TEST(PageLayout, FitsColumnsAndCutsRows) {
    // The paper leaves 196 mm (740 pixels) across, 287 mm (1084 pixels) down; turned 283 and 200.
    const struct {
        int cols, rows;
        bool smart;
        double header;
        const char* pages;
    } cases[] = {
        {10, 50, true, 0, "portrait 100% 1-10x1-50"},
        {10, 120, true, 0, "portrait 100% 1-10x1-53 1-10x54-106 1-10x107-120"},
        {10, 54, true, 20, "portrait 100% 1-10x1-49 1-10x50-54"},
        {16, 40, true, 0, "landscape 100% 1-16x1-36 1-16x37-40"},
        {30, 10, true, 0, "landscape 55% 1-30x1-10"},
        {60, 10, true, 0,
         "portrait 100% 1-10x1-10 11-20x1-10 21-30x1-10 31-40x1-10 41-50x1-10 51-60x1-10"},
        {16, 60, false, 0, "portrait 100% 1-10x1-53 1-10x54-60 11-16x1-53 11-16x54-60"},
    };
    for (const auto& each : cases) {
        Grid grid;
        fill(grid, each.cols, each.rows);
        TwSheetSettings settings;
        settings.smartPrint = each.smart;
        EXPECT_EQ(pagesText(printing::layOutPages(grid, settings, {}, each.header, 0)), each.pages)
            << each.cols << "x" << each.rows;
    }
}

TEST(PageLayout, KeepsARowAndItsPictureTogether) {
    const struct {
        int picture, height;  // the row and its pixels
        const char* pages;
    } cases[] = {
        {53, 20, "portrait 100% 1-10x1-53 1-10x54-60"},
        {54, 20, "portrait 100% 1-10x1-52 1-10x53-60"},
        {55, 20, "portrait 100% 1-10x1-53 1-10x54-60"},
        {40, 400, "portrait 100% 1-10x1-38 1-10x39-60"},
        {40, 1060, "portrait 100% 1-10x1-39 1-10x40-40 1-10x41-60"},
        {1, 1000, "portrait 100% 1-10x1-4 1-10x5-57 1-10x58-60"},
    };
    control::CellType picture;
    picture.kind = control::CellKind::picture;
    for (const auto& each : cases) {
        Grid grid;
        fill(grid, 10, 60);
        grid.setType({2, each.picture, 2, each.picture}, picture);
        grid.setRowHeight(each.picture, each.height);
        EXPECT_EQ(pagesText(printing::layOutPages(grid, {}, {}, 0, 0)), each.pages)
            << each.picture << " " << each.height;
    }
    // Rows of nothing but pictures: no chain of them.
    Grid grid;
    fill(grid, 10, 60);
    grid.setType({2, 1, 2, 60}, picture);
    EXPECT_EQ(pagesText(printing::layOutPages(grid, {}, {}, 0, 0)),
              "portrait 100% 1-10x1-53 1-10x54-60");
}

TEST(PageLayout, LeavesOutWhatIsHiddenOrEmptyAndPrintsWhatIsTooLarge) {
    Grid grid;
    fill(grid, 5, 9);
    grid.setCols(40);
    grid.setRows(900);
    grid.setRowHidden(2, true);
    grid.setRowHeight(4, 5000);
    TwSheetSettings settings;
    settings.colHeader = settings.rowHeader = false;
    const PageLayout layout = printing::layOutPages(grid, settings, {}, 0, 0);
    EXPECT_EQ(pagesText(layout), "portrait 100% 1-5x1-3 1-5x4-4 1-5x5-9");
    EXPECT_EQ(layout.pages[0].rows, (std::vector<int>{1, 3}));
    Grid empty;
    empty.setCols(5);
    empty.setRows(5);
    EXPECT_EQ(printing::layOutPages(empty, settings, {}, 0, 0).pages.size(), 1u);
}

const PrintedCell* find(const std::vector<PrintedCell>& cells, const std::string& text) {
    for (const PrintedCell& cell : cells)
        if (cell.text == text) return &cell;
    return nullptr;
}

TEST(PrintJob, PlacesCellsUnderRepeatedHeadings) {
    Grid grid;
    fill(grid, 3, 60);
    grid.setData(2, control::headerIndex, "Size");
    grid.addSpan({1, 53, 2, 3});
    grid.setData(1, 53, "merged");
    grid.changeFormats({1, 1, 1, 1}, [](control::CellFormat& format) { format.background = 255; });
    TwSheetSettings settings;
    settings.colors = false;
    const PrintJob job(grid, settings, {});
    ASSERT_EQ(job.pageCount(), 2);
    const double pixel = printing::millimetresPerPixel;
    for (int page = 0; page < 2; ++page) {
        const auto printed = job.page(page);
        const PrintedCell* heading = find(printed.body, "Size");
        ASSERT_TRUE(heading && heading->isHeading);
        EXPECT_DOUBLE_EQ(heading->place.left, 9 + 104 * pixel);
        EXPECT_DOUBLE_EQ(heading->place.top, 5);
        EXPECT_TRUE(find(printed.body, "C"));
        const PrintedCell* merged = find(printed.body, "merged");
        ASSERT_TRUE(merged);
        EXPECT_NEAR(merged->place.width, 128 * pixel, 1e-9);
        EXPECT_NEAR(merged->place.height, (page == 0 ? 20 : 40) * pixel, 1e-9);
        EXPECT_NEAR(printed.frame.width, (40 + 3 * 64) * pixel, 1e-9);
    }
    EXPECT_EQ(find(job.page(0).body, "first")->format.background, control::automatic);
    EXPECT_FALSE(find(job.page(1).body, "first"));
    EXPECT_TRUE(find(job.page(1).body, "54"));
    settings.colors = true;
    settings.border = settings.rowHeader = false;
    const PrintJob plain(grid, settings, {});
    EXPECT_EQ(find(plain.page(0).body, "first")->format.background, 255u);
    EXPECT_DOUBLE_EQ(find(plain.page(0).body, "first")->place.left, 9);
    EXPECT_EQ(plain.page(0).frame, printing::Rect());
}

// Where a text may be drawn: from its own column to the last that it may reach, "1-3".
TEST(PrintJob, TextsReachOverEmptyCells) {
    const auto right = [](control::Grid& grid) {
        grid.changeFormats({1, 1, 1, 1}, [](control::CellFormat& format) { format.alignment = 2; });
    };
    const struct {
        const char* text;
        void (*also)(control::Grid&);
        int cols;  ///< that its room takes, 64 pixels each
    } cases[] = {
        {"text", nullptr, 3},
        {"two\nlines", nullptr, 1},
        {"12345678.5", nullptr, 1},
        {"text", right, 1},
        {"text",
         [](Grid& grid) {
             grid.addSpan({1, 1, 1, 2});
         },
         1},
        {"text",
         [](Grid& grid) {
             grid.addSpan({3, 1, 1, 2});
         },
         2},
        {"text", [](Grid& grid) { grid.setData(2, 1, "neighbour"); }, 1},
        {"text",
         [](Grid& grid) {
             grid.setData(2, 1, "hidden");
             grid.setColHidden(2, true);
         },
         1},
        {"text", [](Grid& grid) { grid.setColHidden(2, true); }, 2},
    };
    for (const auto& each : cases) {
        Grid grid;
        fill(grid, 4, 3);
        grid.setData(1, 1, each.text);
        grid.setData(4, 1, "end");
        if (each.also) each.also(grid);
        TwSheetSettings settings;
        const auto printed = PrintJob(grid, settings, {}).page(0);
        const PrintedCell* cell = find(printed.body, each.text);
        ASSERT_TRUE(cell);
        EXPECT_NEAR(cell->room.width, each.cols * 64 * printing::millimetresPerPixel, 1e-9)
            << each.text << " " << &each - cases;
        EXPECT_EQ(cell->isNumber, each.text[0] == '1');
    }
}

TEST(PrintJob, LongTextsComeOntoThePaperWhole) {
    Grid grid;
    grid.setCols(30);
    grid.setRows(2);
    grid.setData(1, 2, "short");
    grid.setData(2, 1, std::string(40, 'x'));  // 276 pixels in 64
    TwSheetSettings settings;
    settings.rowHeader = settings.colHeader = false;
    EXPECT_EQ(pagesText(PrintJob(grid, settings, {}).layout()), "portrait 100% 1-6x1-2");

    // What reaches over the edge of a page goes on on the next.
    settings.smartPrint = false;
    grid.setColWidth(1, 600);
    const PrintJob job(grid, settings, {});
    EXPECT_EQ(pagesText(job.layout()), "portrait 100% 1-3x1-2 4-6x1-2");
    const auto second = job.page(1);
    const double pixel = printing::millimetresPerPixel;
    const PrintedCell* rest = find(second.body, std::string(40, 'x'));
    ASSERT_TRUE(rest && rest->isRest);
    EXPECT_NEAR(rest->place.left, 9 - 2 * 64 * pixel, 1e-9);
    EXPECT_NEAR(rest->room.left, 9, 1e-9);
    EXPECT_NEAR(rest->room.width, 3 * 64 * pixel, 1e-9);
}

TEST(PrintJob, HeadersAndFootersShowVariables) {
    TemporaryFolder folder;
    Grid band;
    band.setCols(2);
    band.setRows(2);
    band.setData(1, 1, "{title}: {Page} of {Pages} {{none} {");
    control::CellType picture;
    picture.kind = control::CellKind::picture;
    picture.text = "c:\\elsewhere\\logo.bmp";
    band.setType(2, 2, picture);
    std::string error;
    ASSERT_TRUE(saveDocument(band, folder.inside("head.sss"), error)) << error;
    Grid grid;
    fill(grid, 3, 60);
    TwSheetSettings settings;
    settings.headerFile = folder.inside("head.sss");
    settings.footerFile = folder.inside("none.sss");
    settings.varNames = {"Date", "Title"};
    settings.varValues = {"today", "Frame 12"};
    const PrintJob job(grid, settings, {});
    ASSERT_EQ(job.problems().size(), 1u);
    EXPECT_NE(job.problems()[0].find("none.sss"), std::string::npos);
    ASSERT_EQ(job.pageCount(), 2);
    const auto printed = job.page(1);
    EXPECT_EQ(printed.header[0].text, "Frame 12: 2 of 2 {{none} {");
    EXPECT_DOUBLE_EQ(printed.header[0].place.top, 5);
    EXPECT_EQ(printed.header.back().picture, folder.inside("logo.bmp"));
    EXPECT_NEAR(job.layout().body.top, 5 + 40 * printing::millimetresPerPixel, 1e-9);
    EXPECT_TRUE(printed.footer.empty());
    // A program prints what lies in the library or beside the sheet, as it is a name in a file; a
    // copy beside the sheet serves for what lies elsewhere.
    setLibraryNameRule({OutsideNames::refused, "allow it"});
    std::filesystem::create_directories(folder.path() / "sent");
    std::filesystem::create_directories(folder.path() / "alone");
    std::filesystem::copy(folder.path() / "head.sss", folder.path() / "sent");
    for (const char* home : {"", "alone\\", "sent\\", "home"}) {
        const bool isFolder = *home != 0;
        const PrintJob job(grid, settings, {},
                           !isFolder                          ? std::string()
                           : std::string_view(home) == "home" ? folder.inside()
                                                              : folder.inside(home));
        const bool hasHeader = *home == 's' || *home == 'h';
        EXPECT_EQ(job.page(1).header.empty(), !hasHeader) << home;
        EXPECT_EQ(job.problems()[0].find("lies outside of the library") == std::string::npos,
                  hasHeader)
            << home;
    }
    setLibraryNameRule({});
}

}  // namespace
