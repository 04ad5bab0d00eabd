// Watches the program's events for what concerns the windows whatever widget they happen in: keys
// go to the window with the keyboard before its widget has them, and windows hear of the keyboard
// coming to them.
#pragma once

#include <QObject>

class QKeyEvent;
class QtWindowSystem;
class QWidget;

class KeyEventFilter : public QObject {
  public:
    explicit KeyEventFilter(QtWindowSystem& system);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool isForWindows(QWidget& widget) const;
    bool hearKey(QWidget& widget, const QKeyEvent& event);
    void hearFocus(QWidget& widget);

    QtWindowSystem& m_system;
};
