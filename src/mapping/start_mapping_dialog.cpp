#include "mapping/start_mapping_dialog.h"

#include "core_api/macros/macro_data.h"
#include "mapping/dialog/mapping_dialog.h"
#include "platform/host/host.h"
#include "platform/host/transaction.h"

bool startMappingDialog(TabMappingData& data, const TwSSMapping& all, bool& changed) {
    TwMappingDlg dialog(Host::current().mainWindow(), data, all);
    if (dialog.doModal() != IDOK) return false;
    data = dialog.data();
    changed = dialog.isChanged();
    return true;
}

bool startMappingDialog(Vor_DbMacro& macro, bool& changed) {
    TwSSMapping all;
    AcTransaction transaction;  // for reading sections
    if (all.initAllVarsFromMacro(&macro, &transaction) != Acad::eOk) return false;
    TabMappingData data = makeMacroData(macro).mappingData();
    if (!startMappingDialog(data, all, changed)) return false;
    macro.macroWrite()->setStandards(data);
    return true;
}
