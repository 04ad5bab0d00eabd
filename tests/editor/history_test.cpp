// Steps of every kind on a random sheet: undone one after another they give the first document
// again, redone the last one, letter for letter.
#include <gtest/gtest.h>

#include <random>

#include "core_api/texts/sheet_text_numbers.h"
#include "spread/control/document.h"
#include "spread/editor/sheet_editor.h"

namespace {

using control::Block;
using control::Grid;
using editor::Clip;
using editor::SheetEditor;

class RandomSteps {
  public:
    explicit RandomSteps(unsigned seed) : m_random(seed), m_editor(m_grid) {
        m_grid.setOption(control::Option::userFormulas, true);
        m_grid.setOption(control::Option::automaticRecalculation, true);
        m_grid.setCols(6);
        m_grid.setRows(14);
        for (int i = 0; i < 60; ++i) m_grid.enter(col(), row(), content());
        for (int i = 0; i < 6; ++i) m_grid.setTag(col(), row(), "tag" + std::to_string(i));
        for (int i = 0; i < 3; ++i) m_grid.setNote(col(), row(), "note" + std::to_string(i));
        m_grid.addSpan({2, 3, 2, 2});
        m_grid.setType({3, 1, 3, -1}, control::numberType(2));
        m_grid.setColWidth(2, 90);
        m_grid.setRowHidden(5, true);
        m_grid.setData(4, control::headerIndex, "Size");
    }

    Grid& grid() { return m_grid; }
    SheetEditor& editor() { return m_editor; }

    void step() {
        switch (pick(27)) {
            case 0:
            case 1:
                m_editor.type(col(), row(), content());
                break;
            case 2:
                m_editor.typeInto(block(), content());
                break;
            case 3:
                m_editor.clearContents(block());
                break;
            case 4:
                m_editor.clearFormats(block());
                break;
            case 5:
                m_editor.insertRows(row(), pick(3) + 1);
                break;
            case 6:
                m_editor.insertCols(col(), pick(2) + 1);
                break;
            case 7:
                m_editor.deleteRows(row(), pick(3) + 1);
                break;
            case 8:
                m_editor.deleteCols(col(), 1);
                break;
            case 9:
                m_editor.moveRows(row(), pick(3) + 1, row());
                break;
            case 10:
                m_editor.moveCols(col(), 1, col());
                break;
            case 11:
                m_editor.sort(block(), {{1, true}, {2, false}}, false);
                break;
            case 12:
                m_editor.fillDown(block());
                break;
            case 13:
                m_editor.fillRight(block());
                break;
            case 14: {
                const Block source = block();
                m_editor.fillSeries(source, {source.col1, source.row1, source.col2, m_grid.rows()});
                break;
            }
            case 15: {
                const auto clip = m_editor.copy(block());
                const auto what = static_cast<editor::PasteWhat>(pick(4));
                const int atCol = col(), atRow = row();
                m_editor.paste(*clip, {atCol, atRow, pick(2) ? -1 : atCol, -1}, what);
                break;
            }
            case 16:
                m_editor.pasteText("1\tM12\r\n=A1+1\t\"two\nlines\"", {col(), row(), -1, -1});
                break;
            case 17:
                m_editor.moveBlock(block(), col(), row());
                break;
            case 18:
                m_editor.setKind(block(), control::numberType(pick(4)));
                break;
            case 19:
                m_editor.setBold(wide(), pick(2) != 0);
                break;
            case 20:
                m_editor.setBorder(wide(), 16 + pick(16), pick(3), 255);
                break;
            case 21:
                m_editor.mergeCells(block());
                break;
            case 22:
                m_editor.unmergeCells(block());
                break;
            case 23:
                m_editor.setNote(col(), row(), pick(2) ? "look" : "");
                break;
            case 24:
                m_editor.setColWidths(1, col(), pick(2) ? -1 : 77);
                break;
            case 25:
                m_editor.setRowsHidden(row(), row(), pick(2) != 0);
                break;
            case 26: {
                const SheetEditor::OneStep joined(m_editor, texts::stepPaste);
                for (int i = pick(4); i > 0; --i) step();
                break;
            }
        }
    }

  private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    int col() { return pick(m_grid.cols()) + 1; }
    int row() { return pick(m_grid.rows()) + 1; }
    Block block() {
        const int a = col(), b = row();
        return {a, b, std::min(a + pick(3), m_grid.cols()), std::min(b + pick(4), m_grid.rows())};
    }
    /// Whole columns now and then.
    Block wide() {
        Block some = block();
        if (pick(3) == 0) some.row1 = 1, some.row2 = -1;
        return some;
    }
    std::string content() {
        const std::string at = "ABCDEF"[pick(6)] + std::to_string(pick(14) + 1);
        switch (pick(7)) {
            case 0:
                return std::to_string(pick(50));
            case 1:
                return "M" + std::to_string(pick(30));
            case 2:
                return "=" + at + "*2";
            case 3:
                return "=SUM(A1:" + at + ")";
            case 4:
                return "=SUM($B$2:$B$6)+sum( c:c )";
            case 5:
                return "=IF(" + at + ">3,\"big\",$A1&\"x\")";
            default:
                return "31.1.2024";
        }
    }

