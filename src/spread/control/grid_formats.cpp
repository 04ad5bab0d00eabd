// Formats, sizes and spans.
#include <algorithm>

#include "spread/control/grid.h"
#include "spread/control/text_fit.h"

namespace control {
namespace {

constexpr int widest = 10000;  // pixels that a column or row may have

bool isSize(int pixels) {
    return pixels >= 0 && pixels <= widest;
}

int sizeOf(const Band& band, const Band& across, int index) {
    if (isHeader(index)) return across.headerSize;
    if (band.hidden.contains(index)) return 0;
    const auto found = band.sizes.find(index);
    return found == band.sizes.end() ? band.defaultSize : found->second;
}

// Remembers what became of each format, so that a long column changes each of its few formats once.
class ChangedFormats {
  public:
    ChangedFormats(FormatTable& formats, const std::function<CellFormat(const CellFormat&)>& change)
        : m_formats(formats), m_change(change) {}
    FormatIndex operator()(FormatIndex format) {
        for (const auto& [from, to] : m_known)
            if (from == format) return to;
        const CellFormat changed = m_change(m_formats[format]);
        const FormatIndex to = changed == m_formats[format] ? format : m_formats.intern(changed);
        m_known.emplace_back(format, to);
        return to;
    }

  private:
    FormatTable& m_formats;
    const std::function<CellFormat(const CellFormat&)>& m_change;
    std::vector<std::pair<FormatIndex, FormatIndex>> m_known;
};

FormatIndex bandFormat(const Band& band, int index) {
    const auto found = band.formats.find(index);
    return found == band.formats.end() ? band.format : found->second;
}

}  // namespace

FormatIndex Grid::formatIndex(int col, int row) const {
    if (isHeader(row)) return isHeader(col) ? m_sides->cols.format : bandFormat(m_sides->cols, col);
    if (isHeader(col)) return bandFormat(m_sides->rows, row);
    return shownFormat(m_sheet->find(col, row), col);
}

bool Grid::setType(int col, int row, const CellType& type) {
    if (!isInside(col, row)) return setType(Block{col, row, col, row}, type);
    const Cell* cell = m_sheet->find(col, row);
    const FormatIndex format = ownFormat(cell, col, type);
    if (format == (cell ? cell->format : inheritedFormat)) return true;
    markTouched(col, row);
    m_sheet->setFormat(col, row, format);
    return true;
}

/// The format that the cell itself has to hold so that it is of `type`.
FormatIndex Grid::ownFormat(const Cell* cell, int col, const CellType& type) {
    const FormatIndex shown = shownFormat(cell, col);
    if (!(m_formats[shown].type == type)) return m_formats.withType(shown, type);
    return cell ? cell->format : inheritedFormat;
}

bool Grid::setType(const Block& block, const CellType& type) {
    if (block.col1 == block.col2 && block.row1 == block.row2 && isInside(block.col1, block.row1))
        return setType(block.col1, block.row1, type);
    return changeFormats(block, [&](CellFormat& format) { format.type = type; });
}

bool Grid::eachFormat(const Block& given, const ChangeFormat& change) {
    Block block = given;
    const bool allRows = (block.row2 == -1 && block.row1 <= 1) ||
                         (block.row1 <= 1 && block.row2 >= m_rows && m_rows > 1);
    if (block.col2 == -1) block.col2 = m_cols;
    if (block.row2 == -1) block.row2 = m_rows;
    const bool wholeHeader = isHeader(given.row2) || isHeader(given.col2);
    if (isHeader(block.row1))
        changeHeaderFormats(changeSides().cols, block.col1, block.col2, m_cols, change);
    if (isHeader(block.col1))
        changeHeaderFormats(changeSides().rows, block.row1, block.row2, m_rows, change);
    if (wholeHeader) return true;
    const auto startOf = [](int first) { return first == -1 || isHeader(first) ? 1 : first; };
    const int firstCol = startOf(block.col1), lastCol = std::min(block.col2, m_cols);
    const int firstRow = startOf(block.row1), lastRow = std::min(block.row2, m_rows);
    if (firstCol < 1 || firstCol > lastCol) return false;
    if (allRows) {
        for (int col = firstCol; col <= lastCol; ++col) changeColumnFormats(col, change);
        return true;
    }
    if (firstRow < 1 || firstRow > lastRow) return false;
    changeCellFormats({firstCol, firstRow, lastCol, lastRow}, change);
    return true;
}

void Grid::changeCellFormats(const Block& block, const ChangeFormat& change) {
    ChangedFormats changed(m_formats, change);
    for (int col = block.col1; col <= block.col2; ++col) {
        for (int row = block.row1; row <= block.row2; ++row) {
            const FormatIndex now = formatIndex(col, row);
            const FormatIndex next = changed(now);
            if (next == now) continue;
            markTouched(col, row);
            m_sheet->setFormat(col, row, next);
        }
    }
}

void Grid::changeHeaderFormats(Band& band, int from, int to, int count,
                               const ChangeFormat& change) {
    ChangedFormats changed(m_formats, change);
    if (from <= 1 && (to >= count || isHeader(to))) {
        band.format = changed(band.format);
        for (auto& [index, format] : band.formats) format = changed(format);
        return;
    }
    for (int index = std::max(from, 1); index <= std::min(to, count); ++index)
        band.formats[index] = changed(bandFormat(band, index));
}

void Grid::changeColumnFormats(int col, const ChangeFormat& change) {
    ChangedFormats changed(m_formats, change);
    std::vector<FormatIndex>& formats = changeSides().columnFormats;
    if (static_cast<size_t>(col) >= formats.size())
        formats.resize(static_cast<size_t>(col) + 1, inheritedFormat);
    formats[static_cast<size_t>(col)] = changed(formats[static_cast<size_t>(col)]);
    std::vector<std::pair<int, FormatIndex>> own;
    const auto c = static_cast<uint16_t>(col);
    m_sheet->cells().each(Area{1, formula::maxRows, c, c}, [&](int row, int, const Cell& cell) {
        if (cell.format != inheritedFormat) own.emplace_back(row, cell.format);
    });
    for (const auto& [row, format] : own) {
        const FormatIndex next = changed(format);
        if (next == format) continue;
        markTouched(col, row);
        m_sheet->setFormat(col, row, next);
    }
}

bool Grid::setBorder(const Block& block, int sides, int style, Colour colour) {
    const auto draw = [&](const Block& cells, int which) {
        return changeFormats(cells, [&](CellFormat& format) {
            const auto bits = static_cast<uint8_t>(which & 15);
            format.borderSides = static_cast<uint8_t>(style == 0 ? format.borderSides & ~bits
                                                                 : format.borderSides | bits);
            format.borderStyle = static_cast<uint8_t>(style);
            format.borderColour = colour;
        });
    };
    bool done = (sides & 15) == 0 || draw(block, sides);
    if ((sides & borderOutline) != 0) {
        const std::optional<Block> b = resolved(block);
        if (!b) return false;
        done = draw({b->col1, b->row1, b->col1, b->row2}, borderLeft) &&
               draw({b->col2, b->row1, b->col2, b->row2}, borderRight) &&
               draw({b->col1, b->row1, b->col2, b->row1}, borderTop) &&
               draw({b->col1, b->row2, b->col2, b->row2}, borderBottom) && done;
    }
    return done;
}

int Grid::colWidth(int col) const {
    return sizeOf(m_sides->cols, m_sides->rows, col);
}
int Grid::rowHeight(int row) const {
    return sizeOf(m_sides->rows, m_sides->cols, row);
}

bool Grid::setColWidth(int col, int pixels) {
    if ((!isHeader(col) && (col < 1 || col > m_cols)) || !isSize(pixels)) return false;
    SideTables& sides = changeSides();
    (isHeader(col) ? sides.rows.headerSize : sides.cols.sizes[col]) = pixels;
    return true;
}

bool Grid::setRowHeight(int row, int pixels) {
    if ((!isHeader(row) && (row < 1 || row > m_rows)) || !isSize(pixels)) return false;
    SideTables& sides = changeSides();
    (isHeader(row) ? sides.cols.headerSize : sides.rows.sizes[row]) = pixels;
    return true;
}

bool Grid::setColHidden(int col, bool hidden) {
    if (col < 1 || col > m_cols) return false;
    std::set<int>& set = changeSides().cols.hidden;
    hidden ? (void)set.insert(col) : (void)set.erase(col);
    return true;
}

bool Grid::setRowHidden(int row, bool hidden) {
    if (row < 1 || row > m_rows) return false;
    std::set<int>& set = changeSides().rows.hidden;
    hidden ? (void)set.insert(row) : (void)set.erase(row);
    return true;
}

int Grid::fitWidth(int col) const {
    std::string buffer;
    TextSize most =
        fittedSize(text(col, headerIndex, Reading::data, buffer), format(col, headerIndex));
    for (int row = 1; row <= m_rows; ++row) {
        const Span* span = spanAt(col, row);
        if (span && span->cols > 1) continue;
        const TextSize size = fittedSize(text(col, row, Reading::data, buffer), format(col, row));
        most.width = std::max(most.width, size.width);
    }
    return most.width;
}

int Grid::fitHeight(int row) const {
    std::string buffer;
    TextSize most =
        fittedSize(text(headerIndex, row, Reading::data, buffer), format(headerIndex, row));
    for (int col = 1; col <= m_cols; ++col) {
        const Span* span = spanAt(col, row);
        if (span && span->rows > 1) continue;
        const TextSize size = fittedSize(text(col, row, Reading::data, buffer), format(col, row));
        most.height = std::max(most.height, size.height);
    }
    return most.height;
}

bool Grid::addSpan(const Span& given) {
    Span span = given;
    if (isHeader(span.col)) span.col = 0;
    if (isHeader(span.row)) span.row = 0;
    if (!isAddress(span.col, span.row) || span.cols < 1 || span.rows < 1) return false;
    // A header cell spans along its own band alone.
    span.cols = span.col == 0 ? 1 : std::min(span.cols, m_cols - span.col + 1);
    span.rows = span.row == 0 ? 1 : std::min(span.rows, m_rows - span.row + 1);
    changeSides().spans.add(span);
    return true;
}

bool Grid::removeSpan(int col, int row) {
    const int c = isHeader(col) ? 0 : col, r = isHeader(row) ? 0 : row;
    return m_sides->spans.at(c, r) && changeSides().spans.removeAt(c, r);
}

}  // namespace control
