#include "core_api/macros/macro_data.h"

bool MacroData::findTab(std::string_view key, int& index) const {
    for (int tab = 0; tab < m_tabs.length(); ++tab) {
        if (!m_tabs[tab].key().equal(key)) continue;
        index = tab;
        return true;
    }
    return false;
}

MacroTabData* MacroData::getTab(int index) {
    return m_tabs.isIndex(index) ? &m_tabs[index] : nullptr;
}

const MacroTabData* MacroData::getTab(int index) const {
    return m_tabs.isIndex(index) ? &m_tabs[index] : nullptr;
}

ErrorStatus MacroData::applyTabs(Vor_Macro& macro) const {
    for (const MacroTabData& tab : m_tabs) {
        for (const Vor_String& name : tab.moduleNames()) {
            Vor_Module* module = macro.findModuleWrite(name);
            if (!module || tab.applyTo(*module) != Acad::eOk) return Acad::eInvalidInput;
        }
    }
    return Acad::eOk;
}

ErrorStatus MacroData::setAllToMacro(Vor_DbMacro* macro) const {
    Vor_Macro* target = macro ? macro->macroWrite() : nullptr;
    if (!target) return Acad::eInvalidInput;
    // Tried on a copy first. Modules that others have borrowed must stay where they are, so the
    // copy cannot simply take the macro's place.
    Vor_Macro trial = *target;
    if (applyTabs(trial) != Acad::eOk) return Acad::eInvalidInput;
    target->setStandards(m_mapping);
    return applyTabs(*target);
}

MacroData makeMacroData(const Vor_DbMacro& dbMacro) {
    MacroData data;
    const Vor_Macro* macro = dbMacro.macroRead();
    if (!macro) return data;
    for (const Vor_String& group : macro->getModuleGroups())
        data.m_tabs.append(MacroTabData(group));
    for (int number = 0; number < macro->moduleCount(); ++number) {
        const Vor_Module& module = macro->module(number);
        int tab = 0;
        if (data.findTab(module.key(), tab)) data.m_tabs[tab].merge(module);
    }
    data.m_mapping = macro->standards();
    data.m_mapping.setModuleGroups(macro->getModuleGroups());
    return data;
}
