// Whose dialogs and pictures are found first. The core module's resources are the usual ones; a
// plug-in puts its own in front while one of its dialogs works:
//
//     gResourceOverride.SaveDefaultResource(instance);     once, when the library is attached
//     if (gResourceOverride.SetDefaultResource()) { … gResourceOverride.RestoreOriginalResource();
//     }
//
// Settings nest: a dialog that starts another one gets its own resources back.
#pragma once

#include <vector>

#include "platform/export.h"

/// What the host knows a loaded library by; null is none.
using ModuleInstance = const void*;

class VORMANT_API TwTempResourceOverride {
  public:
    /// The instance whose resources SetDefaultResource puts in front.
    void SaveDefaultResource(ModuleInstance instance) { m_default = instance; }
    /// False, with nothing changed, when no instance was saved.
    bool SetDefaultResource();
    /// Takes the last SetDefaultResource back; without one nothing happens.
    void RestoreOriginalResource();

    /// The instance whose resources are in front; null for the core module's.
    ModuleInstance current() const { return m_current; }

  private:
    ModuleInstance m_default = nullptr;
    ModuleInstance m_current = nullptr;
    std::vector<ModuleInstance> m_originals;
};

extern VORMANT_API TwTempResourceOverride gResourceOverride;

/// The override for the length of a scope; restores only what it set.
class ResourceOverrideScope {
  public:
    ResourceOverrideScope() : m_isSet(gResourceOverride.SetDefaultResource()) {}
    ~ResourceOverrideScope() {
        if (m_isSet) gResourceOverride.RestoreOriginalResource();
    }
    ResourceOverrideScope(const ResourceOverrideScope&) = delete;
    ResourceOverrideScope& operator=(const ResourceOverrideScope&) = delete;

  private:
    bool m_isSet;
};
