#include "core_api/macros/macro_prof_data.h"

#include "core_api/macros/macro_limits.h"

namespace {

ErrorStatus setText(MergedValue<Vor_String>& property, std::string_view text) {
    if (!isMacroText(text)) return Acad::eInvalidInput;
    property.set(text);
    return Acad::eOk;
}

}  // namespace

ErrorStatus MacroProfData::setSectionName(std::string_view text) {
    return setText(m_sectionName, text);
}

ErrorStatus MacroProfData::setMaterial(std::string_view text) {
    return setText(m_material, text);
}

ErrorStatus MacroProfData::setMemberName(std::string_view text) {
    return setText(m_memberName, text);
}

void MacroProfData::merge(const Vor_PrPl& placement) {
    m_sectionName.merge(placement.sectionName);
    m_material.merge(placement.material);
    m_memberName.merge(placement.memberName);
}

ErrorStatus MacroProfData::applyTo(Vor_ProfModule& module) const {
    const Vor_PrPl* placement = module.findPlacement(name);
    if (!placement) return Acad::eOk;
    Vor_PrPl changed = *placement;
    if (!m_sectionName.varies()) changed.sectionName = m_sectionName.value();
    if (!m_material.varies()) changed.material = m_material.value();
    if (!m_memberName.varies()) changed.memberName = m_memberName.value();
    return module.setPlacement(changed);
}
