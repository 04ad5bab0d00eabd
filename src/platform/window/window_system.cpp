#include "platform/window/window_system.h"

#include <algorithm>

#include "platform/host/host.h"
#include "platform/window/dialog.h"

namespace {

WindowSystem* installedSystem = nullptr;

// Never destroyed: windows that are globals go at the very end and tell it so.
WindowSystem& headlessSystem() {
    static WindowSystem& system = *new WindowSystem;
    return system;
}

}  // namespace

WindowSystem& WindowSystem::current() {
    return installedSystem ? *installedSystem : headlessSystem();
}

WindowSystem* WindowSystem::install(WindowSystem* system) {
    WindowSystem* before = installedSystem;
    installedSystem = system;
    return before;
}

bool WindowSystem::isAttended() {
    return installedSystem != nullptr;
}

int WindowSystem::messageBox(const MessageBox& box) {
    std::string printed = box.caption.empty() ? std::string() : box.caption + "\n";
    printed += box.text;
    if (printed.empty() || printed.back() != '\n') printed += '\n';
    acutPrint(printed);
    return box.safeAnswer();
}

void WindowSystem::runModal(CDialog& dialog) {
    acutPrint("Dialog cancelled, nobody can answer it: " + dialog.text() + "\n");
    dialog.press(IDCANCEL);
}

std::vector<std::string> WindowSystem::chooseFiles(const FileQuestion& question, CWnd*) {
    acutPrint("No file chosen, nobody can answer: " + question.title + "\n");
    return {};
}

int WindowSystem::popupMenu(CWnd&, std::span<const MenuEntry>) {
    return 0;
}

int WindowSystem::textWidth(std::string_view text) {
    return dialogCharacter().width * static_cast<int>(text.size());
}

int WindowSystem::startTimer(int milliseconds, TimerCall call) {
    const int period = std::max(milliseconds, 1);
    m_timers.push_back({++m_lastTimer, period, m_now + period, std::move(call)});
    return m_lastTimer;
}

bool WindowSystem::killTimer(int timer) {
    return std::erase_if(m_timers, [&](const Timer& each) { return each.number == timer; }) > 0;
}

void WindowSystem::advanceClock(int milliseconds) {
    const int64_t end = m_now + milliseconds;
    for (;;) {
        const auto next =
            std::min_element(m_timers.begin(), m_timers.end(),
                             [](const Timer& a, const Timer& b) { return a.due < b.due; });
        if (next == m_timers.end() || next->due > end) break;
        m_now = next->due;
        next->due += next->period;
        const TimerCall call = next->call;  // it may kill its own timer
        call(next->number);
    }
    m_now = end;
}

std::vector<std::string> chooseFiles(const FileQuestion& question, CWnd* parent) {
    return WindowSystem::current().chooseFiles(question, parent);
}

std::string chooseFile(const FileQuestion& question, CWnd* parent) {
    const auto chosen = chooseFiles(question, parent);
    return chosen.empty() ? std::string() : chosen.front();
}
