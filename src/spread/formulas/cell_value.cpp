#include "spread/formulas/cell_value.h"

#include "core_api/text/text_helpers.h"
#include "platform/host/host.h"

namespace {

CellValue::Kind kindOfType(int code) {
    switch (code) {
        case static_cast<int>(control::CellKind::checkBox):
        case static_cast<int>(control::CellKind::wholeNumber):
            return CellValue::Kind::whole;
        case static_cast<int>(control::CellKind::number):
        case 15:  // currency and per cent cells of other makers' documents
        case 16:
            return CellValue::Kind::number;
        default:
            return CellValue::Kind::text;
    }
}

}  // namespace

CellValue readCellValue(const Vor_Spread& sheet, int col, int row) {
    CellValue value;
    value.kind = kindOfType(sheet.getCellType(col, row));
    if (value.kind == CellValue::Kind::number) {
        value.ok = sheet.getFloat(col, row, value.number);
        return value;
    }
    value.ok = sheet.getCellText(col, row, value.text, Vor_Spread::Reading::data);
    if (value.kind == CellValue::Kind::whole) value.whole = textToInt(value.text);
    return value;
}

void setResult(SSValue& result, const CellValue& value) {
    result.status = value.ok ? ssValid : ssFailed;
    switch (value.kind) {
        case CellValue::Kind::whole:
            result.kind = ssWhole;
            result.whole = value.whole;
            return;
        case CellValue::Kind::number:
            result.kind = ssDouble;
            result.number = value.number;
            return;
        case CellValue::Kind::text:
            result.kind = ssText;
            result.text = setGlobalStr(value.text);
            if (!result.text) acutPrintf("Reallocate failed\n");
            return;
    }
}
