// Typing and clearing.
#include "core_api/texts/sheet_text_numbers.h"
#include "spread/control/reference_moves.h"
#include "spread/editor/step_scope.h"

namespace editor {

using control::Block;
using control::Reading;

namespace {

bool isTypedFormula(const control::Grid& grid, std::string_view text) {
    return text.size() > 1 && text[0] == '=' && grid.option(control::Option::userFormulas);
}

}  // namespace

bool SheetEditor::enter(int col, int row, std::string_view text) {
    if (!m_grid.isInside(col, row)) return refuseCell(texts::outsideSheet, col, row);
    if (m_grid.format(col, row).locked) return refuseCell(texts::cellLocked, col, row);
    keepCell(col, row);
    const bool isFormula = isTypedFormula(m_grid, text);
    std::string converted;
    // The text is in the user's notation, while a step is recorded in A1.
    if (isFormula && m_userStyle == 2) {
        if (const auto a1 = formula::convertStyle(text.substr(1), formula::ReferenceStyle::r1c1,
                                                  formula::ReferenceStyle::a1, col, row)) {
            converted = "=" + *a1;
            text = converted;
        }
    }
    if (m_grid.enter(col, row, text)) return true;
    formula::ParseError error;
    if (isFormula && !formula::parse(text.substr(1), m_grid.sheet().parseSettings(col, row), error))
        return refuseCell(texts::formulaRefused, col, row, error.message);
    return refuseCell(texts::cellRefuses, col, row, text);
}

bool SheetEditor::type(int col, int row, std::string_view text) {
    return typeInto({col, row, col, row}, text);
}

bool SheetEditor::typeInto(const Block& given, std::string_view text) {
    const std::optional<Block> block = inside(given);
    if (!block) return false;
    StepScope step(*this, texts::stepTyping, *block);
    // A formula in R1C1 notation means the same in every cell.
    const bool isCarried = isTypedFormula(m_grid, text) && m_userStyle != 2;
    for (int row = block->row1; row <= block->row2; ++row) {
        for (int col = block->col1; col <= block->col2; ++col) {
            const bool isFirst = row == block->row1 && col == block->col1;
            if (isFirst || !isCarried) {
                if (!enter(col, row, text)) return false;
                continue;
            }
            const std::string carried =
                control::carriedFormula(text.substr(1), col - block->col1, row - block->row1);
            if (!enter(col, row, "=" + carried)) return false;
        }
    }
    return step.commit();
}

bool SheetEditor::clearContents(const Block& given) {
    const std::optional<Block> block = inside(given);
    if (!block || !isChangeable(*block)) return false;
    StepScope step(*this, texts::stepClearing, *block);
    const formula::Area area{block->row1, block->row2, static_cast<uint16_t>(block->col1),
                             static_cast<uint16_t>(block->col2)};
    m_grid.sheet().cells().each(
        area, [&](int row, int col, const control::Cell&) { keepCell(col, row); });
    keepTextsIn(*block);
    m_grid.clearCells(*block);
    return step.commit();
}

bool SheetEditor::setNote(int col, int row, std::string_view note) {
    if (!m_grid.isAddress(col, row)) return refuseCell(texts::outsideSheet, col, row);
    StepScope step(*this, texts::stepNote, {col, row, col, row});
    keepTexts(col, row);
    m_grid.setNote(col, row, note);
    return step.commit();
}

bool SheetEditor::setTag(int col, int row, std::string_view tag) {
    if (!m_grid.isAddress(col, row)) return refuseCell(texts::outsideSheet, col, row);
    StepScope step(*this, texts::stepTag, {col, row, col, row});
    keepTexts(col, row);
    m_grid.setTag(col, row, tag);
    return step.commit();
}

bool SheetEditor::setHeader(bool isRow, int index, std::string_view text) {
    return changeLines(isRow, index, index, texts::stepHeader, [&](int line) {
        return isRow ? m_grid.setData(control::headerIndex, line, text)
                     : m_grid.setData(line, control::headerIndex, text);
    });
}

}  // namespace editor
