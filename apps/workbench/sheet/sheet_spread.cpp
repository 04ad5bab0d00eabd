#include "workbench/sheet/sheet_spread.h"

SheetSpread::SheetSpread() {
    attachHidden();
}
