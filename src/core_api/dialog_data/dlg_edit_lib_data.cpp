#include "core_api/dialog_data/dlg_edit_lib_data.h"

#include "core_api/files.h"
#include "core_api/library_folder.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/exclusive_change.h"

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
    m_stamps = sectionCatalogueStamps();
    return readSectionCatalogue(catalogue, &m_problem);
}

bool DlgEditLibData::writeCatalogue(Vor_String* message) {
    if (!writeSectionCatalogue(catalogue, message)) return false;
    m_problem.clear();
    if (m_stamps) m_stamps = sectionCatalogueStamps();
    return true;
}

DlgEditLibData::Written DlgEditLibData::writeCatalogueAsRead(Vor_String& message) {
    std::string error;
    // The lock is the folder's, and so is of both files.
    const auto change =
        files::ExclusiveChange::take(sectionCatalogueFolder() + "Groups.dat", error);
    if (!change) {
        message = error;
        return Written::no;
    }
    if (const auto now = sectionCatalogueStamps(); m_stamps && now != *m_stamps) {
        m_stamps = now;
        return Written::changedMeanwhile;
    }
    return writeCatalogue(&message) ? Written::yes : Written::no;
}
