// The port below the windows: what a desktop has to do for them. The base is the headless system:
// nothing is shown, nothing ever waits for a person, time is a clock that tests wind by hand, and
// every question gets the answer that changes nothing, after it was printed on the host's command
// line.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "platform/export.h"
#include "platform/window/file_question.h"
#include "platform/window/message_box.h"
#include "platform/window/wnd.h"

class CDialog;

enum class WindowChange {
    text,
    rect,
    visible,
    enabled,
    style,
    focus,
    tip,
    items,      ///< of a list, a combo or tabs
    selection,  ///< of an item, or of characters in an edit
    check,
    content,  ///< anything else that shows: to be drawn again
};

struct MenuEntry {
    int command = 0;  ///< 0 for a separator
    std::string text;
    bool isEnabled = true;
    bool isChecked = false;
};

class VORMANT_API WindowSystem {
  public:
    using TimerCall = std::function<void(int timer)>;

    virtual ~WindowSystem() = default;

    /// The installed system; never none.
    static WindowSystem& current();
    /// Makes `system` (borrowed; null for headless) the current one and returns the one before,
    /// null when that was headless. Windows that are created live through it unchanged.
    static WindowSystem* install(WindowSystem* system);
    /// Somebody, or a script, can answer. A dialog that only shows results ends itself otherwise.
    static bool isAttended();

    // --- windows ----------------------------------------------------------------------------
    /// After a window was made and before it goes.
    virtual void created(CWnd& /*window*/) {}
    virtual void destroyed(CWnd& /*window*/) {}
    virtual void changed(CWnd& /*window*/, WindowChange /*change*/) {}
    /// In front of other windows.
    virtual void bringToFront(CWnd& /*window*/) {}

    // --- questions --------------------------------------------------------------------------
    /// The number of the button pressed.
    virtual int messageBox(const MessageBox& box);
    /// Lets the user work with a modal dialog until it is ended. Headless: it is cancelled.
    virtual void runModal(CDialog& dialog);
    /// Empty when cancelled.
    virtual std::vector<std::string> chooseFiles(const FileQuestion& question, CWnd* parent);
    /// The command picked, 0 for none.
    virtual int popupMenu(CWnd& owner, std::span<const MenuEntry> entries);

    // --- keyboard, clipboard, measures ------------------------------------------------------
    /// The Shift key, at this moment.
    virtual bool isShiftHeld() { return false; }
    /// Windows-1252, as other programs see it. Headless: the process's own.
    virtual std::string clipboardText() { return m_clipboard; }
    virtual void setClipboardText(std::string_view text) { m_clipboard = text; }
    /// The usual character of dialogs, in pixels.
    virtual CSize dialogCharacter() { return {6, 13}; }
    /// Of one line in the font of dialogs, in pixels.
    virtual int textWidth(std::string_view text);

    // --- time -------------------------------------------------------------------------------
    /// Calls every `milliseconds` until killed; the number is never 0 and never used twice.
    virtual int startTimer(int milliseconds, TimerCall call);
    virtual bool killTimer(int timer);
    /// Headless: lets time pass; timers that fall due call in their order.
    void advanceClock(int milliseconds);

  private:
    struct Timer {
        int number;
        int period;
        int64_t due;
        TimerCall call;
    };

    std::string m_clipboard;
    std::vector<Timer> m_timers;
    int64_t m_now = 0;
    int m_lastTimer = 0;
};
