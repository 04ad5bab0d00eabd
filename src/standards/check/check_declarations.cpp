// Markers and names.
#include <optional>

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "spread/control/formula/function.h"
#include "standards/check/standard_check.h"
#include "standards/standards_functions.h"

namespace {

/// One letter is left to variables: nobody misses the function T.
bool isFunctionName(const Vor_String& name) {
    if (name.length() == 1) return false;
    for (const StandardsFunctionRow& row : standardsFunctions())
        if (name.equal(row.name)) return true;
    return formula::findFunction(encodings::uppered(name)) != nullptr;
}

control::CellAddress cellOf(const TwVarCell& variable) {
    return {variable.column(), variable.row()};
}

/// What is wrong with the name of a variable, or the empty text.
Vor_String faultOfName(const Vor_String& name) {
    const Vor_String quoted = "\"" + name + "\"";
    if (name.isEmpty()) return "this declares a variable without a name: write \"Double Width\"";
    if (name[0] == ' ')
        return "the name " + quoted +
               " begins with a blank, so no equation can assign it: "
               "write one blank after the type";
    if (name.hasSubString("="))
        return "the name " + quoted + " holds a \"=\", so no equation can assign it: rename it";
    if (isFunctionName(name))
        return quoted +
               " is also a function, which equations can no longer call: rename the "
               "variable";
    if (formula::Calculation::parseReference(name, true, 1, 1))
        return quoted +
               " looks like a cell: equations that mean the cell get the variable, and "
               "references put in for other names can be taken for it: rename it";
    if (isNumber(name) || name.equal("TRUE") || name.equal("FALSE"))
        return quoted + " takes the place of that value in every equation: rename it";
    return {};
}

}  // namespace

void checkMarkers(StandardCheck& check) {
    const StandardLayout& layout = check.sheet.prepared()->layout();
    for (const Marker marker : {Marker::input, Marker::output, Marker::calc}) {
        if (layout.has(marker)) continue;
        const Vor_String word(markerWords[static_cast<size_t>(marker)]);
        check.error({}, "no cell reads \"" + word + "\": add the marker above the " +
                            (marker == Marker::calc ? "equations" : "declarations"));
    }
    const RowRange equations = layout.equationRows();
    for (const TwVarCell& variable : check.variables)
        if (variable.row() >= equations.first && variable.row() <= equations.last)
            check.error(cellOf(variable), "the declaration of \"" + variable.name() +
                                              "\" lies below \"Calc\", where every cell is taken "
                                              "for an equation: move it above");
}

void checkNames(StandardCheck& check) {
    PreparedStandard& prepared = *check.sheet.prepared();
    for (const int index : prepared.duplicates()) {
        const TwVarCell& variable = prepared.declarations()[index];
        const Vor_String text =
            "\"" + variable.name() + "\" is declared before: only the first declaration counts";
        if (variable.isLocal())
            check.warn(cellOf(variable), text);
        else
            check.error(cellOf(variable), text +
                                              ", and standards that call this one get its results "
                                              "in wrong places: rename one of them");
    }
    for (const TwVarCell& variable : check.variables) {
        const Vor_String fault = faultOfName(variable.name());
        if (!fault.isEmpty()) check.warn(cellOf(variable), fault);
    }
}
