// The list that a combo cell opens: closes with a choice, or with Escape or a click beside it.
#pragma once

#include <QListWidget>
#include <functional>

class ItemList : public QListWidget {
  public:
    using Picked = std::function<void(const QString& item)>;
    /// Opens below `cell` (above when there is no room), in pixels of the screen, and destroys
    /// itself when it closes. `picked` is called at most once, after it closed.
    static ItemList* open(QWidget* parent, const QRect& cell, const QStringList& items,
                          const QString& current, Picked picked);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    explicit ItemList(QWidget* parent);
    void place(const QRect& cell);
    void pick();

    Picked m_picked;
};
