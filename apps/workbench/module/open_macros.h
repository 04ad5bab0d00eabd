// The modeless macro dialogs that are open, and the macros they were opened on. The module does not
// tell its host when a user confirms one, and holds its data for a moment only: so the data is
// looked at all the time, and given to the macro once the dialog is gone.
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
    void format();

    OnClosed m_onClosed;
    std::vector<Entry> m_open;
    QTimer m_format;
};
