// Sorting the rows of a block.
#include <algorithm>
#include <numeric>

#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "platform/encodings.h"
#include "spread/control/reference_moves.h"
#include "spread/editor/step_scope.h"

namespace editor {

using control::Block;
using control::Value;
using control::ValueType;

namespace {

int rank(const Value& value) {
    switch (value.type()) {
        case ValueType::number:
            return 0;
        case ValueType::text:
            return 1;
        case ValueType::boolean:
            return 2;
        case ValueType::error:
            return 3;
        default:
            return 4;
    }
}

// Below 0, 0 or above 0; empty cells are no part of this.
int compare(const Value& a, const Value& b) {
    if (rank(a) != rank(b)) return rank(a) - rank(b);
    if (a.isNumber()) return a.number() < b.number() ? -1 : a.number() > b.number();
    if (a.isText()) return encodings::compareFolded(a.text(), b.text());
    if (a.isBoolean()) return static_cast<int>(a.truth()) - static_cast<int>(b.truth());
    return 0;
}

bool goesBefore(const Value& a, const Value& b, bool ascending, bool& areEqual) {
    const bool isEmptyA = rank(a) == 4, isEmptyB = rank(b) == 4;
    areEqual = isEmptyA && isEmptyB;
    if (isEmptyA || isEmptyB) return !isEmptyA;
    const int order = compare(a, b);
    areEqual = order == 0;
    return ascending ? order < 0 : order > 0;
}

struct MovingRow {
    std::vector<CellSnapshot> cells;
    std::vector<Value> keys;  // what the cells show, be it up to date or not
    std::vector<std::string> tags, notes;
    int row = 0;
};

}  // namespace

bool SheetEditor::checkSort(const Block& block, const std::vector<SortKey>& keys) {
    for (const SortKey& key : keys)
        if (key.col < block.col1 || key.col > block.col2)
            return refuse(dialString(texts::outsideSheet).str());
    for (const control::Span& span : m_grid.sides().spans.all()) {
        const bool isApart = span.col > block.col2 || span.col + span.cols <= block.col1 ||
                             span.row > block.row2 || span.row + span.rows <= block.row1;
        if (!isApart) return refuseCell(texts::mergedInSort, span.col, span.row);
    }
    return isChangeable(block);
}

bool SheetEditor::sort(const Block& given, const std::vector<SortKey>& keys, bool hasTitles) {
    std::optional<Block> block = inside(given);
    if (!block) return false;
    if (hasTitles) ++block->row1;
    if (block->row1 >= block->row2) return true;
    if (!checkSort(*block, keys)) return false;
    StepScope step(*this, texts::stepSort, *block);
    std::vector<MovingRow> rows;
    for (int row = block->row1; row <= block->row2; ++row) {
        MovingRow& moving = rows.emplace_back();
        moving.row = row;
        for (const SortKey& key : keys) moving.keys.push_back(m_grid.sheet().value(key.col, row));
        for (int col = block->col1; col <= block->col2; ++col) {
            moving.cells.push_back(CellSnapshot::of(m_grid.sheet(), col, row));
            moving.tags.push_back(m_grid.text(col, row, control::Reading::tag));
            moving.notes.emplace_back(m_grid.note(col, row));
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [&](const MovingRow& a, const MovingRow& b) {
        for (size_t i = 0; i < keys.size(); ++i) {
            bool areEqual = false;
            const bool isBefore = goesBefore(a.keys[i], b.keys[i], keys[i].ascending, areEqual);
            if (!areEqual) return isBefore;
        }
        return false;
    });
    for (int row = block->row1; row <= block->row2; ++row) {
        MovingRow& moving = rows[static_cast<size_t>(row - block->row1)];
        if (moving.row == row) continue;
        for (int col = block->col1; col <= block->col2; ++col) {
            const auto at = static_cast<size_t>(col - block->col1);
            CellSnapshot& cell = moving.cells[at];
            keepCell(col, row);
            if (cell.hasFormula())
                cell.setFormula(control::carriedFormula(cell.formula(), 0, row - moving.row));
            cell.put(m_grid, col, row);
            if (m_grid.text(col, row, control::Reading::tag) == moving.tags[at] &&
                m_grid.note(col, row) == moving.notes[at])
                continue;
            keepTexts(col, row);
            m_grid.setTag(col, row, moving.tags[at]);
            m_grid.setNote(col, row, moving.notes[at]);
        }
    }
    return step.commit();
}

}  // namespace editor
