#include "spread/formulas/formulas_starters.h"

#include <new>

#include "core_api/dialogs/no_memory.h"
#include "core_api/resource_override.h"
#include "platform/window/host_window.h"
#include "spread/formulas/formulas_dialog.h"

void EvaluateSS() try {
    const ResourceOverrideScope resources;
    TwFormulasDlg dialog(livingMainWindow());
    dialog.mode = TwFormulasDlg::Mode::evaluateCell;
    dialog.fileName = "c:\\a\\t3.sss";
    dialog.cellColumn = 1;
    dialog.cellRow = 1;
    dialog.doModal();
} catch (const std::bad_alloc&) {
    noMemoryForDialog();
}

bool ReadSSFile(const Vor_String& path, Vor_String& title, Vor_StringArray& header,
                Vor_Array<Vor_StringArray>& rows) try {
    const ResourceOverrideScope resources;
    TwFormulasDlg dialog(livingMainWindow());
    dialog.mode = TwFormulasDlg::Mode::readFile;
    dialog.fileName = path;
    dialog.header = &header;
    dialog.rows = &rows;
    dialog.doModal();
    title = dialog.title;
    return dialog.isLoaded();
} catch (const std::bad_alloc&) {
    title.clear();
    header.clear();
    rows.clear();
    return noMemoryForDialog();
}
