// The CAD host as the module sees it: a command line to print on, the entries of its runtime
// registry and its main window. A program or a test derives from Host what it can
// give and installs it; without one, printed text goes to the standard error stream and the rest
// is accepted and dropped. Texts are Windows-1252.
#pragma once

#include <string_view>

#include "platform/export.h"
#include "platform/host/object_id.h"

class CWnd;

/// Entry "DynamicLinker" of the runtime registry. `application` is the host's handle.
class VORMANT_API DynamicLinker {
  public:
    virtual ~DynamicLinker() = default;
    virtual bool unlockApplication(void* application) = 0;
    virtual bool registerAppMDIAware(void* application) = 0;
};

/// Entry "ACAD_REGISTERED_COMMANDS" of the runtime registry.
class VORMANT_API CommandStack {
  public:
    virtual ~CommandStack() = default;
    /// False when there is no such group.
    virtual bool removeGroup(std::string_view group) = 0;
};

class VORMANT_API Host {
  public:
    virtual ~Host() = default;

    /// The installed host; never none.
    static Host& current();
    /// Makes `host` (borrowed; null for the default) the current one and returns the one before,
    /// null when that was the default.
    static Host* install(Host* host);

    /// Text of any length for the command line; messages end in "\n".
    virtual void print(std::string_view text);
    /// A modeless dialog has gone: shows a fresh prompt.
    virtual void postCommandPrompt() {}
    /// Null when the host has no such registry entry.
    virtual DynamicLinker* dynamicLinker() { return nullptr; }
    virtual CommandStack* commandStack() { return nullptr; }
    /// The window that module dialogs take as parent; null when there is none.
    virtual CWnd* mainWindow() { return nullptr; }
    /// Gives the keyboard back to the main window.
    virtual void focusMainWindow() {}
    /// Removes an object from the drawing. False when there is none of that id.
    virtual bool eraseObject(AcDbObjectId /*object*/) { return false; }
    /// Draws a member of that section for the user to look at; null when nothing can be drawn.
    virtual AcDbObjectId drawMember(std::string_view /*section*/) { return {}; }
};

/// Installs a host (borrowed) for the length of a scope.
class HostScope {
  public:
    explicit HostScope(Host& host) : m_before(Host::install(&host)) {}
    ~HostScope() { Host::install(m_before); }
    HostScope(const HostScope&) = delete;
    HostScope& operator=(const HostScope&) = delete;

  private:
    Host* m_before;
};

/// Prints on the host's command line. Texts of any length; messages end in "\n".
VORMANT_API void acutPrintf(const char* format, ...) __attribute__((format(printf, 1, 2)));
VORMANT_API void acutPrint(std::string_view text);

/// Asks the host for a fresh prompt.
VORMANT_API void acedPostCommandPrompt();
