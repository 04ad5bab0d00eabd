// What a list is fed to, row by row. The order of the virtual operations is what users outside are
// built against.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/host/error_status.h"

class VORMANT_API Vor_ListOutputCallback {
  public:
    virtual ~Vor_ListOutputCallback() = default;
    /// Anything but eOk: no rows are fed, and the feed does not end.
    virtual ErrorStatus onStartFeed() { return Acad::eOk; }
    virtual ErrorStatus onEndFeed() { return Acad::eOk; }
    virtual void onNewPage() {}
    virtual void onAddRow(const Vor_StringArray& /*cells*/) {}
    /// `cells` sum up the `rowCount` rows before it, which belong to the group `names`; `isTotal`:
    /// all rows.
    virtual void onAddSubTotals(const Vor_StringArray& /*cells*/, const Vor_StringArray& /*names*/,
                                bool /*isTotal*/, int /*rowCount*/) {}
    /// Between a group and the next.
    virtual void onAddSeperation() {}
};
