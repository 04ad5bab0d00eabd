// Size, structure, settings, and starting from documents.
#include "spread/control/grid.h"

#include <algorithm>

#include "platform/files.h"

namespace control {
namespace {

// Beyond this many noted cells copying the whole sheet again is no slower than putting them back.
constexpr size_t mostTouched = 4096;

bool isOption(int number) {
    return number >= 0 && number < optionCount;
}

// Groups first..first+count-1 and other..other+count-1 in 1..last that do not overlap.
bool areSwappable(int first, int other, int count, int last) {
    if (count < 1 || first < 1 || other < 1) return false;
    if (first > last - count + 1 || other > last - count + 1) return false;
    return first + count <= other || other + count <= first;
}

bool isRun(int at, int count, int last) {
    return at >= 1 && at <= last && count >= 1;
}

}  // namespace

Grid::Grid() : m_sheet(std::make_unique<Sheet>()) {
    m_options.set(static_cast<size_t>(Option::repaint));
    m_actionKeys = {ActionKey{'C', false, true}, ActionKey{'X', false, true},
                    ActionKey{'V', false, true}};
}

Grid::~Grid() = default;

SideTables& Grid::changeSides() {
    m_changed = true;
    ++m_sidesRevision;
    return m_sides.change();
}

void Grid::markTouched(int col, int row) {
    m_changed = true;
    m_isAsLoaded = false;
    if (!m_canUndo) return;
    const CellAddress cell{col, row};
    if (!m_touched.empty() && m_touched.back() == cell) return;
    if (m_touched.size() == mostTouched)
        noteStructure();
    else
        m_touched.push_back(cell);
}

bool Grid::isAsLoadedFrom(int firstRow) const {
    return m_canUndo && std::none_of(m_touched.begin(), m_touched.end(),
                                     [&](CellAddress cell) { return cell.row >= firstRow; });
}

void Grid::noteStructure() {
    m_changed = true;
    m_isAsLoaded = false;
    m_canUndo = false;
    m_touched.clear();
}

// --- size ---------------------------------------------------------------------------------------

bool Grid::setCols(int count) {
    if (count < 0 || count > formula::maxCols) return false;
    if (count == m_cols) return true;
    noteStructure();
    if (count < m_cols) dropBeyond(count, m_rows);
    m_cols = count;
    return true;
}

bool Grid::setRows(int count) {
    if (count < 0 || count > formula::maxRows) return false;
    if (count == m_rows) return true;
    noteStructure();
    if (count < m_rows) dropBeyond(m_cols, count);
    m_rows = count;
    return true;
}

void Grid::dropBeyond(int lastCol, int lastRow) {
    dropCells(lastCol, lastRow);
    changeSides().cut(lastCol, lastRow);
    if (m_active.col > lastCol || m_active.row > lastRow) m_active = {};
    m_selection.reset();
    m_edit.reset();
}

void Grid::dropCells(int lastCol, int lastRow) {
    if (lastCol == 0 || lastRow == 0) {
        m_sheet->clear();
        return;
    }
    std::vector<CellAddress> dropped;
    const Area all{1, formula::maxRows, 1, formula::maxCols};
    m_sheet->cells().each(all, [&](int row, int col, const Cell&) {
        if (col > lastCol || row > lastRow) dropped.push_back({col, row});
    });
    for (const CellAddress& cell : dropped) m_sheet->clearCell(cell.col, cell.row);
}

// --- structure ----------------------------------------------------------------------------------

bool Grid::insertRows(int at, int count) {
    if (!isRun(at, count, m_rows)) return false;
    count = std::min(count, m_rows - at + 1);
    noteStructure();
    dropCells(m_cols, m_rows - count);
    m_sheet->insertRows(at, count);
    SideTables& sides = changeSides();
    sides.insertRows(at, count);
    sides.cut(m_cols, m_rows);
    return true;
}

bool Grid::deleteRows(int at, int count) {
    if (!isRun(at, count, m_rows)) return false;
    count = std::min(count, m_rows - at + 1);
    noteStructure();
    m_sheet->deleteRows(at, count);
    changeSides().deleteRows(at, count);
    return true;
}

bool Grid::insertCols(int at, int count) {
    if (!isRun(at, count, m_cols)) return false;
    count = std::min(count, m_cols - at + 1);
    noteStructure();
    dropCells(m_cols - count, m_rows);
    m_sheet->insertCols(at, count);
    SideTables& sides = changeSides();
    sides.insertCols(at, count);
    sides.cut(m_cols, m_rows);
    return true;
}

bool Grid::deleteCols(int at, int count) {
    if (!isRun(at, count, m_cols)) return false;
    count = std::min(count, m_cols - at + 1);
    noteStructure();
    m_sheet->deleteCols(at, count);
    changeSides().deleteCols(at, count);
    return true;
}

bool Grid::swapRows(int first, int other, int count) {
    if (!areSwappable(first, other, count, m_rows)) return false;
    noteStructure();
    m_sheet->swapRows(first, other, count);
    changeSides().swapRows(first, other, count);
    return true;
}

bool Grid::swapCols(int first, int other, int count) {
    if (!areSwappable(first, other, count, m_cols)) return false;
    noteStructure();
    m_sheet->swapCols(first, other, count);
    changeSides().swapCols(first, other, count);
    return true;
}

bool Grid::moveRows(int from, int count, int to) {
    if (!isRun(from, count, m_rows - count + 1) || !isRun(to, count, m_rows - count + 1))
        return false;
    noteStructure();
    m_sheet->moveRows(from, count, to);
    changeSides().moveRows(from, count, to);
    return true;
}

bool Grid::moveCols(int from, int count, int to) {
    if (!isRun(from, count, m_cols - count + 1) || !isRun(to, count, m_cols - count + 1))
        return false;
    noteStructure();
    m_sheet->moveCols(from, count, to);
    changeSides().moveCols(from, count, to);
    return true;
}

bool Grid::copyBlock(const Block& given, int toCol, int toRow) {
    const std::optional<Block> from = resolved(given);
    if (!from || !isInside(toCol, toRow)) return false;
    const int cols = std::min(from->col2 - from->col1, m_cols - toCol);
    const int rows = std::min(from->row2 - from->row1, m_rows - toRow);
    // From the far end when the blocks overlap that way, so that nothing is copied twice.
    const bool backwards = toRow > from->row1 || (toRow == from->row1 && toCol > from->col1);
    std::string tag;
    for (int i = 0; i <= rows; ++i) {
        for (int j = 0; j <= cols; ++j) {
            const int r = backwards ? rows - i : i, c = backwards ? cols - j : j;
            const CellAddress source{from->col1 + c, from->row1 + r};
            const CellAddress target{toCol + c, toRow + r};
            markTouched(target.col, target.row);
            const FormatIndex format = formatIndex(source.col, source.row);
            m_sheet->copyCell(source, target);
            m_sheet->setFormat(target.col, target.row,
                               format == inheritedFormat ? plainFormat : format);
            tag = text(source.col, source.row, Reading::tag);
            if (tag != text(target.col, target.row, Reading::tag))
                setTag(target.col, target.row, tag);
        }
    }
    return true;
}

bool Grid::copyRowFormats(int from, int to) {
    const auto isRow = [&](int row) { return row >= 1 && row <= m_rows; };
    if (!isRow(from) || !isRow(to)) return false;
    for (int col = 1; col <= m_cols; ++col) {
        const FormatIndex format = formatIndex(col, from);
        if (format == formatIndex(col, to)) continue;
        markTouched(col, to);
        m_sheet->setFormat(col, to, format == inheritedFormat ? plainFormat : format);
    }
    return true;
}

bool Grid::copyColFormats(int from, int to) {
    const auto isCol = [&](int col) { return col >= 1 && col <= m_cols; };
    if (!isCol(from) || !isCol(to)) return false;
    std::vector<FormatIndex>& formats = changeSides().columnFormats;
    const FormatIndex format = m_sides->columnFormat(from);
    const auto last = static_cast<size_t>(std::max(from, to));
    if (formats.size() <= last) formats.resize(last + 1, inheritedFormat);
    formats[static_cast<size_t>(to)] = format;
    const auto area = [](int col) {
        const auto c = static_cast<uint16_t>(col);
        return Area{1, formula::maxRows, c, c};
    };
    std::vector<std::pair<int, FormatIndex>> own;
    m_sheet->cells().each(area(to), [&](int row, int, const Cell& cell) {
        if (cell.format != inheritedFormat) own.emplace_back(row, inheritedFormat);
    });
    m_sheet->cells().each(area(from), [&](int row, int, const Cell& cell) {
        if (cell.format != inheritedFormat) own.emplace_back(row, cell.format);
    });
    for (const auto& [row, ownFormat] : own) {
        markTouched(to, row);
        m_sheet->setFormat(to, row, ownFormat);
    }
    return true;
}

std::optional<Block> Grid::resolved(const Block& block) const {
    Block b = block;
    if (b.col1 == -1) b.col1 = 1;
    if (b.row1 == -1) b.row1 = 1;
    if (b.col2 == -1) b.col2 = m_cols;
    if (b.row2 == -1) b.row2 = m_rows;
    b.col2 = std::min(b.col2, m_cols);
    b.row2 = std::min(b.row2, m_rows);
    if (b.col1 < 1 || b.row1 < 1 || b.col1 > b.col2 || b.row1 > b.row2) return std::nullopt;
    return b;
}

// --- settings -----------------------------------------------------------------------------------

bool Grid::option(int number) const {
    if (!isOption(number)) return false;
    switch (static_cast<Option>(number)) {
        case Option::columnHeaders:
            return m_sides->columnHeaders;
        case Option::rowHeaders:
            return m_sides->rowHeaders;
        case Option::changed:
            return m_changed;
        default:
            return m_options.test(static_cast<size_t>(number));
    }
}

void Grid::setOption(int number, bool on) {
    if (!isOption(number) || option(number) == on) return;
    switch (static_cast<Option>(number)) {
        case Option::columnHeaders:
            changeSides().columnHeaders = on;
            return;
        case Option::rowHeaders:
            changeSides().rowHeaders = on;
            return;
        case Option::changed:
            m_changed = on;
            return;
        case Option::automaticRecalculation:
            m_sheet->setAutomatic(on);
            break;
        default:
            break;
    }
    m_options.set(static_cast<size_t>(number), on);
}

void Grid::setReferenceStyle(int style) {
    if (style < 0 || style > 2 || style == referenceStyle()) return;
    changeSides().referenceStyle = style;
    m_sheet->setReferenceStyle(style == 2 ? formula::ReferenceStyle::r1c1
                                          : formula::ReferenceStyle::a1);
}

void Grid::addCustomFunction(const formula::CustomFunction* function) {
    if (std::find(m_custom.begin(), m_custom.end(), function) != m_custom.end()) return;
    std::erase_if(m_custom, [&](const auto* other) { return other->name == function->name; });
    m_custom.push_back(function);
    m_sheet->addCustomFunction(function);
}

// --- documents ----------------------------------------------------------------------------------

void Grid::restore(std::shared_ptr<const Document> document) {
    if (m_canUndo && m_document == document) {
        restoreTouched();
    } else {
        *m_sheet = document->sheet();
        m_formats = document->formats();
        m_document = std::move(document);
        addKnownFunctions();
    }
    startFrom(*m_document);
    // Formulas depend on cells beyond those that were touched.
    m_canUndo = m_sheet->formulaCount() == 0;
    m_isAsLoaded = true;
}

void Grid::adopt(std::shared_ptr<Document> document) {
    m_sheet.swap(document->m_sheet);
    m_formats = std::move(document->m_formats);
    m_document = nullptr;
    addKnownFunctions();
    startFrom(*document);
    m_canUndo = false;
    m_isAsLoaded = false;
}

bool Grid::load(std::string_view path) {
    m_lastError.clear();
    return loadInto(*this, path, m_lastError);
}

bool Grid::save(std::string_view path) {
    m_lastError.clear();
    return saveDocument(*this, path, m_lastError);
}

bool Grid::saveTexts(std::string_view path) {
    m_lastError.clear();
    return files::writeWhole(path, copyText({1, 1, -1, -1}) + "\n", m_lastError);
}

void Grid::restoreTouched() {
    // The document has none (see restore).
    if (m_sheet->formulaCount() > 0) m_sheet->removeFormulas();
    const Sheet& original = m_document->sheet();
    for (const CellAddress& touched : m_touched) {
        const Cell* cell = original.find(touched.col, touched.row);
        if (cell && !cell->isBlank())
            m_sheet->putBack(touched.col, touched.row, *cell);
        else
            m_sheet->clearCell(touched.col, touched.row);
    }
}

/// Tells a sheet that was taken over about the functions registered before.
void Grid::addKnownFunctions() {
    for (const formula::CustomFunction* function : m_custom) m_sheet->addCustomFunction(function);
}

void Grid::startFrom(const Document& document) {
    m_touched.clear();
    m_cols = document.cols();
    m_rows = document.rows();
    m_sides = document.sides();
    ++m_sidesRevision;
    m_active = {};
    m_selection.reset();
    m_edit.reset();
    m_changed = false;
    const bool isR1C1 = m_sides->referenceStyle == 2;
    if (isR1C1 != (m_sheet->referenceStyle() == formula::ReferenceStyle::r1c1))
        m_sheet->setReferenceStyle(isR1C1 ? formula::ReferenceStyle::r1c1
                                          : formula::ReferenceStyle::a1);
    m_sheet->setAutomatic(option(Option::automaticRecalculation));
}

}  // namespace control
