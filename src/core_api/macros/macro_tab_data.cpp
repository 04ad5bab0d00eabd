#include "core_api/macros/macro_tab_data.h"

#include "core_api/macros/named_items.h"

namespace {

MacroTabData::Kind kindOf(Vor_ModuleType type) {
    switch (type) {
        case Vor_ModuleType::plate:
            return MacroTabData::Kind::plate;
        case Vor_ModuleType::bolt:
            return MacroTabData::Kind::bolt;
        case Vor_ModuleType::profile:
            return MacroTabData::Kind::profile;
        case Vor_ModuleType::weld:
        case Vor_ModuleType::other:
            break;
    }
    return MacroTabData::Kind::other;
}

/// The item of that name, added at the end when there is none.
template <class Item>
Item& itemNamed(Vor_Array<Item>& items, const Vor_String& name) {
    if (Item* found = findNamed(items, name)) return *found;
    items.append(Item{name});
    return items[items.length() - 1];
}

}  // namespace

bool MacroTabData::findPatternWithName(std::string_view name, int& index) const {
    const int found = indexOfNamed(m_patterns, name);
    if (found < 0) return false;
    index = found;
    return true;
}

MacroPatternProps* MacroTabData::getPattern(int index) {
    return m_patterns.isIndex(index) ? &m_patterns[index] : nullptr;
}

ErrorStatus MacroTabData::getMergedPropsOfGroup(std::string_view group,
                                                MacroProfData& properties) const {
    const MacroProfData* found = findNamed(m_profiles, group);
    if (!found) return Acad::eInvalidInput;
    properties = *found;
    return Acad::eOk;
}

ErrorStatus MacroTabData::setMergedPropsOfGroup(std::string_view group,
                                                const MacroProfData& properties) {
    MacroProfData* found = findNamed(m_profiles, group);
    if (!found) return Acad::eInvalidInput;
    Vor_String name = found->name;
    *found = properties;
    found->name = std::move(name);
    return Acad::eOk;
}

bool MacroTabData::getFlexFixBtnStatus(std::string_view variable, bool& fixed, bool& varies) const {
    const FlexFix* button = findNamed(m_flexFix, variable);
    if (!button) return false;
    fixed = button->fixed.value();
    varies = button->fixed.varies();
    return true;
}

bool MacroTabData::flexFixBtnClicked(std::string_view variable, bool flexible) {
    FlexFix* button = findNamed(m_flexFix, variable);
    if (!button) return false;
    const MergedValue<bool> before = button->fixed;
    button->fixed.set(!flexible);
    return !(button->fixed == before);
}

void MacroTabData::merge(const Vor_Module& module) {
    if (m_moduleNames.isEmpty()) m_kind = kindOf(module.type());
    m_moduleNames.append(module.name());
    mergeFlexFix(module);
    if (const Vor_BoltModule* bolts = asBoltModule(&module)) mergeBolts(*bolts);
    if (const Vor_ProfModule* profiles = asProfModule(&module)) mergeProfiles(*profiles);
}

void MacroTabData::mergeFlexFix(const Vor_Module& module) {
    for (const ConstraintVariable& variable : module.variables()) {
        if (variable.flex == Vor_FlexState::none) continue;
        itemNamed(m_flexFix, variable.name).fixed.merge(variable.flex == Vor_FlexState::fixed);
    }
}

void MacroTabData::mergeBolts(const Vor_BoltModule& module) {
    m_hasBolts = true;
    m_bolts.merge(module);
    for (const AcDbObjectId id : module.getPatternIds()) {
        const Vor_BoltPattern& pattern = *module.getPattern(id);
        itemNamed(m_patterns, pattern.name).merge(pattern);
    }
}

void MacroTabData::mergeProfiles(const Vor_ProfModule& module) {
    for (const Vor_PrPl& placement : module.profArray()) {
        itemNamed(m_profiles, placement.name).merge(placement);
    }
}

ErrorStatus MacroTabData::applyTo(Vor_Module& module) const {
    ErrorStatus status = applyFlexFix(module);
    if (Vor_BoltModule* bolts = asBoltModule(&module); bolts && status == Acad::eOk) {
        status = applyBolts(*bolts);
    }
    if (Vor_ProfModule* profiles = asProfModule(&module); profiles && status == Acad::eOk) {
        status = applyProfiles(*profiles);
    }
    return status;
}

ErrorStatus MacroTabData::applyFlexFix(Vor_Module& module) const {
    for (const FlexFix& button : m_flexFix) {
        const ConstraintVariable* variable = module.findVariable(button.name);
        if (!variable || variable->flex == Vor_FlexState::none || button.fixed.varies()) continue;
        const ErrorStatus status = module.setFixed(button.name, button.fixed.value());
        if (status != Acad::eOk) return status;
    }
    return Acad::eOk;
}

ErrorStatus MacroTabData::applyBolts(Vor_BoltModule& module) const {
    ErrorStatus status = m_bolts.applyTo(module);
    for (const MacroPatternProps& pattern : m_patterns) {
        if (status == Acad::eOk) status = pattern.applyTo(module);
    }
    return status;
}

ErrorStatus MacroTabData::applyProfiles(Vor_ProfModule& module) const {
    for (const MacroProfData& profile : m_profiles) {
        const ErrorStatus status = profile.applyTo(module);
        if (status != Acad::eOk) return status;
    }
    return Acad::eOk;
}
