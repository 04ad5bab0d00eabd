#include "workbench/grid/refusal.h"

#include "workbench/grid/grid_steps.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"

using control::CellKind;
using control::CellType;

namespace {

enum Words {
    isLocked = 9201,
    isNotTyped = 9202,
    isNoNumber = 9203,
    isOutOfRange = 9204,
    isTooLong = 9205,
    isNotListed = 9206,
    isNoFormula = 9207,
    someRefused = 9208,
    isNoCheck = 9209,
    isTooLongForOne = 26011,
};

QString rangeOf(const CellType& type) {
    return uiText(isOutOfRange)
        .arg(QString::number(type.least, 'g', 15), QString::number(type.most, 'g', 15));
}

}  // namespace

QString whyClosed(const control::Grid& grid, int col, int row) {
    if (grid.format(col, row).locked) return uiText(isLocked);
    const CellKind kind = grid.format(col, row).type.kind;
    const bool isTyped = isOpen(grid, {col, row}) && kind != CellKind::button;
    return isTyped ? QString() : uiText(isNotTyped);
}

QString whyRefused(const control::Grid& grid, int col, int row, std::string_view typed) {
    if (const QString closed = whyClosed(grid, col, row); !closed.isEmpty()) return closed;
    if (typed.size() > 1 && typed[0] == '=' && grid.option(control::Option::userFormulas)) {
        formula::ParseError error;
        if (!formula::parse(typed.substr(1), grid.sheet().parseSettings(col, row), error))
            return uiText(isNoFormula).arg(toQt(error.message));
    }
    const CellType& type = grid.format(col, row).type;
    switch (type.kind) {
        case CellKind::edit:
            return whyTooLong(type.maxLength);
        case CellKind::comboBox:
            return uiText(isNotListed).arg(toQt(typed));
        case CellKind::checkBox:
            return uiText(isNoCheck);
        default: {
            bool isNumber = false;
            toQt(typed).toDouble(&isNumber);
            return isNumber ? rangeOf(type) : uiText(isNoNumber).arg(toQt(typed));
        }
    }
}

QString whyTooLong(int maxLength) {
    return maxLength == 1 ? uiText(isTooLongForOne) : uiText(isTooLong).arg(maxLength);
}

QString whySomeRefused() {
    return uiText(someRefused);
}
