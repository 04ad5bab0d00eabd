// The port below the windows: what a desktop has to do for them. The base is the headless system:
// nothing is shown, and nothing ever waits for a person.
#pragma once

#include "platform/export.h"
#include "platform/window/message_box.h"

class VORMANT_API WindowSystem {
  public:
    virtual ~WindowSystem() = default;

    /// The installed system; never none.
    static WindowSystem& current();
    /// Makes `system` (borrowed; null for headless) the current one and returns the one before,
    /// null when that was headless.
    static WindowSystem* install(WindowSystem* system);

    /// The number of the button pressed. Headless: the box is printed on the host's command line
    /// and gets its safe answer.
    virtual int messageBox(const MessageBox& box);
};
