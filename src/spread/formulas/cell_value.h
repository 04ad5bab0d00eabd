// A grid cell on its way to becoming the result of a custom function.
#pragma once

#include "spread/vor_spread.h"

struct CellValue {
    enum class Kind { whole = 0, number = 1, text = 2 };

    bool ok = false;  ///< the cell could be read as its kind
    Kind kind = Kind::text;
    int whole = 0;
    double number = 0;
    Vor_String text;
};

/// By the type of the cell: whole numbers and check boxes, numbers, texts.
CellValue readCellValue(const Vor_Spread& sheet, int col, int row);
/// Puts it into the result of a custom function, with the status that says whether it is valid.
void setResult(SSValue& result, const CellValue& value);
