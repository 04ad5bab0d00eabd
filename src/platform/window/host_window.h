// The parent of windows that only calculate: they work without the host's main window too, and have
// to when it has gone before the module.
#pragma once

#include "platform/host/host.h"
#include "platform/window/wnd.h"

/// The host's main window while it is created, else null.
inline CWnd* livingMainWindow() {
    CWnd* window = Host::current().mainWindow();
    return window && window->isAlive() ? window : nullptr;
}
