#include "sheet/sheet_spread.h"

SheetSpread::SheetSpread() {
    attachHidden();
}
