// One formula to evaluate, with the cells that it reads; the form in which filters hand formulas
// over, one JSON object a line:
//
//   {"id": 7, "cells": {"A1": 10, "A2": "=A1*2"}, "cell": "B1", "formula": "ROUND(A2/3,2)"}
//
// A cell holds a number, true or false, a text, a formula (a text that starts with "="),
// {"error": "#N/A"}, or {"text": "=5"} for a text that would be taken for something else. "cell"
// is where the formula stands, usually the last corner of the sheet, where no range that it reads
// meets it; the tag "array" makes it an array formula.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "exchange/sheet_writing.h"
#include "spread/control/sheet.h"

namespace cli {

/// A formula's text without "=".
struct FormulaText {
    std::string text;
};
/// Texts are Windows-1252.
using CellContent = std::variant<double, bool, std::string, FormulaText, formula::ErrorCode>;

struct EvalRecord {
    struct Cell {
        control::CellAddress address;
        CellContent content;
    };
    std::string id = "null";  ///< as JSON
    std::vector<Cell> cells;
    control::CellAddress address{formula::maxCols, formula::maxRows};
    std::string formula;
    bool isArray = false;
};

/// A cell's content as a person writes it: "=" begins a formula, TRUE and FALSE are booleans, what
/// reads as a decimal number is one, all else is text.
CellContent contentFromText(std::string_view text);

/// "B7" or "$B$7"; nothing when it is no address of one cell.
std::optional<control::CellAddress> cellAddress(std::string_view text);
using exchange::cellName;

/// False, with the reason in `error`, when the line is no such record; `record.id` is filled in as
/// far as it could be read.
bool readEvalRecord(std::string_view json, EvalRecord& record, std::string& error);

/// Fills `sheet`, which is emptied before, and calculates. The value lives until the sheet
/// changes. Nothing, with the reason in `error`, when a formula is refused.
std::optional<formula::Value> evaluate(const EvalRecord& record, control::Sheet& sheet,
                                       std::string& error);

/// Appends {"type": …, "value": …}; an empty cell has the value null.
void appendValueJson(std::string& line, const formula::Value& value);

}  // namespace cli
