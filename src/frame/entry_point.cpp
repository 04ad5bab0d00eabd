#include "frame/entry_point.h"

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
    gBitmapChecked = bitmapResource(bitmapChecked);
    gBitmapUnchecked = bitmapResource(bitmapUnchecked);
}

void unload() {
    if (CommandStack* commands = Host::current().commandStack())
        commands->removeGroup(commandGroup);
    DestroyAllMacroDlgs();
    EndDlgEditConstraints();
}

}  // namespace

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* application) {
    switch (message) {
        case AcRx::kInitAppMsg:
            initialise(application);
            break;
        case AcRx::kUnloadAppMsg:
            unload();
            break;
    }
    return AcRx::kRetOK;
}
