// Section values tables in a sheet: the header above, the table's name beside every row.
#include "sections/vor_prof_values_table.h"
#include "spread/vor_spread.h"

namespace {

constexpr int repaint = static_cast<int>(control::Option::repaint);
constexpr int changed = static_cast<int>(control::Option::changed);
constexpr int fitsTexts = 2;  // the automatic size of columns

void fill(Vor_Spread& sheet, const Vor_ProfValuesTable& table) {
    sheet.setNrRows(table.rows.length());
    sheet.setNrCols(table.columnNames.length(), false);
    sheet.setCheckBoxColumn(Vor_ProfValuesTable::activeColumn + 1, false, false);
    sheet.setRow(Vor_Spread::headerIndex, table.columnNames);
    for (int row = 0; row < table.rows.length(); ++row) {
        sheet.setData(Vor_Spread::headerIndex, row + 1, table.tableName);
        sheet.setRow(row + 1, table.rows[row]);
    }
    sheet.setAutoSize(fitsTexts);
    sheet.autoSize();
}

}  // namespace

bool Vor_ProfValuesTable::setToSS(Vor_Spread& sheet) const {
    if (!sheet.isAttached()) return false;
    sheet.setBool(repaint, false);
    sheet.setNrRows(0);
    sheet.setNrCols(0, false);
    if (!rows.isEmpty()) {
        fill(sheet, *this);
        sheet.setBool(changed, false);
    }
    sheet.setBool(repaint, true);
    return !rows.isEmpty();
}

bool Vor_ProfValuesTable::getFromSS(Vor_Spread& sheet) {
    if (sheet.nrRows() == 0 || sheet.nrCols() == 0) return false;
    sheet.getRow(Vor_Spread::headerIndex, columnNames);
    sheet.getCellText(Vor_Spread::headerIndex, 1, tableName, Vor_Spread::Reading::data);
    sheet.getAllRows(rows);
    return true;
}
