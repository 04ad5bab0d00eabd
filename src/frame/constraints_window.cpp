#include "frame/constraints_window.h"

#include "frame/starters.h"
#include "platform/window/window_system.h"

// Never destroyed: the library empties it while windows can still go.
std::unique_ptr<ConstraintsWindow>& constraintsWindow() {
    static auto& window = *new std::unique_ptr<ConstraintsWindow>;
    return window;
}

ConstraintsWindow::~ConstraintsWindow() {
    if (m_timer) WindowSystem::current().killTimer(m_timer);
}

void ConstraintsWindow::onTaken() {
    if (data().apply) data().apply(data());
}

void ConstraintsWindow::onOK() {
    EditConstrDialog::onOK();
    if (isEnded()) endSoon();
}

void ConstraintsWindow::onCancel() {
    EditConstrDialog::onCancel();
    endSoon();
}

/// Not at once: the button that was pressed is a child of the window that goes.
void ConstraintsWindow::endSoon() {
    if (m_isModeless && !m_timer)
        m_timer = WindowSystem::current().startTimer(1, [](int) { EndDlgEditConstraints(); });
}
