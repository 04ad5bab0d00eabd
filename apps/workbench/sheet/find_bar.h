// Below the cells: finds and replaces texts, letter case aside.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

#include "workbench/sheet/sheet_spread.h"

class FindBar : public QWidget {
  public:
    /// `changed` is called after the active cell or the sheet changed, `closed` when the user is
    /// done.
    FindBar(SheetSpread& spread, std::function<void()> changed, std::function<void()> closed,
            QWidget* parent);

    /// Takes the keyboard.
    void open();
    /// Makes the next cell that holds the text active, from the beginning after the last one.
    bool findNext();
    /// Replaces in the active cell when it holds the text, then finds the next.
    bool replace();
    /// In every cell, as one step; the number of cells changed.
    int replaceAll();

    QLineEdit& wanted() const { return *m_wanted; }
    QLineEdit& replacement() const { return *m_replacement; }
    QString message() const { return m_message->text(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Tab stays in the bar; Escape leaves it.
    bool focusNextPrevChild(bool next) override;

  private:
    std::optional<std::string> textOf(QLineEdit& field);
    bool holds(control::CellAddress cell, const std::string& text) const;
    bool replaceAt(control::CellAddress cell, const std::string& from, const std::string& to);
    void showMessage(int word, const QString& about = {});

    SheetSpread& m_spread;
    std::function<void()> m_changed;
    std::function<void()> m_closed;
    QLineEdit* m_wanted;
    QLineEdit* m_replacement;
    QLabel* m_message;
    QList<QWidget*> m_tabOrder;
};
