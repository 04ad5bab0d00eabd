#include "platform/window/window_system.h"

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

int WindowSystem::popupMenu(CWnd&, std::span<const MenuEntry>) {
    return 0;
}
