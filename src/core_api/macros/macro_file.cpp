#include "core_api/macros/macro_file.h"

#include "core_api/text/text_helpers.h"

Vor_String macroFilePath(std::string_view path) {
    const Vor_String text = path;
    return text.endsWith(".dwg") ? changeExtension(path, "macro") : text;
}

ErrorStatus loadMacro(std::string_view path, Vor_DbMacro& macro, Vor_String& message) {
    const Vor_String file = macroFilePath(path);
    Vor_PropertyList properties;
    if (!properties.load(file, message)) return Acad::eInvalidInput;
    return readMacro(properties, file, macro, message);
}

ErrorStatus saveMacro(std::string_view path, const Vor_DbMacro& macro, Vor_String& message) {
    Vor_PropertyList properties;
    if (writeMacro(macro, properties, message) != Acad::eOk) return Acad::eInvalidInput;
    return properties.save(macroFilePath(path), message) ? Acad::eOk : Acad::eInvalidInput;
}
