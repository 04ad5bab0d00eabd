// How cells look and what they are.
#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "spread/editor/step_scope.h"

namespace editor {

using control::Block;
using control::CellFormat;

// Formats of a block that covers all rows are those of its columns (Grid::changeFormats).
void SheetEditor::keepFormats(const Block& block) {
    const bool coversRows = block.row1 == 1 && block.row2 == m_grid.rows() && m_grid.rows() > 1;
    if (!coversRows) {
        keepBlock(block);
        return;
    }
    for (int col = block.col1; col <= block.col2; ++col) add<ColumnFormatChange>(m_grid, col);
    const formula::Area area{1, formula::maxRows, static_cast<uint16_t>(block.col1),
                             static_cast<uint16_t>(block.col2)};
    m_grid.sheet().cells().each(area, [&](int row, int col, const control::Cell& cell) {
        if (cell.format != control::inheritedFormat) keepCell(col, row);
    });
}

bool SheetEditor::changeFormats(const Block& given, int title, const ChangeFormat& change) {
    const std::optional<Block> block = inside(given);
    if (!block) return false;
    StepScope step(*this, title, *block);
    keepFormats(*block);
    m_grid.changeFormats(*block, change);
    return step.commit();
}

bool SheetEditor::clearFormats(const Block& block) {
    return changeFormats(block, texts::stepClearFormats,
                         [](CellFormat& format) { format = CellFormat(); });
}

bool SheetEditor::setKind(const Block& given, const control::CellType& type) {
    const std::optional<Block> block = inside(given);
    if (!block || !isChangeable(*block)) return false;
    StepScope step(*this, texts::stepKind, *block);
    keepFormats(*block);
    m_grid.setType(*block, type);
    std::vector<control::CellAddress> filled;
    const formula::Area area{block->row1, block->row2, static_cast<uint16_t>(block->col1),
                             static_cast<uint16_t>(block->col2)};
    m_grid.sheet().cells().each(area, [&](int row, int col, const control::Cell& cell) {
        if (cell.type != control::ValueType::empty && !cell.formula) filled.push_back({col, row});
    });
    for (const auto& [col, row] : filled) {
        // A text that is no number stays the text it is.
        const std::string text = m_grid.text(col, row, control::Reading::value);
        keepCell(col, row);
        m_grid.setData(col, row, text);
    }
    return step.commit();
}

bool SheetEditor::setDecimals(const Block& block, int decimals) {
    constexpr int mostDecimals = 15;
    if (decimals < 0 || decimals > mostDecimals)
        return refuse(dialString(texts::badDecimals).str());
    const std::optional<Block> where = inside(block);
    if (!where) return false;
    const control::CellType& now = m_grid.format(where->col1, where->row1).type;
    return setKind(block, control::numberType(decimals, now.style, now.least, now.most));
}

bool SheetEditor::setFontName(const Block& block, std::string_view name) {
    return changeFormats(block, texts::stepFont,
                         [&](CellFormat& format) { format.font.name = name; });
}
bool SheetEditor::setFontHeight(const Block& block, int pixels) {
    constexpr int tallest = 400;
    if (pixels < 1 || pixels > tallest) return refuse(dialString(texts::badSize).str());
    return changeFormats(block, texts::stepFont,
                         [&](CellFormat& format) { format.font.height = pixels; });
}
bool SheetEditor::setBold(const Block& block, bool on) {
    return changeFormats(block, texts::stepFont,
                         [&](CellFormat& format) { format.font.weight = on ? 700 : 400; });
}
bool SheetEditor::setItalic(const Block& block, bool on) {
    return changeFormats(block, texts::stepFont,
                         [&](CellFormat& format) { format.font.italic = on; });
}
bool SheetEditor::setUnderlined(const Block& block, bool on) {
    return changeFormats(block, texts::stepFont,
                         [&](CellFormat& format) { format.font.underlined = on; });
}
bool SheetEditor::setAlignment(const Block& block, int alignment) {
    return changeFormats(block, texts::stepAlignment, [&](CellFormat& format) {
        format.alignment = static_cast<uint8_t>(alignment);
    });
}
bool SheetEditor::setTextColour(const Block& block, control::Colour colour) {
    return changeFormats(block, texts::stepColour,
                         [&](CellFormat& format) { format.textColour = colour; });
}
bool SheetEditor::setBackground(const Block& block, control::Colour colour) {
    return changeFormats(block, texts::stepColour,
                         [&](CellFormat& format) { format.background = colour; });
}
bool SheetEditor::setLocked(const Block& block, bool locked) {
    return changeFormats(block, texts::stepLock,
                         [&](CellFormat& format) { format.locked = locked; });
}

bool SheetEditor::setBorder(const Block& given, int sides, int style, control::Colour colour) {
    const std::optional<Block> block = inside(given);
    if (!block) return false;
    StepScope step(*this, texts::stepBorder, *block);
    keepFormats(*block);
    // The outline of whole columns reaches into single cells.
    if (sides & control::borderOutline)
        for (const int row : {block->row1, block->row2})
            for (int col = block->col1; col <= block->col2; ++col) keepCell(col, row);
    m_grid.setBorder(*block, sides, style, colour);
    return step.commit();
}

bool SheetEditor::mergeCells(const Block& given) {
    const std::optional<Block> block = inside(given);
    if (!block) return false;
    StepScope step(*this, texts::stepMerge, *block);
    const auto before = m_grid.sides().spans.all();
    m_grid.addSpan(
        {block->col1, block->row1, block->col2 - block->col1 + 1, block->row2 - block->row1 + 1});
    add<SpansChange>(before, m_grid.sides().spans.all());
    return step.commit();
}

bool SheetEditor::unmergeCells(const Block& given) {
    const std::optional<Block> block = inside(given);
    if (!block) return false;
    StepScope step(*this, texts::stepUnmerge, *block);
    const auto before = m_grid.sides().spans.all();
    for (const control::Span& span : before) {
        const bool isApart = span.col > block->col2 || span.col + span.cols <= block->col1 ||
                             span.row > block->row2 || span.row + span.rows <= block->row1;
        if (!isApart && span.col > 0 && span.row > 0) m_grid.removeSpan(span.col, span.row);
    }
    add<SpansChange>(before, m_grid.sides().spans.all());
    return step.commit();
}

}  // namespace editor
