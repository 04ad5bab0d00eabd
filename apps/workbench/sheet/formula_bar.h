// Above the cells: where the user is, and what the active cell holds, to be changed there as well.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>
#include <functional>

#include "workbench/sheet/formula_typing.h"
#include "workbench/sheet/sheet_view.h"

class FormulaBar : public QWidget {
    Q_OBJECT

  public:
    FormulaBar(SheetView& view, const control::Grid& grid, QWidget* parent);

    /// Shows the active cell, unless the user is typing here.
    void follow();
    QLineEdit& nameBox() const { return *m_name; }
    QPlainTextEdit& field() const { return *m_field; }
    QToolButton& functionButton() const { return *m_function; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void wentTo(const control::Block& block);
    void noSuchPlace(const QString& name);
    /// The text was typed for the active cell; the field shows it until follow().
    void entered(const QString& text);

  private:
    void goToNamed();
    void enter();
    void leave();
    void showTyped(QPlainTextEdit* field);

    SheetView& m_view;
    const control::Grid& m_grid;
    QLineEdit* m_name;
    QToolButton* m_function;
    QPlainTextEdit* m_field;
    bool m_isTyping = false;
};
