// The widget of one window and what goes on between the two. Owned by its widget.
//
// A window may go while its widget is still busy telling it something, so the widget outlives it
// until then: hidden, and deaf.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/window/geometry.h"
#include "platform/window/window_system.h"

class QtWindowSystem;

class WindowView : public QObject {
  public:
    WindowView(QtWindowSystem& system, CWnd& window, QWidget* widget);
    ~WindowView() override;

    QWidget* widget() const { return m_widget; }
    /// Null once the window has gone.
    CWnd* window() const { return m_window; }
    /// Whether the widget is somebody else's.
    bool isBorrowed() const { return m_isBorrowed; }
    void setBorrowed() { m_isBorrowed = true; }

    /// Whether it shows a grid, which has to be told when to look.
    virtual bool isGrid() const { return false; }

    void followAll();
    void follow(WindowChange change);
    /// The window goes; so does the widget, as soon as it can.
    void leave();
    /// What a user did. Nothing while the widget only follows. Afterwards the widget shows what
    /// the window made of it.
    void act(const std::function<void()>& action);

  protected:
    QtWindowSystem& system() const { return m_system; }
    bool isFollowing() const { return m_isFollowing; }
    /// Takes over one kind of change; the base knows those of all windows.
    virtual void apply(WindowChange change);
    virtual void placeWidget();
    /// Puts the widget at a place in its parent, on whole pixels of the screen.
    void placeAt(const CRect& rect);
    virtual void showWidget();
    /// The changes that a user makes by hand, to be taken back where the window does otherwise.
    virtual void applyOwnChanges() {}
    /// The window is not to be asked any more.
    virtual void forgetWindow() {}

  private:
    void enableWidget();

    QtWindowSystem& m_system;
    CWnd* m_window;
    QWidget* m_widget;
    int m_actions = 0;
    bool m_isFollowing = false;
    bool m_isBorrowed = false;
};

/// A view that knows the class of its window and of its widget.
template <class Window, class Widget>
class ViewOf : public WindowView {
  public:
    ViewOf(QtWindowSystem& system, Window& window, Widget* widget)
        : WindowView(system, window, widget), m_shown(*widget) {}

  protected:
    /// Not after the window has gone.
    Window& model() const { return static_cast<Window&>(*window()); }
    Widget& shown() const { return m_shown; }

  private:
    Widget& m_shown;
};
