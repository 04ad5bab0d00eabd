// A window: its place in the tree of windows and its state. The state lives here; what a screen
// has to follow is told to the WindowSystem. Texts are Windows-1252, ids are the numbers of dialog
// items. A window is owned by whoever made it; a parent only knows its children, unless they were
// given to it with adopt().
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"
#include "platform/window/geometry.h"
#include "platform/window/input.h"

class CDC;
enum class WindowChange;

/// What a new window is.
struct WindowTemplate {
    std::string className;
    std::string text;
    CRect rect;  ///< pixels, in the parent's client area; of the screen without a parent
    unsigned style = 0;
    int id = 0;
    bool isVisible = true;
};

class VORMANT_API CWnd {
  public:
    CWnd() = default;
    virtual ~CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    /// False when it is created already, or `parent` is given and not created.
    bool create(const WindowTemplate& made, CWnd* parent);
    /// Destroys the children, last first, then the window; the object can be created again. False
    /// when it is not created. A busy window is only hidden, and destroyed once it has handled its
    /// messages (message_scope.h).
    bool destroy();
    bool isCreated() const { return m_isCreated; }
    /// It, or a window below it, handles a message.
    bool isBusy() const;
    /// It was destroyed while it was busy, and waits for that.
    bool isLeaving() const { return m_isLeaving; }
    /// Created, and not on its way out.
    bool isAlive() const { return m_isCreated && !m_isLeaving; }
    bool isBelow(const CWnd& outer) const;

    int id() const { return m_made.id; }
    const std::string& className() const { return m_made.className; }
    unsigned style() const { return m_made.style; }
    bool hasStyle(unsigned bit) const { return (m_made.style & bit) != 0; }
    void setStyle(unsigned style);

    CWnd* parent() const { return m_parent; }
    /// The outermost window above it, or itself.
    CWnd* top();
    /// The direct child with this id, or null.
    CWnd* item(int id) const;
    /// The first window below it, at any depth, with this id, or null.
    CWnd* descendant(int id) const;
    /// item() as a control of that kind; null when it is none.
    template <class ControlClass>
    ControlClass* itemAs(int id) const {
        return dynamic_cast<ControlClass*>(item(id));
    }
    const std::vector<CWnd*>& children() const { return m_children; }
    /// Comes before `sibling` in the order of Tab (null: last). Nothing happens when it is none.
    void comeBefore(const CWnd* sibling);
    /// Keeps a child for as long as this window is created.
    CWnd* adopt(std::unique_ptr<CWnd> child);

    /// In pixels of the screen.
    CRect windowRect() const;
    /// In pixels of the parent's client area.
    const CRect& rect() const { return m_made.rect; }
    /// onSize() is called when the size changes.
    void move(const CRect& rect);
    /// No user can make it smaller.
    virtual CSize minimumSize() const { return {}; }

    const std::string& text() const { return m_made.text; }
    virtual void setText(std::string_view text);
    /// Shown, and every window above it too.
    bool isVisible() const;
    /// Its own switch, whatever those above it say.
    bool isShown() const { return m_made.isVisible; }
    void show(bool visible);
    bool isEnabled() const { return m_isEnabled; }
    void enable(bool enabled);
    /// What a screen shows when the mouse rests on it.
    const std::string& tip() const { return m_tip; }
    void setTip(std::string_view tip);

    /// Gives it the keyboard; false when it is hidden or disabled. The one that loses it tells its
    /// parent focusLost.
    bool focus();
    bool hasFocus() const { return focused() == this; }
    /// The window with the keyboard, or null.
    static CWnd* focused();

    /// Hears every mouse message until releaseCapture(), wherever the mouse is.
    void setCapture();
    static void releaseCapture();
    static CWnd* captured();

    /// To be drawn again: onEraseBkgnd, then onPaint.
    void invalidate();

    // --- what happens to it -----------------------------------------------------------------
    /// A child tells of something: a button pressed, a text changed. Codes are those of
    /// `Notification` (controls.h).
    virtual void onCommand(int /*id*/, int /*code*/) {}
    /// Before the focused window gets a key: asked from there upwards. True when it is used up.
    virtual bool preTranslateKey(const KeyMessage& /*key*/) { return false; }
    virtual void onMouse(const MouseMessage& /*message*/) {}
    /// The cursor over a point of its client area.
    virtual Cursor cursorAt(CPoint /*point*/) { return Cursor::arrow; }
    /// Draws the background. False: nothing is drawn and the usual one shows.
    virtual bool onEraseBkgnd(CDC& /*dc*/) { return false; }
    /// Draws over the background, below the children.
    virtual void onPaint(CDC& /*dc*/) {}

  protected:
    /// Destroys the window even while it is busy: for the destructor of a derived class that wants
    /// onDestroy().
    void destroyNow();
    /// Before the window and its children go.
    virtual void onDestroy() {}
    /// It has another size than `before`.
    virtual void onSize(CSize /*before*/) {}
    /// Tells the screen, when it is created.
    void notify(WindowChange change);
    /// Tells the parent.
    void notify(int code);

  private:
    friend class MessageScope;
    void leaveParent();
    static void destroyLeaving();

    WindowTemplate m_made;
    std::string m_tip;
    CWnd* m_parent = nullptr;
    std::vector<CWnd*> m_children;
    std::vector<std::unique_ptr<CWnd>> m_owned;
    bool m_isCreated = false;
    bool m_isLeaving = false;
    bool m_isEnabled = true;
};

/// What a screen hands in: a key for the focused window, true when somebody used it up; a mouse
/// message for `window` (the captured window hears it instead, in its own coordinates).
VORMANT_API bool dispatchKey(CWnd& focused, const KeyMessage& key);
VORMANT_API void dispatchMouse(CWnd& window, MouseMessage message);
