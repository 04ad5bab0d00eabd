// How an object mapping reaches its value inside the macro.
#include <optional>

#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "mapping/module_values.h"
#include "mapping/tw_object_map.h"

namespace {

ErrorStatus getSetGenVar(Vor_Macro& macro, const Vor_String& name, Vor_String& value, bool get) {
    if (!get) return macro.setGeneralVariable(name, textToDouble(value));
    const std::optional<double> number = macro.generalVariableValue(name);
    if (!number) return Acad::eInvalidInput;
    value = Vor_String(*number, 8);
    return Acad::eOk;
}

/// The section name of the base profile that `text` ("Prof0") names.
ErrorStatus getBaseSectionName(const Vor_DbMacro& dbMacro, const Vor_String& text,
                               Vor_String& sectionName, AcTransaction* transaction) {
    constexpr std::string_view prefix = "Prof";
    if (!text.beginsWith(prefix)) return Acad::eInvalidInput;
    const Vor_String number = text.getSubStringAt(static_cast<int>(prefix.size()));
    const Vor_PrPl* profile = nullptr;
    if (!isNumber(number) || getBaseProf(&dbMacro, textToInt(number), profile) != Acad::eOk)
        return Acad::eInvalidInput;
    return getSectionName(profile, sectionName, transaction);
}

/// One value of a base profile's section: "Prof0;2".
ErrorStatus getBaseSectionSize(const Vor_DbMacro& dbMacro, const Vor_String& objectName,
                               Vor_String& value, AcTransaction* transaction) {
    Vor_String profile;
    Vor_String column;
    Vor_String sectionName;
    if (!splitString(objectName, ";", profile, column)) return Acad::eInvalidInput;
    if (getBaseSectionName(dbMacro, profile, sectionName, transaction) != Acad::eOk)
        return Acad::eInvalidInput;
    return getSectionValue(sectionName, textToInt(column), value);
}

bool needsBoltModule(TwMapType kind) {
    return kind >= TwMapType::patternNrBolts1 && kind <= TwMapType::patternReverseStart2;
}

}  // namespace

ErrorStatus TwObjectMap::getSetMacroVarValue(Vor_DbMacro* dbMacro, MacroData* macroData,
                                             Vor_String& value, bool get,
                                             AcTransaction* transaction) const {
    Vor_Macro* macro = dbMacro ? dbMacro->macroWrite() : nullptr;
    Vor_StringArray modules;
    if (!macro || getModNamesOfGroup(macro, m_group, modules) != Acad::eOk)
        return Acad::eInvalidInput;
    // One module that lacks the object does not fail the group.
    for (int i = 0; i < modules.length(); ++i)
        (void)getSetModuleVarValue(macro, macroData, modules[i], i, value, get, transaction);

    switch (m_kind) {
        case TwMapType::genVar:
            return getSetGenVar(*macro, m_objectName, value, get);
        case TwMapType::prPlName:
        case TwMapType::prPlMaterial:  // the section name serves for both
            return get ? getBaseSectionName(*dbMacro, m_objectName, value, transaction)
                       : Acad::eInvalidInput;
        case TwMapType::memberSectionSize:
            return get ? getBaseSectionSize(*dbMacro, m_objectName, value, transaction)
                       : Acad::eInvalidInput;
        default:
            return Acad::eOk;
    }
}

ErrorStatus TwObjectMap::getSetModuleVarValue(Vor_Macro* macro, MacroData* macroData,
                                              const Vor_String& moduleName, int index,
                                              Vor_String& value, bool get,
                                              AcTransaction* transaction) const {
    if (!macro || !macroData || m_kind == TwMapType::none || isMacroLevel(m_kind))
        return Acad::eInvalidInput;
    Vor_Module* module = nullptr;
    if (openModule(macro, moduleName, module, index) != Acad::eOk) return Acad::eInvalidInput;
    if (needsBoltModule(m_kind) && module->type() != Vor_ModuleType::bolt)
        return Acad::eInvalidInput;
    MacroTabData* tab = findTabOf(*macroData, *module);
    if (!tab) return Acad::eInvalidInput;
    const ModuleAccess access{*module, *tab, transaction, get};

    if (isCutKind(m_kind))
        return getSetCutOffset(access, m_objectName, cutOffsetTypeOf(m_kind), value);
    switch (m_kind) {
        case TwMapType::boltsDiameter:
            return getSetBoltField(access, BoltField::diameter, value);
        case TwMapType::boltsHoleOffset:
            return getSetBoltField(access, BoltField::holeOffset, value);
        case TwMapType::patternNrBolts1:
        case TwMapType::patternNrBolts2:
            return getSetPatternCount(access, m_objectName, m_kind == TwMapType::patternNrBolts1,
                                      value);
        case TwMapType::patternReverseStart1:
        case TwMapType::patternReverseStart2:
            return getSetReverseStart(access, m_objectName,
                                      m_kind == TwMapType::patternReverseStart1, value);
        case TwMapType::ownedMemberName:
            (void)getSetMemberName(access, m_objectName, value);
            return Acad::eOk;
        default:
            return getSetDistance(access, m_objectName, value);
    }
}
