#include "core_api/dialog_data/dlg_edit_lib_data.h"

#include "core_api/files.h"
#include "core_api/library_folder.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"

void DlgEditLibData::GetAvailableFiles() {
    const Vor_String folder = gSettings.libDir() + "prof\\";
    tableNames.clear();
    templateNames.clear();
    if (!hasLibraryFolder()) return;
    for (const Vor_String& path : ObjectExportFindFiles(folder, "*.pr"))
        tableNames.append(removeExtension(getFileName(path)));
    for (const Vor_String& path : ObjectExportFindFiles(folder, "*.dwg"))
        templateNames.append(getFileName(path));
}

bool DlgEditLibData::readCatalogue() {
    m_problem.clear();
    catalogue = {};
    return readSectionCatalogue(catalogue, &m_problem);
}

bool DlgEditLibData::writeCatalogue(Vor_String* message) {
    if (!writeSectionCatalogue(catalogue, message)) return false;
    m_problem.clear();
    return true;
}
