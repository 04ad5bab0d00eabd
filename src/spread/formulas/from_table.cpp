// The callback of FROMTABLE: a Formulas dialog that looks the value up.
#include "platform/window/host_window.h"
#include "spread/formulas/calculating_sheet.h"
#include "spread/formulas/formulas_dialog.h"

namespace {

constexpr int mostNested = 32;
/// Two look-ups in each of thirty tables would be a billion.
constexpr int mostTogether = 10'000;

int fromTable(SSValue* result, SSValue* arguments, short count) {
    if (CalculatingSheet::depth() >= mostNested || CalculatingSheet::count() >= mostTogether) {
        acutPrintf("FROMTABLE: tables look each other up without end; no value\n");
        return 1;
    }
    TwFormulasDlg dialog(livingMainWindow());
    dialog.mode = TwFormulasDlg::Mode::lookUp;
    dialog.call = {result, arguments, count, CalculatingSheet::current()};
    dialog.doModal();
    return 1;
}

}  // namespace

bool registerFromTable(Vor_Spread& sheet) {
    return sheet.addCustomFunction("FROMTABLE", 2, 4, fromTable, 1);
}
