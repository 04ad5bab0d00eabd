#include "workbench/sheet/find_bar.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QToolButton>

#include "core_api/texts/sheet_text_numbers.h"
#include "workbench/sheet/cell_reference.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/typed_text.h"

FindBar::FindBar(SheetSpread& spread, std::function<void()> changed, std::function<void()> closed,
                 QWidget* parent)
    : QWidget(parent),
      m_spread(spread),
      m_changed(std::move(changed)),
      m_closed(std::move(closed)),
      m_wanted(new QLineEdit),
      m_replacement(new QLineEdit),
      m_message(new QLabel) {
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    const auto label = [&](int number, QLineEdit* field, int row) {
        auto* made = new QLabel(uiText(number));
        made->setBuddy(field);
        layout->addWidget(made, row, 0);
        layout->addWidget(field, row, 1);
    };
    label(sayFindWhat, m_wanted, 0);
    label(sayReplaceWith, m_replacement, 1);
    const auto button = [&](int number, int row, int col, const std::function<void()>& action) {
        auto* made = new QPushButton(uiText(number));
        connect(made, &QPushButton::clicked, this, action);
        layout->addWidget(made, row, col);
        m_tabOrder += made;
    };
    m_tabOrder = {m_wanted, m_replacement};
    button(sayFindNext, 0, 2, [this] { findNext(); });
    button(sayReplaceOne, 1, 2, [this] { replace(); });
    button(sayReplaceAll, 1, 3, [this] { replaceAll(); });
    layout->addWidget(m_message, 0, 3, 1, 2);
    auto* close = new QToolButton;
    close->setText(QString(QChar(0xD7)));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, m_closed);
    layout->addWidget(close, 0, 5);
    m_tabOrder += close;
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(4, 1);
    connect(m_wanted, &QLineEdit::returnPressed, this, [this] { findNext(); });
    connect(m_replacement, &QLineEdit::returnPressed, this, [this] { replace(); });
}

void FindBar::open() {
    show();
    m_wanted->setFocus(Qt::ShortcutFocusReason);
    m_wanted->selectAll();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return m_closed();
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        return button->click();
    QWidget::keyPressEvent(event);
}

bool FindBar::focusNextPrevChild(bool next) {
    const qsizetype count = m_tabOrder.size();
    const qsizetype at = m_tabOrder.indexOf(focusWidget());
    const qsizetype to = next ? (at + 1) % count : (at <= 0 ? count : at) - 1;
    m_tabOrder[to]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void FindBar::showMessage(int number, const QString& about) {
    m_message->setText(number == 0 ? QString() : uiText(number).arg(about));
}

// Nothing, with the reason told, for what a sheet cannot hold.
std::optional<std::string> FindBar::textOf(QLineEdit& field) {
    if (const QString why = refusalOf(field.text()); !why.isEmpty()) {
        m_message->setText(why);
        return std::nullopt;
    }
    return fromQt(field.text());
}

bool FindBar::findNext() {
    const auto text = textOf(*m_wanted);
    if (!text || text->empty()) return false;
    const auto [col, row] = m_spread.grid().active();
    int foundCol = 0, foundRow = 0;
    const bool isAhead = m_spread.findNext(*text, true, col + 1, row, foundCol, foundRow);
    if (!isAhead && !m_spread.findNext(*text, true, 1, 1, foundCol, foundRow)) {
        showMessage(sayNotFound, m_wanted->text());
        return false;
    }
    isAhead ? showMessage(0) : m_message->setText(uiText(sayStartedAgain));
    m_spread.setActiveCell(foundCol, foundRow);
    m_changed();
    return true;
}

bool FindBar::holds(control::CellAddress cell, const std::string& text) const {
    const Vor_String value(m_spread.grid().text(cell.col, cell.row, control::Reading::value));
    return value.findFirstFrom(text, 0) >= 0;
}

// A formula stays: its result is what was found, not its text.
bool FindBar::replaceAt(control::CellAddress cell, const std::string& from, const std::string& to) {
    if (m_spread.grid().format(cell.col, cell.row).locked) return false;
    if (!m_spread.grid().text(cell.col, cell.row, control::Reading::formula).empty()) return false;
    return m_spread.replaceInCell(cell.col, cell.row, from, to);
}

bool FindBar::replace() {
    const auto from = textOf(*m_wanted), to = textOf(*m_replacement);
    if (!from || !to || from->empty()) return false;
    const control::CellAddress cell = m_spread.grid().active();
    bool isReplaced = false;
    if (holds(cell, *from)) {
        CellChanges changes(&m_spread.editor(), texts::stepReplace);
        changes.before(cell.col, cell.row);
        isReplaced = replaceAt(cell, *from, *to);
    }
    m_changed();
    findNext();
    return isReplaced;
}

int FindBar::replaceAll() {
    const auto from = textOf(*m_wanted), to = textOf(*m_replacement);
    if (!from || !to || from->empty()) return 0;
    int count = 0;
    {
        CellChanges changes(&m_spread.editor(), texts::stepReplaceAll);
        int col = 0, row = 1;
        while (m_spread.findNext(*from, true, col + 1, row, col, row)) {
            changes.before(col, row);
            if (replaceAt({col, row}, *from, *to)) ++count;
        }
    }
    constexpr int sayOneCellChanged = 26010;
    m_message->setText(count == 1 ? uiText(sayOneCellChanged) : uiText(sayCellsChanged).arg(count));
    m_changed();
    return count;
}
