// CSV of a sheet's used area, UTF-8.
#include "core_api/text/delimited_text.h"
#include "core_api/text/text_helpers.h"
#include "exchange/sheet_writing.h"
#include "exchange/texts.h"

namespace exchange {

namespace {

using formula::Value;

void appendCell(std::string& line, const control::Grid& grid, int col, int row, CsvTexts texts) {
    const Value value = grid.sheet().value(col, row);
    std::string text;
    if (const auto formulaText = grid.sheet().formula(col, row)) {
        text = "=";
        appendUtf8(text, *formulaText);
        appendField(line, text, ',');
    } else if (value.isNumber()) {
        appendNumber(line, value.number());
    } else if (value.isBoolean()) {
        line += value.truth() ? "TRUE" : "FALSE";
    } else if (value.isError()) {
        line += formula::errorText(value.error());
    } else if (value.isText()) {
        appendUtf8(text, value.text());
        (texts == CsvTexts::exact ? appendTextField : appendGuardedField)(line, text, ',');
    }
}

}  // namespace

UsedArea usedArea(const control::Grid& grid) {
    return {grid.sheet().cells().lastCol(), grid.sheet().cells().lastRow()};
}

std::string cellName(control::CellAddress address) {
    return getAlfabet(address.col).str() + std::to_string(address.row);
}

std::optional<std::string> sheetAsCsv(const control::Grid& sheet, CsvTexts texts,
                                      std::string& error) {
    const auto withHeader = withHeaderRow(sheet);
    const control::Grid& grid = withHeader ? *withHeader : sheet;
    constexpr long long maxFields = 100'000'000;
    const auto [cols, rows] = usedArea(grid);
    if (static_cast<long long>(cols) * rows > maxFields) {
        error = "cells lie as far out as " + cellName({cols, rows}) + ", too far for CSV";
        return std::nullopt;
    }
    std::string text;
    for (int row = 1; row <= rows; ++row) {
        for (int col = 1; col <= cols; ++col) {
            if (col > 1) text += ',';
            appendCell(text, grid, col, row, texts);
        }
        text += '\n';
    }
    return text;
}

}  // namespace exchange
