#include "platform/window/window_system.h"

#include "platform/host/host.h"

namespace {

WindowSystem* installedSystem = nullptr;

WindowSystem& headlessSystem() {
    static WindowSystem system;
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
