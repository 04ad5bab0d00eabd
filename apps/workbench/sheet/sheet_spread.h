// The spreadsheet of a sheet's page.
#pragma once

#include "spread/editor/edited_spread.h"

class SheetSpread : public EditedSpread {
  public:
    SheetSpread();
};
