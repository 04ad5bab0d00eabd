#include "spread/editor/clip.h"

#include <unordered_map>

namespace editor {

using control::Block;
using control::FormatIndex;
using control::Span;

Clip::Clip(const control::Grid& grid, const Block& block)
    : m_block(block), m_text(grid.copyText(block)) {
    std::unordered_map<FormatIndex, FormatIndex> numbers;
    const auto ownFormat = [&](FormatIndex format) {
        const auto [entry, isNew] =
            numbers.emplace(format, static_cast<FormatIndex>(m_formats.size()));
        if (isNew) m_formats.push_back(grid.formats()[format]);
        return entry->second;
    };
    m_items.reserve(static_cast<size_t>(cols()) * static_cast<size_t>(rows()));
    for (int row = block.row1; row <= block.row2; ++row) {
        for (int col = block.col1; col <= block.col2; ++col) {
            Item item{col - block.col1, row - block.row1, CellSnapshot::of(grid.sheet(), col, row),
                      grid.text(col, row, control::Reading::tag), std::string(grid.note(col, row))};
            item.cell.setFormat(ownFormat(grid.formatIndex(col, row)));
            m_items.push_back(std::move(item));
        }
    }
    for (const Span& span : grid.sides().spans.all())
        if (span.col >= block.col1 && span.row >= block.row1 &&
            span.col + span.cols - 1 <= block.col2 && span.row + span.rows - 1 <= block.row2)
            m_spans.push_back({span.col - block.col1, span.row - block.row1, span.cols, span.rows});
}

}  // namespace editor
