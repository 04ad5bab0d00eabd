// Pictures of the pieces in a bill, as outputs ask for them.
#pragma once

#include "bill/vor_bill.h"
#include "platform/host/error_status.h"
#include "platform/host/transaction.h"

/// Makes ready for pictures that are up to `height` pixels high: a folder for their files. Counted:
/// every call that succeeds needs its closeBMPDialog. eInvalidInput when there can be no folder.
VORMANT_API ErrorStatus initBMPDialog(int height);
/// Removes the folder with what is left in it. Nothing when none was made.
VORMANT_API void closeBMPDialog();
/// A path for the next picture, which no other has; empty unless made ready.
VORMANT_API Vor_String nextPictureFile();

inline constexpr int usualPictureHeight = 150;  // pixels
inline constexpr int usualPictureWidth = 320;

/// Draws the piece of a bill's row into the bitmap `file`, which is not flushed to disk: outputs
/// take it over and remove it.
///
/// `row`: the row, from 0; -1 the one that is being fed. `height` and `width` of the picture in
/// pixels, 0 for the usual; they become what was used. `withSizes`: the piece has its sizes beside
/// it; `withName`: its name and section stand above it.
///
/// eInvalidInput, without a file, when not made ready for so high a picture, outside a transaction,
/// for a row that no piece is known for, or one of which nothing can be drawn; eFileAccessErr when
/// the file cannot be written.
VORMANT_API ErrorStatus createImage(int& row, int& height, int& width, bool& withSizes,
                                    bool& withName, const Vor_Bill* bill,
                                    AcTransaction* transaction, const Vor_String& file);
