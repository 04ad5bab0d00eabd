#include "spread/formulas/table_look_up.h"

#include <algorithm>
#include <optional>

#include "core_api/text/number_text.h"
#include "platform/host/host.h"
#include "spread/formulas/calculating_sheet.h"
#include "spread/formulas/cell_value.h"

using Reading = Vor_Spread::Reading;

namespace {

constexpr int headerRow = 0;
constexpr int decimalsOfKeys = 15;

struct Place {
    int col;
    int row;
};

std::optional<Place> cellOf(const SSValue& argument) {
    if (argument.kind != ssCell) return std::nullopt;
    return Place{argument.cell.col, argument.cell.row};
}

/// What an argument names. A range names nothing new: `text` stays.
void takeText(SSValue& argument, const Vor_Spread& callingSheet, Vor_String& text) {
    NumberBuffer buffer;
    switch (argument.kind) {
        case ssWhole:
            text = Vor_String(argument.whole, 0);
            return;
        case ssDouble:
            text = writeNumber(buffer, argument.number, decimalsOfKeys);
            return;
        case ssText:
            getGlobalStr(argument.text, text);
            return;
        case ssCell:
            callingSheet.getCellText(argument.cell.col, argument.cell.row, text, Reading::data);
            return;
        default:
            return;
    }
}

bool shows(const Vor_Spread& table, int col, int row, const Vor_String& text) {
    Vor_String shown;
    return table.getCellText(col, row, shown, Reading::data) && shown.equal(text);
}

std::optional<int> findColumn(const Vor_Spread& table, const Vor_String& name) {
    for (int col = 1; col <= table.nrCols(); ++col)
        if (shows(table, col, headerRow, name)) return col;
    return std::nullopt;
}

std::optional<int> findRow(const Vor_Spread& table, int col, const Vor_String& key) {
    for (int row = 1; row <= table.nrRows(); ++row)
        if (shows(table, col, row, key)) return row;
    return std::nullopt;
}

std::optional<Place> findByNames(const Vor_Spread& table, const LookUpCall& call) {
    Vor_String text;
    takeText(call.arguments[1], *call.callingSheet, text);
    const auto keyColumn = findColumn(table, text);
    takeText(call.arguments[2], *call.callingSheet, text);
    const auto resultColumn = findColumn(table, text);
    takeText(call.arguments[3], *call.callingSheet, text);
    if (!keyColumn || !resultColumn) return std::nullopt;
    const auto row = findRow(table, *keyColumn, text);
    if (!row) return std::nullopt;
    return Place{*resultColumn, *row};
}

std::optional<Place> findPlace(const Vor_Spread& table, const LookUpCall& call) {
    std::optional<Place> place;
    if (call.count == 4)
        place = findByNames(table, call);
    else if (call.count == 2 || call.count == 3)
        place = cellOf(call.arguments[1]);
    if (place && (place->col < 0 || place->row < 0)) return std::nullopt;
    return place;
}

void printResult(const SSValue& result, const CellValue& value) {
    switch (result.kind) {
        case ssWhole:
            return acutPrintf("Result is long: %i\n", result.whole);
        case ssDouble:
            return acutPrintf("Result is double: %f\n", result.number);
        case ssText:
            return acutPrintf("Result is string: %s\n", value.text.c_str());
        case ssCell:
            return acutPrintf("Result is cell\n");
        default:
            return acutPrintf("Result is range\n");
    }
}

bool loadTable(Vor_Spread& table, SSValue& fileArgument) {
    Vor_String file;
    if (fileArgument.kind != ssText || !getGlobalStr(fileArgument.text, file)) return false;
    if (table.loadFromFile(file)) return registerFromTable(table);
    acutPrint("FROMTABLE: " + table.lastError() + "\n");
    return false;
}

}  // namespace

void lookUpInTable(Vor_Spread& table, const LookUpCall& call) {
    if (!call.result || !call.arguments || !call.callingSheet) return;
    SSValue& result = *call.result;
    result.status = ssEmpty;
    if (call.count < 1) return;
    const auto isValid = [](const SSValue& argument) { return argument.status == ssValid; };
    if (!std::all_of(call.arguments, call.arguments + call.count, isValid)) return;
    if (!loadTable(table, call.arguments[0])) return;
    const auto place = findPlace(table, call);
    if (!place) return;
    table.reCalcCell(place->col, place->row);
    if (call.count == 3) {
        Vor_String text;
        if (const auto target = cellOf(call.arguments[2])) {
            table.getCellText(place->col, place->row, text, Reading::data);
            CalculatingSheet::write(*call.callingSheet, target->col, target->row, text);
        }
        return;
    }
    const CellValue value = readCellValue(table, place->col, place->row);
    setResult(result, value);
    if (value.ok) printResult(result, value);
}
