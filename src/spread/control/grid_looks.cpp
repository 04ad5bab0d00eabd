// Looks, sizes and spans.
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

// Remembers what became of each look, so that a long column changes each of its few looks once.
class ChangedLooks {
  public:
    ChangedLooks(LookTable& looks, const std::function<Look(const Look&)>& change)
        : m_looks(looks), m_change(change) {}
    LookIndex operator()(LookIndex look) {
        for (const auto& [from, to] : m_known)
            if (from == look) return to;
        const Look changed = m_change(m_looks[look]);
        const LookIndex to = changed == m_looks[look] ? look : m_looks.intern(changed);
        m_known.emplace_back(look, to);
        return to;
    }

  private:
    LookTable& m_looks;
    const std::function<Look(const Look&)>& m_change;
    std::vector<std::pair<LookIndex, LookIndex>> m_known;
};

LookIndex bandLook(const Band& band, int index) {
    const auto found = band.looks.find(index);
    return found == band.looks.end() ? band.look : found->second;
}

}  // namespace

LookIndex Grid::lookIndex(int col, int row) const {
    if (isHeader(row)) return isHeader(col) ? m_sides->cols.look : bandLook(m_sides->cols, col);
    if (isHeader(col)) return bandLook(m_sides->rows, row);
    return shownLook(m_sheet->find(col, row), col);
}

bool Grid::setType(int col, int row, const CellType& type) {
    if (!isInside(col, row)) return setType(Block{col, row, col, row}, type);
    const Cell* cell = m_sheet->find(col, row);
    const LookIndex look = ownLook(cell, col, type);
    if (look == (cell ? cell->look : inheritedLook)) return true;
    noteTouched(col, row);
    m_sheet->setLook(col, row, look);
    return true;
}

/// The look that the cell itself has to hold so that it is of `type`.
LookIndex Grid::ownLook(const Cell* cell, int col, const CellType& type) {
    const LookIndex shown = shownLook(cell, col);
    if (!(m_looks[shown].type == type)) return m_looks.withType(shown, type);
    return cell ? cell->look : inheritedLook;
}

bool Grid::setType(const Block& block, const CellType& type) {
    if (block.col1 == block.col2 && block.row1 == block.row2 && isInside(block.col1, block.row1))
        return setType(block.col1, block.row1, type);
    return changeLooks(block, [&](Look& look) { look.type = type; });
}

bool Grid::eachLook(const Block& given, const ChangeLook& change) {
    Block block = given;
    const bool allRows = (block.row2 == -1 && block.row1 <= 1) ||
                         (block.row1 <= 1 && block.row2 >= m_rows && m_rows > 1);
    if (block.col2 == -1) block.col2 = m_cols;
    if (block.row2 == -1) block.row2 = m_rows;
    const bool wholeHeader = isHeader(given.row2) || isHeader(given.col2);
    if (isHeader(block.row1))
        changeHeaderLooks(changeSides().cols, block.col1, block.col2, m_cols, change);
    if (isHeader(block.col1))
        changeHeaderLooks(changeSides().rows, block.row1, block.row2, m_rows, change);
    if (wholeHeader) return true;
    const auto startOf = [](int first) { return first == -1 || isHeader(first) ? 1 : first; };
    const int firstCol = startOf(block.col1), lastCol = std::min(block.col2, m_cols);
    const int firstRow = startOf(block.row1), lastRow = std::min(block.row2, m_rows);
    if (firstCol < 1 || firstCol > lastCol) return false;
    if (allRows) {
        for (int col = firstCol; col <= lastCol; ++col) changeColumnLooks(col, change);
        return true;
    }
    if (firstRow < 1 || firstRow > lastRow) return false;
    changeCellLooks({firstCol, firstRow, lastCol, lastRow}, change);
    return true;
}

void Grid::changeCellLooks(const Block& block, const ChangeLook& change) {
    ChangedLooks changed(m_looks, change);
    for (int col = block.col1; col <= block.col2; ++col) {
        for (int row = block.row1; row <= block.row2; ++row) {
            const LookIndex now = lookIndex(col, row);
            const LookIndex next = changed(now);
            if (next == now) continue;
            noteTouched(col, row);
            m_sheet->setLook(col, row, next);
        }
    }
}

void Grid::changeHeaderLooks(Band& band, int from, int to, int count, const ChangeLook& change) {
    ChangedLooks changed(m_looks, change);
    if (from <= 1 && (to >= count || isHeader(to))) {
        band.look = changed(band.look);
        for (auto& [index, look] : band.looks) look = changed(look);
        return;
    }
    for (int index = std::max(from, 1); index <= std::min(to, count); ++index)
        band.looks[index] = changed(bandLook(band, index));
}

void Grid::changeColumnLooks(int col, const ChangeLook& change) {
    ChangedLooks changed(m_looks, change);
    std::vector<LookIndex>& looks = changeSides().columnLooks;
    if (static_cast<size_t>(col) >= looks.size())
        looks.resize(static_cast<size_t>(col) + 1, inheritedLook);
    looks[static_cast<size_t>(col)] = changed(looks[static_cast<size_t>(col)]);
    std::vector<std::pair<int, LookIndex>> own;
    const auto c = static_cast<uint16_t>(col);
    m_sheet->cells().each(Area{1, formula::maxRows, c, c}, [&](int row, int, const Cell& cell) {
        if (cell.look != inheritedLook) own.emplace_back(row, cell.look);
    });
    for (const auto& [row, look] : own) {
        const LookIndex next = changed(look);
        if (next == look) continue;
        noteTouched(col, row);
        m_sheet->setLook(col, row, next);
    }
}

bool Grid::setBorder(const Block& block, int sides, int style, Colour colour) {
    const auto draw = [&](const Block& cells, int which) {
        return changeLooks(cells, [&](Look& look) {
            const auto bits = static_cast<uint8_t>(which & 15);
            look.borderSides = static_cast<uint8_t>(style == 0 ? look.borderSides & ~bits
                                                               : look.borderSides | bits);
            look.borderStyle = static_cast<uint8_t>(style);
            look.borderColour = colour;
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
        fittedSize(text(col, headerIndex, Reading::data, buffer), look(col, headerIndex));
    for (int row = 1; row <= m_rows; ++row) {
        const Span* span = spanAt(col, row);
        if (span && span->cols > 1) continue;
        const TextSize size = fittedSize(text(col, row, Reading::data, buffer), look(col, row));
        most.width = std::max(most.width, size.width);
    }
    return most.width;
}

int Grid::fitHeight(int row) const {
    std::string buffer;
    TextSize most =
        fittedSize(text(headerIndex, row, Reading::data, buffer), look(headerIndex, row));
    for (int col = 1; col <= m_cols; ++col) {
        const Span* span = spanAt(col, row);
        if (span && span->rows > 1) continue;
        const TextSize size = fittedSize(text(col, row, Reading::data, buffer), look(col, row));
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
