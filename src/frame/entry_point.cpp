#include "frame/entry_point.h"

#include <new>
#include <utility>

#include "core_api/dialogs/no_memory.h"
#include "core_api/resource_override.h"
#include "frame/starters.h"
#include "platform/host/host.h"

CBitmap gBitmapChecked;
CBitmap gBitmapUnchecked;

namespace {

constexpr const char* commandGroup = "VORMANT_SS";

void initialise(void* application) {
    if (DynamicLinker* linker = Host::current().dynamicLinker()) {
        linker->unlockApplication(application);
        linker->registerAppMDIAware(application);
    }
    CBitmap checked = bitmapResource(bitmapChecked), unchecked = bitmapResource(bitmapUnchecked);
    gBitmapChecked = std::move(checked);  // both or none
    gBitmapUnchecked = std::move(unchecked);
}

void unload() {
    if (CommandStack* commands = Host::current().commandStack())
        commands->removeGroup(commandGroup);
    DestroyAllMacroDlgs();
    EndDlgEditConstraints();
}

}  // namespace

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* application) try {
    switch (message) {
        case AcRx::kInitAppMsg:
            initialise(application);
            break;
        case AcRx::kUnloadAppMsg:
            unload();
            break;
    }
    return AcRx::kRetOK;
} catch (const std::bad_alloc&) {
    noMemoryForDialog();
    return AcRx::kRetOK;
}
