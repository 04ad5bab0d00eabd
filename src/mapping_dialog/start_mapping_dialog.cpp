#include "mapping_dialog/start_mapping_dialog.h"

#include <new>
#include <utility>

#include "core_api/dialogs/no_memory.h"
#include "core_api/macros/macro_data.h"
#include "mapping_dialog/mapping_dialog.h"
#include "platform/host/host.h"
#include "platform/host/transaction.h"

bool startMappingDialog(TabMappingData& data, const TwSSMapping& all, bool& changed) try {
    TwMappingDlg dialog(Host::current().mainWindow(), data, all);
    if (dialog.doModal() != IDOK) return false;
    TabMappingData chosen = dialog.data();  // a copy that fails leaves the caller's alone
    changed = dialog.isChanged();
    data = std::move(chosen);
    return true;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool startMappingDialog(Vor_DbMacro& macro, bool& changed) try {
    TwSSMapping all;
    AcTransaction transaction;  // for reading sections
    if (all.initAllVarsFromMacro(&macro, &transaction) != Acad::eOk) return false;
    TabMappingData data = makeMacroData(macro).mappingData();
    if (!startMappingDialog(data, all, changed)) return false;
    macro.macroWrite()->setStandards(data);
    return true;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}
