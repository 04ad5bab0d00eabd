#include "platform/window/message_box.h"

#include <span>
#include <utility>

#include "platform/window/window_system.h"

namespace {

MessageListenerScope* newestListener = nullptr;

std::span<const int> buttonsOf(MessageButtons buttons) {
    static constexpr int ok[] = {IDOK};
    static constexpr int okCancel[] = {IDOK, IDCANCEL};
    static constexpr int yesNoCancel[] = {IDYES, IDNO, IDCANCEL};
    static constexpr int yesNo[] = {IDYES, IDNO};
    static constexpr int retryCancel[] = {IDRETRY, IDCANCEL};
    switch (buttons) {
        case MessageButtons::okCancel:
            return okCancel;
        case MessageButtons::yesNoCancel:
            return yesNoCancel;
        case MessageButtons::yesNo:
            return yesNo;
        case MessageButtons::retryCancel:
            return retryCancel;
        case MessageButtons::ok:
            break;
    }
    return ok;
}

}  // namespace

std::vector<std::string> MessageBox::lines() const {
    std::vector<std::string> lines;
    std::string_view rest = text;
    for (;;) {
        const size_t end = rest.find('\n');
        lines.emplace_back(rest.substr(0, end));
        if (end == std::string_view::npos) return lines;
        rest.remove_prefix(end + 1);
    }
}

bool MessageBox::hasButton(int id) const {
    for (const int button : buttonsOf(buttons)) {
        if (button == id) return true;
    }
    return false;
}

int MessageBox::safeAnswer() const {
    return buttonsOf(buttons).back();
}

int showMessage(const MessageBox& box) {
    for (auto* scope = newestListener; scope; scope = scope->m_before) {
        if (scope->m_listener(box)) return box.safeAnswer();
    }
    return WindowSystem::current().messageBox(box);
}

void showWarning(std::string_view caption, std::string_view text) {
    showMessage({std::string(caption), std::string(text), MessageIcon::exclamation});
}

MessageListenerScope::MessageListenerScope(MessageListener listener)
    : m_listener(std::move(listener)), m_before(std::exchange(newestListener, this)) {}

MessageListenerScope::~MessageListenerScope() {
    newestListener = m_before;
}
