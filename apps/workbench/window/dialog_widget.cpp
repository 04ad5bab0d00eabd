#include "workbench/window/dialog_widget.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "workbench/window/dialog_view.h"

DialogWidget::DialogWidget(QWidget* parent) : QDialog(parent) {
    setSizeGripEnabled(false);
}

// QDialog asks for this when Escape is pressed and nobody else wanted it.
void DialogWidget::reject() {
    if (m_view) m_view->userEscapes();
}

void DialogWidget::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isCtrl = event->modifiers().testFlag(Qt::ControlModifier);
    const bool goesBack = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_Backtab;
    const bool turnsPage =
        isCtrl && (goesBack || event->key() == Qt::Key_PageDown || event->key() == Qt::Key_Tab);
    if (m_view && turnsPage && m_view->userTurnsPage(goesBack)) return;
    if (!isEnter) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (!m_view || !m_view->userConfirms()) event->ignore();
}

// The dialog decides whether it goes. Refusing also stops the program from ending, so that a
// question about unsaved work can be answered.
void DialogWidget::closeEvent(QCloseEvent* event) {
    if (m_view) m_view->userCloses();
    event->setAccepted(!m_view || m_view->isGone());
}

bool DialogWidget::focusNextPrevChild(bool next) {
    if (m_view) m_view->userTabs(!next);
    return true;
}
