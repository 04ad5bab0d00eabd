// The field in a grid's active cell while its text is typed. The grid's edit mode leads: it may
// begin and end, and characters may be selected, from outside (a search does); follow() shows
// that. What is typed goes into the grid's edit text at once.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>
#include <functional>

#include "spread/t_spread.h"

class QTableView;

class InCellEditor : public QObject {
  public:
    struct Hooks {
        /// A key pressed in the field, before the field has it; true when it is used up.
        std::function<bool(QKeyEvent&)> key;
        std::function<void(const QString& why)> refused;
        /// The text was changed by hand.
        std::function<void()> typed;
        std::function<void(QPlainTextEdit*)> opened;
    };
    InCellEditor(TSpread& spread, QTableView& view, Hooks hooks);

    bool isOpen() const { return m_field != nullptr; }
    /// Null while closed.
    QPlainTextEdit* field() const { return m_field; }
    /// False when the active cell cannot be typed into.
    bool begin();
    /// Starts with `typed` in place of the cell's text.
    bool beginWith(const QString& typed);
    /// Enters what was typed. False, with the field open and the reason told, when it is refused.
    /// What was not changed is not entered: a formula's result would take the formula's place.
    bool commit();
    void cancel();
    /// Percent, for the next field.
    void setZoom(int zoom) { m_zoom = zoom; }
    /// Shows what the grid's edit mode is now.
    void follow();
    void place();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void open();
    void close();
    void take();
    void takeSelection();
    void putBack();
    void show(const QString& text, std::pair<int, int> selection);
    QString whyNot(const QString& text) const;
    QRect roomFor(const QRect& cell) const;

    TSpread& m_spread;
    QTableView& m_view;
    Hooks m_hooks;
    QPointer<QPlainTextEdit> m_field;
    QString m_kept;  // the text before the last change
    bool m_isShowing = false;
    int m_zoom = 100;
};
