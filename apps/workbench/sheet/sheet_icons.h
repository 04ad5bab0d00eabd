// The pictures on the tool bar, drawn in the colours of the desktop. Only what a picture tells
// faster than a word has one.
#pragma once

#include <QIcon>
#include <QPalette>

enum class SheetPicture {
    undo,
    redo,
    bold,
    italic,
    underlined,
    left,
    centre,
    right,
    textColour,
    background,
    borders,
    merge,
    sum,
    moreDecimals,
    fewerDecimals,
};

QIcon sheetIcon(SheetPicture picture, const QPalette& palette);
