// A short message beside a cell, such as why it refuses what was typed. Stays until it is hidden:
// a tip would vanish with the next move of the mouse.
#pragma once

#include <QLabel>

class MessageBubble : public QLabel {
  public:
    explicit MessageBubble(QWidget* parent);
    /// Below `cell`, or above where there is no room; in pixels of the parent.
    void showMessage(const QString& message, const QRect& cell);
};
