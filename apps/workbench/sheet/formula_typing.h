// Help in a field while a formula is typed: names of functions to choose from, the arguments of the
// function being typed, colours for the references, and F4, which changes their $.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <functional>
#include <vector>

#include "spread/editor/formula_help.h"

class FormulaColours;

/// The same in the text and round the cells.
QColor colourOf(const editor::ReferenceMark& mark);

class FormulaTyping : public QObject {
  public:
    using Marks = std::vector<editor::ReferenceMark>;
    /// Lives as long as `field`. `marked` hears of the references in the text, of none
    /// when the field is hidden.
    FormulaTyping(QPlainTextEdit& field, const control::Grid& grid,
                  std::function<void(const Marks&)> marked);
    ~FormulaTyping() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Sets a reference at the cursor, in place of the one that was set last while nothing else
    /// was typed. False where no reference can stand.
    bool point(const control::Block& block);

    const QListWidget& names() const { return *m_names; }
    QString hint() const { return m_hint->isHidden() ? QString() : m_hint->text(); }

  private:
    std::string text() const;
    size_t cursor() const;
    editor::FormulaPlace place() const;
    void help();
    void showNames();
    void showHint();
    void hide();
    bool completes(const QKeyEvent& key);
    void take(const QString& name);
    void cycle();
    QPoint under() const;

    QPlainTextEdit& m_field;
    const control::Grid& m_grid;
    std::function<void(const Marks&)> m_marked;
    FormulaColours* m_colours;
    QPointer<QListWidget> m_names;
    QPointer<QLabel> m_hint;
    editor::Completion m_completion;
    std::optional<std::pair<int, int>> m_pointed;  // the reference that was set last
};
