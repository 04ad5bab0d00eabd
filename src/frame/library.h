// The module as a library inside the host: what happens when it is attached and detached. The
// shared library does this by itself while it is loaded; a program that links the module statically
// attaches it once, with any address of its own as instance.
#pragma once

#include "core_api/resource_override.h"

/// Remembers the instance, puts it forward as the owner of the module's resources, and adds the
/// module to the chain that resources are looked up in. False, with nothing changed, for no
/// instance.
VORMANT_API bool attachLibrary(ModuleInstance instance);
/// Takes the module out of the chain. What timers and windows are left goes with it.
VORMANT_API void detachLibrary();
/// Null when not attached.
VORMANT_API ModuleInstance libraryInstance();
