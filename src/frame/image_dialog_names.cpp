// What other modules ask of a designed dialog without opening it.
#include <new>
#include <utility>

#include "core_api/dialogs/no_memory.h"
#include "core_api/files.h"
#include "core_api/library_names.h"
#include "designer/designer_templates.h"
#include "frame/starters.h"
#include "platform/host/host.h"

bool GetImageDlgCtrlNames(const Vor_String& dialog, Vor_StringArray& names) try {
    const bool isFile = mayBeOwnPath(dialog) && ObjectExportFileExists(dialog);
    const Vor_String path = isFile ? dialog : getDesignerRootFolder() + dialog + ".txt";
    if (const auto refusal = outsideRefusal(path)) {
        acutPrint(refusal->str() + "\n");
        return false;
    }
    Vor_Array<Vor_DesignerControl> controls;
    Vor_String message;
    if (readDesignerTemplate(path, controls, message) != Acad::eOk) {
        acutPrint(message.str() + "\n");
        return false;
    }
    Vor_StringArray variables;
    for (const Vor_DesignerControl& control : controls)
        if (control.type == ctVarEdit) variables.append(control.contents);
    names = std::move(variables);
    return true;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}
