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
    /// when it is not created. A derived class that wants onDestroy() calls this in its destructor.
    bool destroy();
    bool isCreated() const { return m_isCreated; }

    int id() const { return m_made.id; }
    const std::string& className() const { return m_made.className; }
    unsigned style() const { return m_made.style; }
    void setStyle(unsigned style);

    CWnd* parent() const { return m_parent; }
    /// The direct child with this id, or null.
    CWnd* item(int id) const;
    const std::vector<CWnd*>& children() const { return m_children; }
    /// Keeps a child for as long as this window is created.
    CWnd* adopt(std::unique_ptr<CWnd> child);

    /// In pixels of the screen.
    CRect windowRect() const;
    /// In pixels of the parent's client area.
    const CRect& rect() const { return m_made.rect; }
    void move(const CRect& rect);

    const std::string& text() const { return m_made.text; }
    void setText(std::string_view text);
    /// Shown, and every window above it too.
    bool isVisible() const;
    void show(bool visible);
    bool isEnabled() const { return m_isEnabled; }
    void enable(bool enabled);

    /// Gives it the keyboard; false when it is hidden or disabled.
    bool focus();
    bool hasFocus() const { return focused() == this; }
    /// The window with the keyboard, or null.
    static CWnd* focused();

    /// A child tells of something: a button pressed, a text changed. Codes are those of
    /// `Notification` (dialog.h).
    virtual void onCommand(int /*id*/, int /*code*/) {}

  protected:
    /// Before the window and its children go.
    virtual void onDestroy() {}

  private:
    void forgetChild(CWnd* child);

    WindowTemplate m_made;
    CWnd* m_parent = nullptr;
    std::vector<CWnd*> m_children;
    std::vector<std::unique_ptr<CWnd>> m_owned;
    bool m_isCreated = false;
    bool m_isEnabled = true;
};
