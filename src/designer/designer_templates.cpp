#include "designer/designer_templates.h"

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"

namespace {

constexpr const char* countKey = "nrOfControls";

}  // namespace

Vor_String getDesignerRootFolder() {
    return gSettings.libDir() + "Dialog Templates\\Dialog Design\\";
}

void getModuleImages(Vor_StringArray& names) {
    names = Vor_StringArray();
    const Vor_String root = getDesignerRootFolder();
    for (const Vor_String& path : ObjectExportFindFilesRecursive(root, "*.txt"))
        names.append(removeExtension(path).view().substr(root.view().size()));
}

ErrorStatus readDesignerTemplate(const Vor_String& path, Vor_Array<Vor_DesignerControl>& controls,
                                 Vor_String& message) {
    Vor_PropertyList properties;
    if (!properties.load(path, message)) return Acad::eInvalidInput;
    const int count = properties.getInt(countKey).value_or(0);
    if (count < 0 || count > properties.length()) {
        message = path + ": it claims " + Vor_String(count, 0) +
                  " controls, which are not there: take a backup";
        return Acad::eInvalidInput;
    }
    Vor_Array<Vor_DesignerControl> read;
    for (int i = 0; i < count; ++i) {
        Vor_DesignerControl control;
        control.getFromPropList(properties, i);
        read.append(control);
    }
    controls = read;
    return Acad::eOk;
}
