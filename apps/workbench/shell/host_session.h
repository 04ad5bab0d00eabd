// The life of the module inside the program, as a host leads it: the library is attached and
// initialised at the start, unloaded and detached at the end.
#pragma once

#include "platform/host/host.h"

class HostSession {
  public:
    /// `host` is borrowed. It answers the module from now on.
    explicit HostSession(Host& host);
    /// Modeless dialogs of the module close.
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

  private:
    HostScope m_host;
};
