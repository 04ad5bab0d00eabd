#include "spread/formulas/formulas_starters.h"

#include "core_api/resource_override.h"
#include "platform/window/host_window.h"
#include "spread/formulas/formulas_dialog.h"

void EvaluateSS() {
    const ResourceOverrideScope resources;
    TwFormulasDlg dialog(livingMainWindow());
    dialog.mode = TwFormulasDlg::Mode::evaluateCell;
    dialog.fileName = "c:\\a\\t3.sss";
    dialog.cellColumn = 1;
    dialog.cellRow = 1;
    dialog.doModal();
}

bool ReadSSFile(const Vor_String& path, Vor_String& title, Vor_StringArray& header,
                Vor_Array<Vor_StringArray>& rows) {
    const ResourceOverrideScope resources;
    TwFormulasDlg dialog(livingMainWindow());
    dialog.mode = TwFormulasDlg::Mode::readFile;
    dialog.fileName = path;
    dialog.header = &header;
    dialog.rows = &rows;
    dialog.doModal();
    title = dialog.title;
    return dialog.isLoaded();
}
