// The list of everything in a macro that a spreadsheet variable can be mapped to.
#include "core_api/macros/macro_access.h"
#include "core_api/sections/section_tables.h"
#include "mapping/tw_ss_mapping.h"

namespace {

constexpr int firstCategory = 0;

/// Variables that a dialog shows and users may change come first.
int categoryOf(bool inDialog, bool editable) {
    if (inDialog) return editable ? 0 : 1;
    return editable ? 2 : 3;
}

void addVariables(const Vor_Module& module, Vor_Array<TwObjectMap>& objects) {
    Vor_StringArray names;
    AcArray<bool> inDialog;
    AcArray<bool> editable;
    if (getDialogVariables(&module, names, inDialog, editable) != Acad::eOk) return;
    for (int i = 0; i < names.length(); ++i)
        objects.append(TwObjectMap(module.key(), TwMapType::distance, names[i], {},
                                   categoryOf(inDialog[i], editable[i])));
}

void addCuts(const Vor_Module& module, Vor_Array<TwObjectMap>& objects) {
    Vor_StringArray names;
    AcArray<TwCutType> types;
    if (getCutConstraints(&module, names, types) != Acad::eOk) return;
    for (int i = 0; i < names.length(); ++i) {
        AcArray<TwCutOffsetType> offsets;
        if (getCutOffsets(types[i], offsets) != Acad::eOk) continue;
        for (const TwCutOffsetType offset : offsets)
            objects.append(
                TwObjectMap(module.key(), mapTypeOfCut(offset), names[i], {}, firstCategory));
    }
}

void addPatterns(const Vor_BoltModule& module, Vor_Array<TwObjectMap>& objects) {
    const auto add = [&](TwMapType kind, const Vor_String& name) {
        objects.append(TwObjectMap(module.key(), kind, name, {}, firstCategory));
    };
    add(TwMapType::boltsDiameter, {});
    add(TwMapType::boltsHoleOffset, {});
    for (const AcDbObjectId id : module.getPatternIds()) {
        const Vor_BoltPattern* pattern = module.getPattern(id);
        if (!pattern) continue;
        add(TwMapType::patternNrBolts1, pattern->name);
        add(TwMapType::patternReverseStart1, pattern->name);
        if (!pattern->hasSecondDirection()) continue;
        add(TwMapType::patternNrBolts2, pattern->name);
        add(TwMapType::patternReverseStart2, pattern->name);
    }
}

void addPlacements(const Vor_ProfModule& module, Vor_Array<TwObjectMap>& objects) {
    for (const Vor_PrPl& placement : module.profArray())
        if (!placement.name.isEmpty())
            objects.append(TwObjectMap(module.key(), TwMapType::ownedMemberName, placement.name, {},
                                       firstCategory));
}

void addBaseProfile(const Vor_DbMacro& dbMacro, int index, AcTransaction* transaction,
                    Vor_Array<TwObjectMap>& objects) {
    const Vor_String name = Vor_String("Prof") + Vor_String(index, 0);
    objects.append(TwObjectMap({}, TwMapType::prPlName, name));
    objects.append(TwObjectMap({}, TwMapType::prPlMaterial, name));
    const Vor_PrPl* profile = nullptr;
    Vor_String section;
    Vor_StringArray columns;
    if (getBaseProf(&dbMacro, index, profile) != Acad::eOk ||
        getSectionName(profile, section, transaction) != Acad::eOk ||
        getSectionColumnNames(section, columns) != Acad::eOk)
        return;
    for (int j = 0; j < columns.length(); ++j)
        objects.append(TwObjectMap({}, TwMapType::memberSectionSize, name + ";" + Vor_String(j, 0),
                                   columns[j]));
}

}  // namespace

ErrorStatus TwSSMapping::initAllVarsFromMacro(Vor_DbMacro* dbMacro, AcTransaction* transaction) {
    const Vor_Macro* macro = dbMacro ? dbMacro->macroRead() : nullptr;
    if (!macro) return Acad::eInvalidInput;
    for (const Vor_String& name : macro->getModuleNames()) {
        const Vor_Module* module = macro->findModule(name);
        if (!module) continue;
        addVariables(*module, m_objects);
        addCuts(*module, m_objects);
        if (const Vor_BoltModule* bolts = asBoltModule(module)) addPatterns(*bolts, m_objects);
        if (const Vor_ProfModule* profiles = asProfModule(module))
            addPlacements(*profiles, m_objects);
    }
    for (int i = 0; i < dbMacro->mapBaseProfIds().length(); ++i)
        addBaseProfile(*dbMacro, i, transaction, m_objects);
    for (const Vor_String& name : macro->getGeneralVariables())
        m_objects.append(TwObjectMap({}, TwMapType::genVar, name, {}, firstCategory));
    return Acad::eOk;
}
