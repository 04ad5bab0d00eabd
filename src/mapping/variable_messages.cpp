#include "mapping/variable_messages.h"

#include "core_api/settings.h"
#include "platform/window/message_box.h"

void reportVariableFailure(const Vor_String& file, bool isInput, const Vor_String& name) {
    if (!gSettings.current().diagnostics) return;
    Vor_String text = "The following ";
    text += isInput ? "Input" : "Output";
    text += " variable couldn't be ";
    text += isInput ? "retrieved" : "set";
    text += " : \n" + name + "\nMake sure the variable exists in the macro or module.\n" +
            "Spreadsheet : " + file;
    showWarning(standardsCaption, text);
}
