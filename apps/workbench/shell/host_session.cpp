#include "workbench/shell/host_session.h"

#include "frame/entry_point.h"
#include "frame/library.h"

HostSession::HostSession(Host& host) : m_host(host) {
    attachLibrary(this);
    acrxEntryPoint(AcRx::kInitAppMsg, this);
}

HostSession::~HostSession() {
    acrxEntryPoint(AcRx::kUnloadAppMsg, this);
    detachLibrary();
}
