// A copied block: what its cells hold and how they look. A value, which outlives the sheet.
#pragma once

#include <string>
#include <vector>

#include "platform/export.h"
#include "spread/control/grid.h"
#include "spread/editor/cell_snapshot.h"

namespace editor {

enum class PasteWhat { all, contents, values, formats };

class VORMANT_API Clip {
  public:
    Clip(const control::Grid& grid, const control::Block& block);

    int cols() const { return m_block.col2 - m_block.col1 + 1; }
    int rows() const { return m_block.row2 - m_block.row1 + 1; }
    /// Where it was copied.
    const control::Block& source() const { return m_block; }
    /// For other programs: lines of fields separated by tabs.
    const std::string& text() const { return m_text; }
    /// Whether `clipboard` still holds this copy, and not that of another program.
    bool isOn(std::string_view clipboard) const { return clipboard == m_text; }

    struct Item {
        int col = 0, row = 0;  ///< from the block's top left, from 0
        CellSnapshot cell;     ///< its format is an index into formats()
        std::string tag, note;
    };
    /// Row by row, every cell of the block.
    const std::vector<Item>& items() const { return m_items; }
    const control::CellFormat& format(const Item& item) const {
        return m_formats[item.cell.format()];
    }
    /// Merged cells that lie in the block whole, from its top left, from 0.
    const std::vector<control::Span>& spans() const { return m_spans; }

  private:
    control::Block m_block;
    std::string m_text;
    std::vector<Item> m_items;
    std::vector<control::CellFormat> m_formats;
    std::vector<control::Span> m_spans;
};

}  // namespace editor
