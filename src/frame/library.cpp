#include "frame/library.h"

#include "frame/constraints_window.h"
#include "frame/open_macro_dialogs.h"

namespace {

/// The part of a host extension that a library is: its instance, and its place in the chain.
struct ExtensionModule {
    ModuleInstance instance = nullptr;

    bool initialise(ModuleInstance given) {
        if (!given) return false;
        instance = given;
        return true;
    }
    void terminate() { instance = nullptr; }
};

constinit ExtensionModule extensionModule;

/// Attaches while the library is loaded and detaches while it goes.
struct LoadedLibrary {
    LoadedLibrary() { attachLibrary(this); }
    ~LoadedLibrary() { detachLibrary(); }
};

const LoadedLibrary loadedLibrary;

}  // namespace

bool attachLibrary(ModuleInstance instance) {
    if (!extensionModule.initialise(instance)) return false;
    gResourceOverride.SaveDefaultResource(instance);
    return true;
}

void detachLibrary() {
    openMacroDialogs().dropAll();
    openConstraints().drop();
    gResourceOverride.SaveDefaultResource(nullptr);
    extensionModule.terminate();
}

ModuleInstance libraryInstance() {
    return extensionModule.instance;
}
