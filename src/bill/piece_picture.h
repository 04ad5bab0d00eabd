// From a piece of a bill to its picture.
#pragma once

#include "bill/bill_part.h"
#include "platform/window/bitmap.h"

struct PiecePaper {
    int width = 0;   ///< pixels
    int height = 0;  ///< pixels
    bool hasSizes = true;
    bool hasName = true;  ///< name and section above the piece
};

/// Empty for a section that is none of a table, or a piece without the sizes that its shape needs.
/// A bolt or profile of unknown length is drawn with one, and without sizes.
CBitmap piecePicture(const Vor_BillPart& piece, const PiecePaper& paper);
