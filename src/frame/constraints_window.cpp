#include "frame/constraints_window.h"

#include "frame/starters.h"
#include "platform/window/message_scope.h"

namespace {

constexpr int onlySlot = 0;

}  // namespace

void ConstraintsWindow::onTaken() {
    // A copy: the call may end the window.
    if (const auto apply = data().apply) apply(data());
}

void ConstraintsWindow::onOK() {
    EditConstrDialog::onOK();
    if (m_isModeless && isEnded()) EndDlgEditConstraints();
}

void ConstraintsWindow::onCancel() {
    EditConstrDialog::onCancel();
    if (m_isModeless) EndDlgEditConstraints();
}

// Never destroyed: the library empties it while windows can still go.
OpenConstraints& openConstraints() {
    static OpenConstraints& open = *new OpenConstraints;
    return open;
}

OpenConstraints::OpenConstraints() : m_delayed([](int) { EndDlgEditConstraints(); }) {}

bool OpenConstraints::start(const EditConstrData& data) {
    const bool isOpen = m_window && m_window->isAlive() && !m_window->isEnded();
    if (isOpen) return false;
    drop();
    auto window = std::make_unique<ConstraintsWindow>();
    window->data() = data;
    window->setModeless(true);
    if (!window->create()) return false;
    window->show(true);
    m_window = std::move(window);
    return true;
}

bool OpenConstraints::end() {
    if (m_window && m_window->isBusy()) {
        m_delayed.endLater(onlySlot);
        return false;
    }
    if (m_window && !m_window->destroy()) acutPrintf("Erase window failed\n");
    drop();
    return true;
}

void OpenConstraints::drop() {
    m_delayed.cancel(onlySlot);
    retire(std::move(m_window));
}
