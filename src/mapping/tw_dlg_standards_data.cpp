#include "mapping/tw_dlg_standards_data.h"

#include "core_api/text/text_helpers.h"

ErrorStatus TwDlgStandardsData::initialize(Vor_DbMacro* dbMacro, const Vor_String& name,
                                           const Vor_String& key, MacroData* dialogData) {
    if (!dbMacro || !dialogData) return Acad::eInvalidInput;
    mode = Mode::macro;
    standardsName = name;
    mappingKey = key;
    macro = dbMacro;
    macroData = dialogData;
    moduleName = key.beginsWith("Module.") ? getSubstrAfter(key, ".") : Vor_String();
    return Acad::eOk;
}
