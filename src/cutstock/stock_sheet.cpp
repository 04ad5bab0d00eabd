#include "cutstock/stock_sheet.h"

#include <algorithm>

namespace cutstock {

namespace {

constexpr int tableFormat = 1;  // one that is typed into
constexpr int anyLength = 0;
constexpr int rowNumbersWidth = 40;

int widthOf(const Rows& rows) {
    int width = 0;
    for (const Vor_StringArray& row : rows) width = std::max(width, row.length());
    return width;
}

}  // namespace

void StockSheet::attach(CWnd* dialog, int gridItem) {
    m_grid.attach(dialog, gridItem, true);
    m_grid.setStandardLook(tableFormat);
    m_grid.setMenuCommands({Vor_Spread::menuCopy, Vor_Spread::menuPaste, Vor_Spread::menuSeparator,
                            Vor_Spread::menuInsertRow, Vor_Spread::menuDeleteRow});
    m_grid.setAutoSize(4, Vor_Spread::headerIndex, rowNumbersWidth);
}

void StockSheet::show(const Csp2Table& table, std::optional<int> itemId) {
    const Rows shown = itemId ? rowsOf(table, *itemId) : Rows();
    m_namedColumns = table.columnNames.length();
    const int columns = std::max({1, m_namedColumns, widthOf(shown)});
    constexpr int repaint = static_cast<int>(control::Option::repaint);
    m_grid.setBool(repaint, false);
    m_grid.setNrRows(0);
    m_grid.setNrCols(columns, false);
    m_grid.setTextCell({1, -1, columns, -1}, anyLength);
    for (int col = 1; col <= columns; ++col) {
        const bool isNamed = col <= m_namedColumns;
        m_grid.setData(col, Vor_Spread::headerIndex,
                       isNamed ? table.columnNames[col - 1] : Vor_String());
    }
    m_grid.setNrRows(shown.length());
    for (int row = 1; row <= shown.length(); ++row) m_grid.setRow(row, shown[row - 1]);
    if (!shown.isEmpty()) m_grid.setActiveCell(1, 1);
    m_grid.setBool(repaint, true);
    m_grid.autoSize();
}

Rows StockSheet::rows() const {
    Rows rows;
    m_grid.getAllRows(rows);
    for (Vor_StringArray& row : rows)
        while (row.length() > m_namedColumns && row[row.length() - 1].isEmpty())
            row.setLength(row.length() - 1);
    return rows;
}

void StockSheet::insertRow() {
    const int row = m_grid.nrRows() == 0 ? 1 : m_grid.currentRow() + 1;
    if (!m_grid.insertRow(row, false, false)) return;
    m_grid.setActiveCell(1, row);
    m_grid.focus();
}

void StockSheet::deleteRow() {
    const int row = m_grid.currentRow();
    if (m_grid.nrRows() == 0 || !m_grid.deleteRow(row)) return;
    if (m_grid.nrRows() > 0)
        m_grid.setActiveCell(m_grid.currentCol(), std::min(row, m_grid.nrRows()));
}

}  // namespace cutstock
