// The desktop behind the windows of the module: every window that is shown gets a widget, which
// follows the window's state; what a user does with the widget goes to the window, as if it had
// been scripted. The window always has the last word.
//
// Widgets are made when the outermost window is shown for the first time, so windows that only
// calculate cost nothing.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/window/window_system.h"
#include "workbench/window/qt_words.h"
#include "workbench/window/timers.h"

class KeyEventFilter;
class QEventLoop;
class TSpread;
class WindowView;

class QtWindowSystem : public WindowSystem {
  public:
    /// Is the current system from now on, until it goes; the application must outlive it. Gives
    /// the application the look and the font that the dialogs are laid out for.
    QtWindowSystem();
    ~QtWindowSystem() override;

    using GridMaker = std::function<QWidget*(TSpread& spread, QWidget* parent)>;
    using GridSync = std::function<void(QWidget& grid)>;
    /// How grids get their widgets, and how such a widget takes over what has changed.
    void showGridsWith(GridMaker make, GridSync sync);

    /// `widget`, borrowed, stands for `window` from now on: its children get their widgets inside,
    /// its dialogs lie over it. For the program's own windows.
    void represent(CWnd& window, QWidget& widget);

    /// Null while it has none.
    QWidget* widgetOf(const CWnd& window) const;
    /// Of the widget or the nearest one around it; null when there is none.
    CWnd* windowOf(const QWidget* widget) const;

    // --- for the widgets --------------------------------------------------------------------
    /// Does what a user asked for, then lets the grids follow.
    void userActs(const std::function<void()>& action);
    /// A key for a window; true when it is used up.
    bool userPressesKey(CWnd& focused, const KeyMessage& key);
    void userMovesMouse(CWnd& window, const MouseMessage& message);
    QWidget* makeGrid(TSpread& spread, QWidget* parent) const;
    /// How a widget comes to the keyboard when a window asks for it: by Tab, texts are selected.
    Qt::FocusReason focusReason() const { return m_focusReason; }
    void focusByTab(CWnd& window);

    /// The widget has gone before its window did.
    void forget(const CWnd& window);

    // --- WindowSystem -----------------------------------------------------------------------
    void created(CWnd& window) override;
    void destroyed(CWnd& window) override;
    void changed(CWnd& window, WindowChange change) override;
    void bringToFront(CWnd& window) override;
    int messageBox(const MessageBox& box) override;
    void runModal(CDialog& dialog) override;
    std::vector<std::string> chooseFiles(const FileQuestion& question, CWnd* parent) override;
    int popupMenu(CWnd& owner, std::span<const MenuEntry> entries) override;
    bool isShiftHeld() override;
    std::string clipboardText() override;
    void setClipboardText(std::string_view text) override;
    CSize dialogCharacter() override { return m_character; }
    int textWidth(std::string_view text) override;
    int startTimer(int milliseconds, TimerCall call) override;
    bool killTimer(int timer) override;

  private:
    struct ModalRun {
        const CDialog* dialog;
        QEventLoop* loop;
    };

    WindowView* viewOf(const CWnd& window) const;
    void realise(CWnd& window);
    void add(CWnd& window, WindowView* view);
    void syncGrids();
    void syncGridsSoon();
    void endModalRuns(const CWnd& window, bool isGone);
    /// The widget that questions about `window` (or nothing) lie over.
    QWidget* ownerOf(const CWnd* window) const;

    std::unordered_map<const CWnd*, WindowView*> m_views;
    std::unordered_map<const QWidget*, CWnd*> m_windows;
    std::vector<ModalRun> m_modalRuns;
    std::unique_ptr<KeyEventFilter> m_keyEventFilter;
    Timers m_timers;
    QtWords m_words;
    CSize m_character;  // the average letter, and a line with a pixel above it
    GridMaker m_makeGrid;
    GridSync m_syncGrid;
    Qt::FocusReason m_focusReason = Qt::OtherFocusReason;
    bool m_isSyncDue = false;
    /// Of the key or mouse message that is being heard.
    std::optional<bool> m_shiftOfMessage;
    WindowSystem* m_before = nullptr;
};