    std::mt19937 m_random;
    Grid m_grid;
    SheetEditor m_editor;
};

/// The document; without results when there is a circle, as it depends on the order of calculation
/// which of its formulas shows it.
std::string documentOf(const Grid& grid) {
    std::string text = writeDocument(grid);
    if (text.find("#CIRC!") == std::string::npos) return text;
    for (size_t at = 0; (at = text.find('\t', at)) != std::string::npos;)
        text.erase(at, text.find('\n', at) - at);
    return text;
}

TEST(History, EveryStepCanBeUndoneAndRedone) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        RandomSteps steps(seed);
        std::vector<std::string> documents{documentOf(steps.grid())};
        for (int i = 0; i < 25; ++i) {
            steps.step();
            const std::string now = documentOf(steps.grid());
            // A step that was refused, or changed nothing, is no step.
            if (now != documents.back()) documents.push_back(now);
        }
        size_t at = documents.size() - 1;
        int undone = 0;
        while (steps.editor().canUndo()) {
            const std::string title = steps.editor().undoTitle();
            ASSERT_TRUE(steps.editor().undo());
            ++undone;
            const std::string now = documentOf(steps.grid());
            if (at > 0 && now == documents[at - 1]) --at;
            ASSERT_EQ(now, documents[at]) << "seed " << seed << ": " << title;
        }
        ASSERT_EQ(at, 0u) << seed;
        while (steps.editor().canRedo()) {
            const std::string title = steps.editor().redoTitle();
            ASSERT_TRUE(steps.editor().redo());
            --undone;
            const std::string now = documentOf(steps.grid());
            if (at + 1 < documents.size() && now == documents[at + 1]) ++at;
            ASSERT_EQ(now, documents[at]) << "seed " << seed << ": " << title;
        }
        EXPECT_EQ(undone, 0);
        EXPECT_EQ(at, documents.size() - 1) << seed;
    }
}

TEST(History, RefusedStepsLeaveNothingBehind) {
    Grid grid;
    grid.setCols(3);
    grid.setRows(3);
    SheetEditor editor(grid);
    ASSERT_TRUE(editor.type(1, 1, "5"));
    ASSERT_TRUE(editor.setKind({2, 1, 2, -1}, control::numberType(1)));
    ASSERT_TRUE(editor.setLocked({3, 3, 3, 3}, true));
    editor.markSaved();
    const std::string before = writeDocument(grid);
    EXPECT_FALSE(editor.pasteText("1\t2\nx\ty", {1, 1, 1, 1}));
    EXPECT_EQ(editor.lastError(), "Cell B2 does not take \"y\".");
    EXPECT_FALSE(editor.type(3, 3, "1"));
    EXPECT_EQ(editor.lastError(), "Cell C3 is locked.");
    EXPECT_FALSE(editor.deleteRows(1, 3));
    EXPECT_FALSE(editor.deleteRows(3, 1));
    EXPECT_FALSE(editor.clearContents({1, 1, -1, -1}));
    EXPECT_FALSE(editor.setDecimals({1, 1, 1, 1}, 16));
    EXPECT_FALSE(editor.type(4, 1, "1"));
    EXPECT_EQ(writeDocument(grid), before);
    EXPECT_TRUE(editor.isSaved());
    EXPECT_EQ(editor.undoTitle(), "Undo locking");
    ASSERT_TRUE(editor.undo());
    EXPECT_FALSE(editor.isSaved());
    EXPECT_EQ(editor.redoTitle(), "Redo locking");
    ASSERT_TRUE(editor.type(1, 1, "6"));
    EXPECT_EQ(editor.redoTitle(), "Redo");
    ASSERT_TRUE(editor.undo());
    EXPECT_FALSE(editor.isSaved()) << "the saved sheet had a lock";
}

TEST(History, JoinedStepsAreOneStep) {
    Grid grid;
    grid.setCols(2);
    grid.setRows(2);
    SheetEditor editor(grid);
    editor.type(1, 1, "kept");
    editor.markSaved();
    {
        const SheetEditor::OneStep joined(editor, texts::stepPaste);
        editor.type(1, 1, "a");
        editor.insertRows(1, 1);
        editor.type(2, 3, "b");
    }
    { const SheetEditor::OneStep nothing(editor, texts::stepPaste); }
    EXPECT_EQ(editor.undoTitle(), "Undo paste");
    EXPECT_FALSE(editor.isSaved());
    EXPECT_TRUE(editor.undo());
    EXPECT_EQ(grid.text(1, 1, control::Reading::value), "kept");
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_TRUE(editor.isSaved());
}

}  // namespace
