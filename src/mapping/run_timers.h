// What a standards run spends its time on, phase by phase. They measure while profiling is on
// (core_api/timers.h) and cost nothing otherwise.
#pragma once

#include "core_api/timers.h"

// A run on a macro.
extern VORMANT_API Vor_Timer gLoadFile;             // loading the spreadsheet, in every run
extern VORMANT_API Vor_Timer gInitSSForInput;       // gen variables taken over, declarations read
extern VORMANT_API Vor_Timer gSSSGetFromMacro;      // values from the macro:
extern VORMANT_API Vor_Timer gInitMapping;          //   the mapping
extern VORMANT_API Vor_Timer gInitFromMacro;        //   the values
extern VORMANT_API Vor_Timer gSetMacroValuelsToSS;  // values into their cells
extern VORMANT_API Vor_Timer gSSSreplaceGenVars;    // gen variables in every cell
extern VORMANT_API Vor_Timer gCalcMain;             // the calculation and reading the outputs
extern VORMANT_API Vor_Timer gSetToMacro;           // outputs into the macro

// A run on a list of variables.
extern VORMANT_API Vor_Timer gGetFromVars;
extern VORMANT_API Vor_Timer gCalcChild;
extern VORMANT_API Vor_Timer gSetToVars;

// The calculation.
extern VORMANT_API Vor_Timer gRegisterFuntions;
extern VORMANT_API Vor_Timer gFindDuplicates;
extern VORMANT_API Vor_Timer gCalcCells;
extern VORMANT_API Vor_Timer gCalcCellSplitSymbol;
extern VORMANT_API Vor_Timer gCalcCellFindVarCell;
extern VORMANT_API Vor_Timer gCalcCellFindFunctions;
extern VORMANT_API Vor_Timer gCalcCellCalcNativeFunctions;
extern VORMANT_API Vor_Timer gCalcCellCalcFunctionsPrepare;
extern VORMANT_API Vor_Timer gCalcCellCalcFunctions;
extern VORMANT_API Vor_Timer gCalcCellGetVarNames;
extern VORMANT_API Vor_Timer gCalcCellGetVarCoords;
extern VORMANT_API Vor_Timer gCalcCellGetVarCoordName;
extern VORMANT_API Vor_Timer gCalcCellReplaceVariables;
