// A dialog with a frame of its own: what its user does with the frame, and its place on the screen.
#pragma once

#include "workbench/window/surface_view.h"

class CDialog;
class DialogWidget;

class DialogView : public SurfaceView {
  public:
    DialogView(QtWindowSystem& system, CDialog& dialog, DialogWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

    void userEscapes();
    void userCloses();
    /// Presses the default button; false when there is none that can be pressed.
    bool userConfirms();
    void userTabs(bool backwards);
    /// To the next page or the one before; false without tabs.
    bool userTurnsPage(bool backwards);
    bool isGone() const;

  protected:
    void apply(WindowChange change) override;
    void placeWidget() override;
    void showWidget() override;
    void forgetWindow() override;

  private:
    CDialog& dialog() const;
    DialogWidget& frame() const;
    void limitSize();
    void prepareToShow();
    void focusFirst();
    void takePlaceOver();
    void takeDialogsAlong();

    bool m_wasShown = false;
};
