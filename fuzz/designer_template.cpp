// Templates of designed dialogs: a file gives controls or a reason, and the controls come back the
// same from the properties that they are written as.
#include "designer/designer_templates.h"

#include <cstdint>

#include "fed_file.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

Vor_PropertyList propertiesOf(const Vor_Array<Vor_DesignerControl>& controls) {
    Vor_PropertyList properties;
    for (int i = 0; i < controls.length(); ++i) controls[i].setToPropList(properties, i);
    return properties;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string path = fedFile("page.txt", {reinterpret_cast<const char*>(data), size});
    Vor_Array<Vor_DesignerControl> controls;
    Vor_String message;
    if (readDesignerTemplate(path, controls, message) != Acad::eOk) {
        require(!message.isEmpty() && controls.isEmpty());
        return 0;
    }
    const Vor_PropertyList written = propertiesOf(controls);
    Vor_Array<Vor_DesignerControl> again;
    for (int i = 0; i < controls.length(); ++i) {
        Vor_DesignerControl control;
        control.getFromPropList(written, i);
        again.append(control);
    }
    require(propertiesOf(again) == written);
    return 0;
}
