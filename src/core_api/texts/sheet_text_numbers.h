// Numbers of the words that the spreadsheet editor adds to the module's vocabulary.
#pragma once

namespace texts {

enum SheetText {
    sheetEditorTitle = 21600,
    undoVerb = 21601,
    redoVerb = 21602,

    // Names of steps, to stand behind the verbs.
    stepTyping = 21610,
    stepClearing,
    stepClearFormats,
    stepPaste,
    stepMove,
    stepFill,
    stepInsertRows,
    stepInsertCols,
    stepDeleteRows,
    stepDeleteCols,
    stepMoveRows,
    stepMoveCols,
    stepHide,
    stepShow,
    stepRowHeight,
    stepColWidth,
    stepSort,
    stepKind,
    stepFont,
    stepAlignment,
    stepColour,
    stepBorder,
    stepMerge,
    stepUnmerge,
    stepLock,
    stepNote,
    stepTag,
    stepHeader,
    stepReplace,
    stepReplaceAll,

    // Refusals; %1 is the cell, %2 what was given.
    outsideSheet = 21650,
    cellLocked,
    cellRefuses,
    formulaRefused,
    sheetFull,
    lastLines,
    badSize,
    badDecimals,
    badFill,
    mergedInSort,

    // Families of functions.
    familyMaths = 21670,
    familyTrigonometry,
    familyStatistics,
    familyMatrices,
    familyLogic,
    familyLookUp,
    familyTexts,
    familyInformation,
    familyDates,
    familyEngineering,

    // Reading text files; %1 is the line, %2 what is wrong there.
    csvCharacter = 21690,
    csvTooWide,
    csvTooLong,
    csvBroken,
};

}  // namespace texts
