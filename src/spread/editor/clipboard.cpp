// Copying, pasting and moving blocks.
#include <algorithm>

#include "core_api/text/delimited_text.h"
#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "spread/control/reference_moves.h"
#include "spread/editor/step_scope.h"

namespace editor {

using control::Block;
using control::FormatIndex;
using control::Span;

namespace {

// The target as far as it holds the clip whole times; otherwise one time.
Block tiled(const Block& target, int cols, int rows) {
    const int width = target.col2 - target.col1 + 1, height = target.row2 - target.row1 + 1;
    const bool fits = width % cols == 0 && height % rows == 0;
    return {target.col1, target.row1, target.col1 + (fits ? width : cols) - 1,
            target.row1 + (fits ? height : rows) - 1};
}

}  // namespace

std::optional<Clip> SheetEditor::copy(const Block& given) const {
    const std::optional<Block> block = m_grid.resolved(given);
    if (!block) return std::nullopt;
    const InA1 scope(m_grid);
    return Clip(m_grid, *block);
}

bool SheetEditor::paste(const Clip& clip, const Block& target, PasteWhat what) {
    return pasteAs(texts::stepPaste, clip, target, what);
}

bool SheetEditor::pasteAs(int title, const Clip& clip, const Block& given, PasteWhat what) {
    const std::optional<Block> target = inside(given);
    if (!target) return false;
    const Block block = tiled(*target, clip.cols(), clip.rows());
    if (block.col2 > formula::maxCols || block.row2 > formula::maxRows)
        return refuse(dialString(texts::sheetFull).str());
    StepScope step(*this, title, block);
    growTo(block.col2, block.row2);
    if (!isChangeable(block)) return false;
    for (int row = block.row1; row <= block.row2; row += clip.rows())
        for (int col = block.col1; col <= block.col2; col += clip.cols())
            putClip(clip, col, row, what);
    return step.commit();
}

void SheetEditor::putClip(const Clip& clip, int atCol, int atRow, PasteWhat what) {
    const int cols = atCol - clip.source().col1, rows = atRow - clip.source().row1;
    const bool withFormats = what == PasteWhat::all || what == PasteWhat::formats;
    for (const Clip::Item& item : clip.items()) {
        const int col = atCol + item.col, row = atRow + item.row;
        keepCell(col, row);
        FormatIndex format = control::inheritedFormat;
        if (withFormats) {
            m_grid.changeFormats({col, row, col, row},
                                 [&](control::CellFormat& now) { now = clip.format(item); });
        }
        if (const control::Cell* cell = m_grid.sheet().find(col, row)) format = cell->format;
        if (what == PasteWhat::formats) continue;
        CellSnapshot pasted = item.cell;
        pasted.setFormat(format);
        if (pasted.hasFormula() && what == PasteWhat::values) {
            const control::Value value = item.cell.value();
            const std::string text(value.isText() ? value.text() : "");
            pasted.empty();
            pasted.put(m_grid, col, row);
            m_grid.writeValue(col, row,
                              value.isText() ? control::Value::borrowedText(text) : value);
        } else {
            if (pasted.hasFormula())
                pasted.setFormula(control::carriedFormula(item.cell.formula(), cols, rows));
            pasted.put(m_grid, col, row);
        }
        if (what != PasteWhat::all) continue;
        if (item.tag == m_grid.text(col, row, control::Reading::tag) &&
            item.note == m_grid.note(col, row))
            continue;
        keepTexts(col, row);
        m_grid.setTag(col, row, item.tag);
        m_grid.setNote(col, row, item.note);
    }
    if (what != PasteWhat::all || clip.spans().empty()) return;
    const auto before = m_grid.sides().spans.all();
    for (const Span& span : clip.spans())
        m_grid.addSpan({span.col + atCol, span.row + atRow, span.cols, span.rows});
    add<SpansChange>(before, m_grid.sides().spans.all());
}

bool SheetEditor::pasteText(std::string_view text, const Block& given) {
    const std::optional<Block> target = inside(given);
    if (!target) return false;
    std::vector<std::vector<std::string>> rows;
    size_t cols = 1;
    DelimitedText lines(text, '\t');
    for (std::vector<std::string> fields; lines.next(fields);) {
        cols = std::max(cols, fields.size());
        rows.push_back(fields);
    }
    if (rows.empty()) return true;
    const bool fits = cols <= static_cast<size_t>(formula::maxCols - target->col1 + 1) &&
                      rows.size() <= static_cast<size_t>(formula::maxRows - target->row1 + 1);
    if (!fits) return refuse(dialString(texts::sheetFull).str());
    const Block block = tiled(*target, static_cast<int>(cols), static_cast<int>(rows.size()));
    StepScope step(*this, texts::stepPaste, block);
    growTo(block.col2, block.row2);
    for (int row = block.row1; row <= block.row2; ++row) {
        const auto& fields = rows[static_cast<size_t>(row - block.row1) % rows.size()];
        for (int col = block.col1; col <= block.col2; ++col) {
            const size_t field = static_cast<size_t>(col - block.col1) % cols;
            if (field < fields.size() && !enter(col, row, fields[field])) return false;
        }
    }
    return step.commit();
}

bool SheetEditor::moveBlock(const Block& given, int col, int row) {
    const std::optional<Block> from = inside(given);
    if (!from) return false;
    const int cols = col - from->col1, rows = row - from->row1;
    const Block to{col, row, from->col2 + cols, from->row2 + rows};
    if (col < 1 || row < 1 || to.col2 > formula::maxCols || to.row2 > formula::maxRows)
        return refuse(dialString(texts::outsideSheet).str());
    if (cols == 0 && rows == 0) return true;
    if (!isChangeable(*from)) return false;
    StepScope step(*this, texts::stepMove, to);
    growTo(to.col2, to.row2);
    if (!isChangeable(to)) return false;
    const Clip clip(m_grid, *from);
    const auto before = m_grid.sides().spans.all();
    for (const Span& span : before)
        if (span.col >= from->col1 && span.row >= from->row1 &&
            span.col + span.cols - 1 <= from->col2 && span.row + span.rows - 1 <= from->row2)
            m_grid.removeSpan(span.col, span.row);
    add<SpansChange>(before, m_grid.sides().spans.all());
    keepBlock(*from);
    keepTextsIn(*from);
    m_grid.clearCells(*from);
    putClip(clip, col, row, PasteWhat::all);
    // The formulas that travelled still read what they read before.
    for (const Clip::Item& item : clip.items()) {
        if (!item.cell.hasFormula()) continue;
        CellSnapshot placed = CellSnapshot::of(m_grid.sheet(), col + item.col, row + item.row);
        placed.setFormula(item.cell.formula());
        placed.put(m_grid, col + item.col, row + item.row);
    }
    followMove(*from, cols, rows);
    return step.commit();
}

// References to cells of the block, or to areas inside it, go along.
void SheetEditor::followMove(const Block& from, int cols, int rows) {
    const auto follow = [&](formula::MovedReference& r) {
        const bool isInside = !r.wholeCols && !r.wholeRows && r.area.col1 >= from.col1 &&
                              r.area.col2 <= from.col2 && r.area.row1 >= from.row1 &&
                              r.area.row2 <= from.row2;
        if (!isInside) return true;
        r.area.col1 = static_cast<uint16_t>(r.area.col1 + cols);
        r.area.col2 = static_cast<uint16_t>(r.area.col2 + cols);
        r.area.row1 += rows;
        r.area.row2 += rows;
        return true;
    };
    const formula::Area everything{1, formula::maxRows, 1, formula::maxCols};
    std::vector<PlacedCell> followers;
    m_grid.sheet().cells().each(everything, [&](int row, int col, const control::Cell& cell) {
        if (!cell.formula) return;
        const std::string_view text = *m_grid.sheet().formula(col, row);
        const auto moved = formula::rewriteReferences(text, follow);
        if (!moved || *moved == text) return;
        followers.push_back({col, row, CellSnapshot::of(m_grid.sheet(), col, row)});
        followers.back().cell.setFormula(*moved);
    });
    for (const PlacedCell& follower : followers) {
        keepCell(follower.col, follower.row);
        follower.cell.put(m_grid, follower.col, follower.row);
    }
}

}  // namespace editor
