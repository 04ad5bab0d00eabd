// All that the cells of a sheet show, in one text to be compared.
#pragma once

#include <string>

#include "spread/vor_spread.h"

inline std::string shownCells(const Vor_Spread& sheet) {
    std::string text;
    for (int row = 1; row <= sheet.nrRows(); ++row) {
        for (int column = 1; column <= sheet.nrCols(); ++column) {
            for (const auto kind : {Vor_Spread::Reading::value, Vor_Spread::Reading::data,
                                    Vor_Spread::Reading::formula}) {
                Vor_String read;
                sheet.getCellText(column, row, read, kind);
                text += read.str() + "\t";
            }
        }
        text += "\n";
    }
    return text;
}
