// The port below the windows: what a desktop has to do for them. The base is the headless system:
// nothing is shown, nothing ever waits for a person, and every question gets the answer that
// changes nothing, after it was printed on the host's command line.
#pragma once

#include <span>
#include <string>

#include "platform/export.h"
#include "platform/window/message_box.h"

class CWnd;
class CDialog;

enum class WindowChange { text, rect, visible, enabled, style, focus };

struct MenuEntry {
    int command = 0;  ///< 0 for a separator
    std::string text;
};

class VORMANT_API WindowSystem {
  public:
    virtual ~WindowSystem() = default;

    /// The installed system; never none.
    static WindowSystem& current();
    /// Makes `system` (borrowed; null for headless) the current one and returns the one before,
    /// null when that was headless. Windows that are created live through it unchanged.
    static WindowSystem* install(WindowSystem* system);

    /// After a window was made and before it goes.
    virtual void created(CWnd& /*window*/) {}
    virtual void destroyed(CWnd& /*window*/) {}
    virtual void changed(CWnd& /*window*/, WindowChange /*change*/) {}

    /// The number of the button pressed.
    virtual int messageBox(const MessageBox& box);
    /// Lets the user work with a modal dialog until it is ended. Headless: it is cancelled.
    virtual void runModal(CDialog& dialog);
    /// The Shift key, at this moment.
    virtual bool isShiftHeld() { return false; }
    /// The command picked, 0 for none.
    virtual int popupMenu(CWnd& owner, std::span<const MenuEntry> entries);
};
