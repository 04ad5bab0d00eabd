// Rows and columns: their coming and going, their sizes.
#include <algorithm>

#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "spread/editor/line_changes.h"
#include "spread/editor/step_scope.h"

namespace editor {

using control::Block;

namespace {

Block blockOf(bool isRows, int first, int last) {
    return isRows ? Block{1, first, -1, last} : Block{first, 1, last, -1};
}

}  // namespace

bool SheetEditor::insertLines(bool isRows, int at, int count) {
    const int now = isRows ? m_grid.rows() : m_grid.cols();
    const int most = isRows ? formula::maxRows : formula::maxCols;
    if (at < 1 || at > now + 1 || count < 1) return refuse(dialString(texts::outsideSheet).str());
    if (count > most - now) return refuse(dialString(texts::sheetFull).str());
    StepScope step(*this, isRows ? texts::stepInsertRows : texts::stepInsertCols,
                   blockOf(isRows, at, at + count - 1));
    add<InsertedLines>(Lines{isRows, at, count}).exchange(m_grid, Direction::redo);
    if (at > 1) lookLikeBefore(isRows, at, count);
    return step.commit();
}

// The formats of the line before are those of the table that goes on.
void SheetEditor::lookLikeBefore(bool isRows, int at, int count) {
    for (int line = at; line < at + count; ++line) {
        if (!isRows) {
            add<ColumnFormatChange>(m_grid, line);
            const formula::Area area{1, formula::maxRows, static_cast<uint16_t>(at - 1),
                                     static_cast<uint16_t>(at - 1)};
            m_grid.sheet().cells().each(area, [&](int row, int, const control::Cell& cell) {
                if (cell.format != control::inheritedFormat) keepCell(line, row);
            });
            m_grid.copyColFormats(at - 1, line);
            continue;
        }
        for (int col = 1; col <= m_grid.cols(); ++col)
            if (m_grid.formatIndex(col, at - 1) != m_grid.formatIndex(col, line))
                keepCell(col, line);
        m_grid.copyRowFormats(at - 1, line);
    }
}

bool SheetEditor::deleteLines(bool isRows, int at, int count) {
    const int now = isRows ? m_grid.rows() : m_grid.cols();
    if (at < 1 || count < 1 || at > now) return refuse(dialString(texts::outsideSheet).str());
    count = std::min(count, now - at + 1);
    if (count == now) return refuse(dialString(texts::lastLines).str());
    const auto place = m_grid.resolved(blockOf(isRows, at, at + count - 1));
    if (place && !isChangeable(*place)) return false;
    StepScope step(*this, isRows ? texts::stepDeleteRows : texts::stepDeleteCols,
                   blockOf(isRows, at, at));
    add<DeletedLines>(Lines{isRows, at, count}).exchange(m_grid, Direction::redo);
    return step.commit();
}

bool SheetEditor::moveLines(bool isRows, int at, int count, int before) {
    const int now = isRows ? m_grid.rows() : m_grid.cols();
    if (at < 1 || count < 1 || count > now - at + 1 || before < 1 || before > now + 1)
        return refuse(dialString(texts::outsideSheet).str());
    if (before >= at && before <= at + count) return true;  // where they are already
    const int to = before > at ? before - count : before;
    StepScope step(*this, isRows ? texts::stepMoveRows : texts::stepMoveCols,
                   blockOf(isRows, to, to + count - 1));
    add<MovedLines>(Lines{isRows, at, count}, to).exchange(m_grid, Direction::redo);
    return step.commit();
}

bool SheetEditor::insertRows(int at, int count) {
    return insertLines(true, at, count);
}
bool SheetEditor::insertCols(int at, int count) {
    return insertLines(false, at, count);
}
bool SheetEditor::deleteRows(int at, int count) {
    return deleteLines(true, at, count);
}
bool SheetEditor::deleteCols(int at, int count) {
    return deleteLines(false, at, count);
}
bool SheetEditor::moveRows(int at, int count, int before) {
    return moveLines(true, at, count, before);
}
bool SheetEditor::moveCols(int at, int count, int before) {
    return moveLines(false, at, count, before);
}

bool SheetEditor::changeLines(bool isRow, int first, int last, int title,
                              const std::function<bool(int index)>& change) {
    if (first < 1 || first > last || last > (isRow ? m_grid.rows() : m_grid.cols()))
        return refuse(dialString(texts::outsideSheet).str());
    StepScope step(*this, title, blockOf(isRow, first, last));
    for (int index = first; index <= last; ++index) {
        add<LineChange>(m_grid, isRow, index);
        if (!change(index)) return refuse(dialString(texts::badSize).str());
    }
    return step.commit();
}

bool SheetEditor::setRowsHidden(int first, int last, bool hidden) {
    return changeLines(true, first, last, hidden ? texts::stepHide : texts::stepShow,
                       [&](int row) { return m_grid.setRowHidden(row, hidden); });
}

bool SheetEditor::setColsHidden(int first, int last, bool hidden) {
    return changeLines(false, first, last, hidden ? texts::stepHide : texts::stepShow,
                       [&](int col) { return m_grid.setColHidden(col, hidden); });
}

bool SheetEditor::setRowHeights(int first, int last, int pixels) {
    return changeLines(true, first, last, texts::stepRowHeight, [&](int row) {
        return m_grid.setRowHeight(row, pixels == -1 ? m_grid.fitHeight(row) : pixels);
    });
}

bool SheetEditor::setColWidths(int first, int last, int pixels) {
    return changeLines(false, first, last, texts::stepColWidth, [&](int col) {
        return m_grid.setColWidth(col, pixels == -1 ? m_grid.fitWidth(col) : pixels);
    });
}

}  // namespace editor
