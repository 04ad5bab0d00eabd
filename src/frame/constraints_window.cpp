#include "frame/constraints_window.h"

#include "frame/starters.h"
#include "platform/window/message_scope.h"

namespace {

constexpr int onlySlot = 0;

}  // namespace

void ConstraintsWindow::onTaken() {
    m_isConfirmed = true;
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

void ConstraintsWindow::onDestroy() {
    EditConstrDialog::onDestroy();
    if (m_destroyed) m_destroyed();
}

// Never destroyed: the library empties it while windows can still go.
OpenConstraints& openConstraints() {
    static OpenConstraints& open = *new OpenConstraints;
    return open;
}

OpenConstraints::OpenConstraints()
    : m_delayed([this](int) { isOpen() || !m_ended ? EndDlgEditConstraints() : close(); }) {}

bool OpenConstraints::isOpen() const {
    return m_window && m_window->isAlive();
}

bool OpenConstraints::start(const EditConstrData& data, ConstraintsEnded ended) {
    if (isOpen() && !m_window->isEnded()) return false;
    close();
    auto window = std::make_unique<ConstraintsWindow>();
    window->data() = data;
    window->setModeless(true);
    if (!window->create()) return false;
    window->show(true);
    if (ended) window->whenDestroyed([this] { m_delayed.endLater(onlySlot); });
    m_window = std::move(window);
    m_ended = std::move(ended);
    return true;
}

bool OpenConstraints::end() {
    if (m_window && m_window->isBusy()) {
        m_delayed.endLater(onlySlot);
        return false;
    }
    const bool isBroken = m_window && !m_window->isAlive();
    close();
    if (isBroken) acutPrintf("Erase window failed\n");
    return true;
}

void OpenConstraints::close() {
    if (!m_ended) return drop();
    const bool isConfirmed = m_window->isConfirmed();
    const EditConstrData data = m_window->data();
    const ConstraintsEnded ended = std::exchange(m_ended, nullptr);
    drop();
    ended(isConfirmed, data);
}

void OpenConstraints::drop() {
    m_delayed.cancel(onlySlot);
    m_ended = nullptr;
    if (m_window) m_window->whenDestroyed(nullptr);
    retire(std::move(m_window));
}
