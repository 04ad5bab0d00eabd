// A window that draws itself and hears the mouse: a page, and every window that is no control.
#pragma once

#include "workbench/window/window_view.h"

class SurfaceView : public WindowView {
  public:
    SurfaceView(QtWindowSystem& system, CWnd& window, QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void apply(WindowChange change) override;

  private:
    void paint();
    bool hearMouse(QMouseEvent& event);
    void showCursor(const QPoint& point);
};
