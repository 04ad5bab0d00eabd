// FROMTABLE, the function that looks values up in the sheet of another file:
//
//     FROMTABLE(file, cell)                              the value of that cell
//     FROMTABLE(file, cell, target)                      copies its text into `target`
//     FROMTABLE(file, key column, result column, key)    by the names of columns and a row's key
#pragma once

#include "spread/vor_spread.h"

/// One call as the control hands it in.
struct LookUpCall {
    SSValue* result = nullptr;
    SSValue* arguments = nullptr;
    short count = 0;
    /// The spreadsheet whose formula calls; null when there is none.
    Vor_Spread* callingSheet = nullptr;
};

/// Loads the file of the first argument into `table` and looks up what the others say. Every
/// failure leaves the result without value and the calling sheet as it was.
void lookUpInTable(Vor_Spread& table, const LookUpCall& call);

/// Makes FROMTABLE known to the formulas of `sheet`; needed again after each load.
bool registerFromTable(Vor_Spread& sheet);
