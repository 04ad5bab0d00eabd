// What each operation of the editor does to a sheet, told as the sheet's cells row by row.
#include <gtest/gtest.h>

#include <functional>

#include "core_api/text/number_text.h"
#include "spread/editor/series.h"
#include "spread/editor/sheet_editor.h"

namespace {

using control::Block;
using control::Grid;
using control::Reading;
using editor::PasteWhat;
using editor::SheetEditor;

/// Formulas (with "=") or data; cells separated by "|", rows by "/".
std::string shown(const Grid& grid) {
    std::string all;
    for (int row = 1; row <= grid.rows(); ++row) {
        if (row > 1) all += '/';
        for (int col = 1; col <= grid.cols(); ++col) {
            if (col > 1) all += '|';
            const std::string formula = grid.text(col, row, Reading::formula);
            all += formula.empty() ? grid.text(col, row, Reading::data) : "=" + formula;
        }
    }
    return all;
}

void fill(Grid& grid, std::string_view cells) {
    grid.setOption(control::Option::userFormulas, true);
    grid.setOption(control::Option::automaticRecalculation, true);
    int col = 1, row = 1;
    std::string text;
    const auto put = [&] {
        grid.setCols(std::max(grid.cols(), col));
        grid.setRows(std::max(grid.rows(), row));
        if (!text.empty()) grid.enter(col, row, text);
        text.clear();
    };
    for (const char c : cells) {
        if (c != '|' && c != '/') {
            text += c;
            continue;
        }
        put();
        col = c == '|' ? col + 1 : 1;
        row += c == '/';
    }
    put();
}

struct Case {
    const char* what;
    const char* before;
    std::function<bool(SheetEditor&)> run;
    const char* after;
};

const Case cases[] = {
    {"typing into a block carries references", "1|/2|/3|",
     [](SheetEditor& e) {
         return e.typeInto({2, 1, 2, 3}, "=A1*$A$1");
     },
     "1|=A1*$A$1/2|=A2*$A$1/3|=A3*$A$1"},
    {"fill down moves formulas and fills looks", "1|=A1+1/2|x/3|y",
     [](SheetEditor& e) {
         return e.fillDown({2, 1, 2, 3});
     },
     "1|=A1+1/2|=A2+1/3|=A3+1"},
    {"fill right", "1||/=A1||",
     [](SheetEditor& e) {
         return e.fillRight({1, 1, 3, 2});
     },
     "1|1|1/=A1|=B1|=C1"},
    {"a series of numbers downwards", "1|a/3|b/|/|",
     [](SheetEditor& e) {
         return e.fillSeries({1, 1, 1, 2}, {1, 1, 1, 4});
     },
     "1|a/3|b/5|/7|"},
    {"a series upwards", "/ /5/7",
     [](SheetEditor& e) {
         return e.fillSeries({1, 3, 1, 4}, {1, 1, 1, 4});
     },
     "1/3/5/7"},
    {"a series of formulas to the right", "2|=A1*2||",
     [](SheetEditor& e) {
         return e.fillSeries({2, 1, 2, 1}, {2, 1, 4, 1});
     },
     "2|=A1*2|=B1*2|=C1*2"},
    {"a copy is pasted as often as it fits", "1|=A1|||/||||/||||",
     [](SheetEditor& e) {
         return e.paste(*e.copy({1, 1, 2, 1}), {1, 1, 4, 3});
     },
     "1|=A1|1|=C1|/1|=A2|1|=C2|/1|=A3|1|=C3|"},
    {"values only", "1|=A1+1|",
     [](SheetEditor& e) {
         return e.paste(*e.copy({1, 1, 2, 1}), {2, 1, 2, 1}, PasteWhat::values);
     },
     "1|1|2"},
    {"text from another program makes the sheet grow", "1",
     [](SheetEditor& e) {
         return e.pasteText("1\t2\r\n3\t\"a\"\"b\nc\"\r\n", {1, 1, 1, 1});
     },
     "1|2/3|a\"b\nc"},
    {"moved cells take their readers along", "1|=A1|=SUM(A1:A2)/2|=A1+A2|=SUM(A1:A3)/3||/||",
     [](SheetEditor& e) {
         return e.moveBlock({1, 1, 1, 2}, 1, 3);
     },
     "|=A3|=SUM(A3:A4)/|=A3+A4|=SUM(A1:A3)/1||/2||"},
    {"a moved formula reads what it read", "1|=A1|",
     [](SheetEditor& e) {
         return e.moveBlock({2, 1, 2, 1}, 3, 1);
     },
     "1||=A1"},
    {"inserted rows", "1/2/=SUM(A1:A2)", [](SheetEditor& e) { return e.insertRows(2, 2); },
     "1///2/=SUM(A1:A4)"},
    {"inserted behind the last", "1/2", [](SheetEditor& e) { return e.insertRows(3, 1); }, "1/2/"},
    {"deleted columns", "1|2|=A1+B1|=C1", [](SheetEditor& e) { return e.deleteCols(2, 1); },
     "1|=A1+#REF!|=B1"},
    {"a whole column is counted anew when a row goes", "1|=SUM(A:A)/2|/3|",
     [](SheetEditor& e) { return e.deleteRows(2, 1) && e.grid().text(2, 1, Reading::data) == "4"; },
     "1|=SUM(A:A)/3|"},
    {"moved rows", "1|=A1/2|=A2/3|=A3/4|=A1", [](SheetEditor& e) { return e.moveRows(1, 1, 4); },
     "2|=A1/3|=A2/1|=A3/4|=A3"},
    {"moved columns", "1|2|3|=A1+C1", [](SheetEditor& e) { return e.moveCols(3, 1, 1); },
     "3|1|2|=B1+A1"},
    {"sorting: numbers, texts ignoring case, errors, empty cells", "b|1/|2/10|3/=NA()|4/9|5/A|6",
     [](SheetEditor& e) {
         return e.sort({1, 1, 2, 6}, {{1, true}}, false);
     },
     "9|5/10|3/A|6/b|1/=NA()|4/|2"},
    {"sorting downwards keeps empty cells last and titles first", "t|x/1|=A2/|=A3/3|=A4",
     [](SheetEditor& e) {
         return e.sort({1, 1, 2, 4}, {{1, false}}, true);
     },
     "t|x/3|=A2/1|=A3/|=A4"},
    {"texts that read as numbers become numbers", "x|1",
     [](SheetEditor& e) {
         return e.setKind({1, 1, 2, 1}, control::editType(0)) && e.type(1, 1, "007") &&
                e.setDecimals({1, 1, 2, 1}, 1);
     },
     "7.0|1.0"},
};

TEST(Operations, DoWhatAUserExpects) {
    for (const Case& each : cases) {
        Grid grid;
        fill(grid, each.before);
        SheetEditor editor(grid);
        EXPECT_TRUE(each.run(editor)) << each.what << ": " << editor.lastError();
        EXPECT_EQ(shown(grid), each.after) << each.what;
        while (editor.undo()) {
        }
        EXPECT_EQ(shown(grid),
                  [&] {
                      Grid again;
                      fill(again, each.before);
                      return shown(again);
                  }())
            << each.what << ", undone";
    }
}

TEST(Operations, RefuseWhatCannotBe) {
    const struct {
        std::function<bool(SheetEditor&)> run;
        const char* message;
    } refused[] = {
        {[](SheetEditor& e) { return e.type(1, 1, "=SUM("); }, "The formula in cell A1"},
        {[](SheetEditor& e) { return e.insertRows(9, 1); }, "outside the sheet"},
        {[](SheetEditor& e) { return e.insertRows(1, 1048576); }, "no room"},
        {[](SheetEditor& e) { return e.deleteCols(1, 2); }, "at least one row"},
        {[](SheetEditor& e) { return e.setColWidths(1, 1, 20000); }, "size"},
        {[](SheetEditor& e) {
             return e.fillSeries({1, 1, 1, 1}, {1, 1, 2, 2});
         },
         "direction"},
        {[](SheetEditor& e) {
             return e.moveBlock({1, 1, 2, 2}, 16384, 1);
         },
         "outside"},
        {[](SheetEditor& e) {
             return e.mergeCells({1, 1, 2, 1}) && e.sort({1, 1, 2, 2}, {{1, true}}, false);
         },
         "A1 stands in the way"},
    };
    for (const auto& each : refused) {
        Grid grid;
        fill(grid, "1|2/3|4");
        SheetEditor editor(grid);
        EXPECT_FALSE(each.run(editor)) << each.message;
        EXPECT_NE(editor.lastError().find(each.message), std::string::npos) << editor.lastError();
        EXPECT_EQ(shown(grid), "1|2/3|4");
    }
}

TEST(Operations, CopiesTakeLooksTagsNotesAndMergedCellsToAnotherSheet) {
    Grid from, to;
    fill(from, "1|2/3|4");
    fill(to, "|/|");
    SheetEditor source(from), target(to);
    ASSERT_TRUE(source.setBold({1, 1, 1, 1}, true));
    ASSERT_TRUE(source.setTag(1, 1, "t") && source.setNote(2, 2, "n"));
    ASSERT_TRUE(source.mergeCells({1, 1, 2, 1}));
    ASSERT_TRUE(target.paste(*source.copy({1, 1, 2, 2}), {1, 1, 1, 1}));
    EXPECT_EQ(to.format(1, 1).font.weight, 700);
    EXPECT_EQ(to.format(2, 2).font.weight, 400);
    EXPECT_EQ(to.text(1, 1, Reading::tag), "t");
    EXPECT_EQ(to.note(2, 2), "n");
    ASSERT_NE(to.spanAt(2, 1), nullptr);
    EXPECT_TRUE(target.undo());
    EXPECT_EQ(to.spanAt(2, 1), nullptr);
    EXPECT_EQ(to.note(2, 2), "");
}

TEST(Operations, FormulasAreTypedInTheNotationOfTheSheet) {
    Grid grid;
    fill(grid, "1||/2||");
    grid.setReferenceStyle(2);
    SheetEditor editor(grid);
    ASSERT_TRUE(editor.typeInto({2, 1, 2, 2}, "=RC[-1]*2")) << editor.lastError();
    ASSERT_TRUE(editor.pasteText("=RC[-1]", {3, 2, 3, 2})) << editor.lastError();
    EXPECT_EQ(grid.text(2, 2, Reading::data), "4");
    EXPECT_EQ(grid.text(3, 2, Reading::data), "4");
    grid.setReferenceStyle(0);
    ASSERT_TRUE(editor.undo() && editor.undo() && editor.redo());
    EXPECT_EQ(shown(grid), "1|=A1*2|/2|=A2*2|");
    grid.setReferenceStyle(2);
    grid.setOption(control::Option::changed, false);
    EXPECT_FALSE(editor.type(1, 1, "=RC["));
    EXPECT_TRUE(editor.copy({1, 1, 2, 2}));
    EXPECT_FALSE(grid.option(control::Option::changed)) << "a look at A1 notation changes nothing";
}

TEST(Operations, RowsAreSortedByWhatTheyShow) {
    Grid grid;
    fill(grid, "1|2/3|1");
    grid.setOption(control::Option::automaticRecalculation, false);
    grid.setFormula(1, 2, "B1+1");
    grid.setFormula(2, 2, "B1+2");
    grid.writeValue(2, 1, 5.0);
    grid.recalculateCell(2, 2);  // now A2 is known to be old
    SheetEditor editor(grid);
    ASSERT_TRUE(editor.sort({1, 1, 2, 2}, {{1, false}}, false));
    EXPECT_EQ(grid.text(1, 1, Reading::formula), "#REF!+1");
}

/// What column B shows, row by row.
std::string results(const Grid& grid) {
    std::string all;
    for (int row = 1; row <= grid.rows(); ++row) all += grid.text(2, row, Reading::value) + ',';
    return all;
}

TEST(Operations, NewFormulasAreCalculatedOnceWithoutAutomaticRecalculation) {
    const Block first{2, 1, 2, 1}, both{2, 1, 2, 2}, rows{1, 1, 2, 2};
    const Case cases[] = {
        {"fill", "1|=A1*2/2|", [=](auto& e) { return e.fillDown(both); }, "2,4,"},
        {"series", "1|=A1*2/2|", [=](auto& e) { return e.fillSeries(first, both); }, "2,4,"},
        {"paste", "1|=A1*2/2|",
         [=](auto& e) {
             return e.paste(*e.copy(first), {2, 2, 2, 2});
         },
         "2,4,"},
        {"sort", "7|=A1*2/2|=A2*2",
         [=](auto& e) {
             return e.sort(rows, {{1, true}}, false);
         },
         "4,14,"},
        {"move", "7|=A1*2/|", [=](auto& e) { return e.moveBlock(first, 2, 2); }, ",14,"},
        {"of what the whole paste left", "|/5|",
         [](auto& e) {
             return e.pasteText("3\t=A1+A2\n4", {1, 1, 1, 1});
         },
         "7,,"},
        {"in the notation of the sheet", "|/|=$A$1+1",
         [](auto& e) {
             e.grid().setReferenceStyle(2);
             return e.type(2, 1, "=FORMULATEXT(R2C2)");
         },
         "=R1C1+1,1,"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Grid grid;
        fill(grid, c.before);
        grid.setOption(control::Option::automaticRecalculation, false);
        SheetEditor editor(grid);
        EXPECT_TRUE(c.run(editor));
        EXPECT_EQ(results(grid), c.after);
    }
}

TEST(Operations, WhatWasOutOfDateIsSoWhenItComesBack) {
    Grid grid;
    fill(grid, "1|=A1*2|=A1/||");
    grid.setOption(control::Option::automaticRecalculation, false);
    SheetEditor editor(grid);
    grid.writeValue(1, 1, 5.0);
    ASSERT_TRUE(editor.clearContents({2, 1, 2, 1}));
    ASSERT_TRUE(editor.type(2, 2, "=C1"));  // by then the change has been followed
    ASSERT_TRUE(editor.undo());
    ASSERT_TRUE(editor.undo());
    EXPECT_EQ(grid.text(2, 1, Reading::value), "2") << "its last result goes on to be shown";
    grid.setOption(control::Option::automaticRecalculation, true);
    EXPECT_EQ(grid.text(2, 1, Reading::value), "10");
}

std::string seriesText(std::vector<editor::SeriesValue> known, int from, int to) {
    const editor::Series series(std::move(known));
    std::string all;
    for (int i = from; i <= to; ++i) {
        const editor::SeriesValue value = series.at(i);
        NumberBuffer buffer;
        if (const double* number = std::get_if<double>(&value))
            all += writeNumber(buffer, *number, 6);
        if (const std::string* text = std::get_if<std::string>(&value)) all += *text;
        all += ',';
    }
    return all;
}

TEST(Series, GoesOnWithWhatThereIs) {
    using V = std::vector<editor::SeriesValue>;
    EXPECT_EQ(seriesText(V{5.0}, 1, 3), "5,5,5,");
    EXPECT_EQ(seriesText(V{0.1, 0.2}, 2, 4), "0.3,0.4,0.5,");
    EXPECT_EQ(seriesText(V{1.0, 2.0, 4.0}, 3, 4), "5.333333,6.833333,");
    EXPECT_EQ(seriesText(V{std::string("B008")}, 1, 3), "B009,B010,B011,");
    EXPECT_EQ(seriesText(V{std::string("M12"), std::string("M16")}, -1, 3), "M8,M12,M16,M20,M24,");
    EXPECT_EQ(seriesText(V{std::string("P9"), std::string("P10")}, 2, 2), "P11,");
    EXPECT_EQ(seriesText(V{std::string("31.01.2024"), std::string("29.02.2024")}, 2, 2),
              "29.03.2024,")
        << "29 days on";
    EXPECT_EQ(seriesText(V{std::string("2024-01-31")}, 1, 2), "2024-02-01,2024-02-02,");
    EXPECT_EQ(seriesText(V{std::string("2024-01-31"), std::string("2024-03-31")}, 2, 4),
              "2024-05-31,2024-07-31,2024-09-30,");
    EXPECT_EQ(seriesText(V{std::string("1/2/2024"), std::string("8/2/2024")}, 2, 3),
              "15/2/2024,22/2/2024,");
    EXPECT_EQ(seriesText(V{std::string("left"), 3.0, std::string("R1")}, 3, 8),
              "left,3,R2,left,3,R3,");
    EXPECT_EQ(seriesText(V{std::string("99.99.2024")}, 1, 1), "99.99.2025,") << "no date";
}

}  // namespace
