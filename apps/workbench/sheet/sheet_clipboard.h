// What was copied or cut in a sheet, with formulas and formats, for as long as the desktop's
// clipboard holds its text: other programs take and leave texts there.
#pragma once

#include <QString>
#include <optional>

#include "workbench/sheet/sheet_spread.h"

class SheetClipboard {
  public:
    /// The one that all sheets share.
    static SheetClipboard& shared();

    bool copy(SheetSpread& from);
    /// The block is moved by the first paste into the same sheet, unless the block changed.
    bool cut(SheetSpread& from);
    /// Into the selected cells. False with the reason in `why` unless the editor has one.
    bool paste(SheetSpread& to, editor::PasteWhat what, QString& why);

  private:
    std::optional<editor::Clip> m_clip;
    const SheetSpread* m_cutFrom = nullptr;
};
