// Column widths by mode, and spans of equal cells.
#include <cstdlib>

#include "spread/vor_spread.h"

bool Vor_Spread::setAutoSize(int mode, int count, int value) {
    if (!isAttached() || mode < 0 || mode > 5) return false;
    m_autoSizeMode = mode;
    m_autoSizeCount = count;
    m_autoSizeValue = value;
    return true;
}

bool Vor_Spread::setFixedWidths(int mode, const Vor_Array<int>& columns,
                                const Vor_Array<int>& widths) {
    if (!setAutoSize(mode, m_autoSizeCount, m_autoSizeValue)) return false;
    m_fixedColumns = columns;
    m_fixedWidths = widths;
    return true;
}

// The columns that share the window: the header column too when it is shown.
int Vor_Spread::columnsToShare() const {
    return nrCols() + (grid().option(control::Option::rowHeaders) ? 1 : 0);
}

// Gives every column the width that ownWidth(col) has for it, or, where that is below 0, its part
// of what is left of `total` for `columns` columns.
template <class Width>
void Vor_Spread::shareWidths(int total, int columns, Width&& ownWidth) {
    const int part = columns > 0 && total > 0 ? total / columns : 0;
    const auto size = [&](int col) {
        const int width = ownWidth(col);
        setColWidthInPixels(col, width >= 0 ? width : part);
    };
    if (grid().option(control::Option::rowHeaders)) size(headerIndex);
    for (int col = 1; col <= nrCols(); ++col) size(col);
}

void Vor_Spread::fitToTexts() {
    setStaticCell({-1, headerIndex, -1, headerIndex});
    setStaticCell({headerIndex, -1, headerIndex, -1});
    setColWidthInPixels(headerIndex, grid().fitWidth(headerIndex));
    for (int col = 1; col <= nrCols(); ++col) setColWidthInPixels(col, grid().fitWidth(col));
    for (int row = 1; row <= nrRows(); ++row) {
        const int height = grid().fitHeight(row);
        if (height != grid().rowHeight(row)) setRowHeightInPixels(row, height);
    }
}

bool Vor_Spread::autoSize() {
    if (!isAttached()) return false;
    const int width = clientWidth(), columns = columnsToShare();
    const int count = std::abs(m_autoSizeCount), value = m_autoSizeValue;
    switch (m_autoSizeMode) {
        case 1:
            shareWidths(width, columns, [](int) { return -1; });
            return true;
        case 2:
            fitToTexts();
            return true;
        case 3: {
            const int each = count > 0 ? width * value / 100 / count : 0;
            const int first = m_autoSizeCount > 0 ? 1 : nrCols() - count + 1;
            shareWidths(width - each * count, columns - count,
                        [&](int col) { return col >= first && col < first + count ? each : -1; });
            return true;
        }
        case 4:
            shareWidths(width - value, columns - 1,
                        [&](int col) { return col == m_autoSizeCount ? value : -1; });
            return true;
        case 5: {
            const int listed = std::min(m_fixedColumns.length(), m_fixedWidths.length());
            int total = 0;
            for (int i = 0; i < listed; ++i) total += m_fixedWidths[i];
            shareWidths(width - total, columns - listed, [&](int col) {
                const int found = m_fixedColumns.find(col);
                return found >= 0 && found < listed ? m_fixedWidths[found] : -1;
            });
            return true;
        }
        default:
            return true;
    }
}

bool Vor_Spread::mergeEqualCells(int col) {
    if (!removeSpans(col)) return false;
    std::string buffer, run;
    int first = 1;
    for (int row = 1; row <= nrRows() + 1; ++row) {
        const std::string_view text = grid().text(col, row, Reading::value, buffer);
        if (row <= nrRows() && row > first && text == run) continue;
        if (row - first > 1 && !run.empty()) addCellSpan({col, first, 1, row - first});
        first = row;
        run = text;
    }
    return true;
}

bool Vor_Spread::removeSpans(int col) {
    if (!isAttached() || col < 1 || col > nrCols()) return false;
    grid().changeSides().spans.removeColumn(col);
    return true;
}
