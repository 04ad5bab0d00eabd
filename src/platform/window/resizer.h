// Keeps controls at their distance from the edges of a window that changes its size.
#pragma once

#include <vector>

#include "platform/export.h"
#include "platform/window/dialog_resource.h"
#include "platform/window/wnd.h"

class VORMANT_API Resizer {
  public:
    /// `size` is that of the window with the control where it is now. The control may be destroyed
    /// and made again under its id.
    void add(const CWnd& control, unsigned anchor, CSize size);
    void clear() { m_entries.clear(); }
    /// Moves the children of `window` to where they belong at its present size.
    void apply(CWnd& window) const;

  private:
    struct Entry {
        int id;
        unsigned anchor;
        CRect rect;
        CSize size;
    };
    std::vector<Entry> m_entries;
};
