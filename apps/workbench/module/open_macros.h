// The modeless macro dialogs that are open, and the macros they were opened on. What a dialog holds
// at its end goes into the macro, however it ended: so its data is looked at all the time.
#pragma once

#include <QTimer>
#include <functional>
#include <vector>

#include "core_api/macros/macro_data.h"

class OpenMacros {
  public:
    /// Hears the data of a dialog in which something was changed.
    using OnClosed = std::function<void(const Vor_String& path, const MacroData& data)>;
    explicit OpenMacros(OnClosed onClosed);

    /// False when the dialog cannot be made. `path` is that of the macro's file.
    bool open(const Vor_String& path, const MacroData& data);
    /// The dialog that was opened last. False when none is open.
    bool endLast();
    /// False when none is open.
    bool endAll();
    /// The data of the dialog that was opened last, as it is now.
    bool takeLast();
    int count();

  private:
    struct Entry {
        int slot;
        Vor_String path;
        MacroData before;
        MacroData seen;
    };
    void look();

    OnClosed m_onClosed;
    std::vector<Entry> m_open;
    QTimer m_timer;
};
