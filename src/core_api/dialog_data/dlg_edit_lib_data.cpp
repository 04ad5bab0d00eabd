#include "core_api/dialog_data/dlg_edit_lib_data.h"

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"

void DlgEditLibData::GetAvailableFiles() {
    tableNames.clear();
    for (const Vor_String& path : ObjectExportFindFiles(gSettings.libDir() + "prof\\", "*.pr"))
        tableNames.append(removeExtension(getFileName(path)));
}
