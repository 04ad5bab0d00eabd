#include "standards/standards_messages.h"

#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "mapping/variable_messages.h"
#include "platform/window/message_box.h"

void reportEquationFailure(const Vor_String& file, int line, const Vor_String& name,
                           const Vor_String& expression) {
    if (!gSettings.current().diagnostics) return;
    Vor_String text = "The following equation failed:\n";
    if (!name.isEmpty()) text += name + " = ";
    text += expression + "\n";
    text += "Spreadsheet : " + file + " (line: " + Vor_String(line, 0) + ")\n";
    text +=
        "Here's a tip for finding the cause :\n"
        "If this equation contains variable names, then the translator does not know the value "
        "of the variable. Make sure the variable exists either in input, output, local "
        "declarations or among the gen_ variables.";
    showWarning(standardsCaption, text);
}

void reportInvalidTolerances(double down, double up) {
    if (!gSettings.current().diagnostics) return;
    showWarning(standardsCaption,
                "Invalid tolerances provided.\n DownTolerance is :" + Vor_String(down, 2) +
                    "UpTolerance is :" + Vor_String(up, 2) +
                    "\nAdding both tolerances should result in a positive value.");
}

void reportDuplicateNames(const Vor_String& file, const Vor_StringArray& names) {
    showWarning("Variable names must be unique",
                "There were duplicate variable names found in the standards file " + file +
                    ".\nThe duplicates will be ignored. Please correct this file.\n"
                    "Duplicate variable names:\n\n" +
                    arrToStr(names, "\n"));
}
