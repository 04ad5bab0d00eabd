#include "core_api/macros/vor_prof_module.h"

#include "core_api/macros/named_items.h"

std::unique_ptr<Vor_Module> Vor_ProfModule::clone() const {
    return std::make_unique<Vor_ProfModule>(*this);
}

const Vor_PrPl* Vor_ProfModule::findPlacement(std::string_view name) const {
    return findNamed(m_placements, name);
}

ErrorStatus Vor_ProfModule::addPlacement(const Vor_PrPl& placement) {
    if (!isFreeName(m_placements, placement.name) || !arePlacementTextsGood(placement)) {
        return Acad::eInvalidInput;
    }
    m_placements.append(placement);
    return Acad::eOk;
}

ErrorStatus Vor_ProfModule::setPlacement(const Vor_PrPl& placement) {
    Vor_PrPl* old = findNamed(m_placements, placement.name);
    if (!old || !arePlacementTextsGood(placement)) return Acad::eInvalidInput;
    Vor_String name = old->name;  // as it was spelt when it was added
    *old = placement;
    old->name = std::move(name);
    return Acad::eOk;
}

bool Vor_ProfModule::hasSameContent(const Vor_Module& other) const {
    const Vor_ProfModule* profiles = asProfModule(&other);
    return profiles && m_placements == profiles->m_placements;
}

Vor_ProfModule* asProfModule(Vor_Module* module) {
    const bool isOne = module && module->type() == Vor_ModuleType::profile;
    return isOne ? static_cast<Vor_ProfModule*>(module) : nullptr;
}

const Vor_ProfModule* asProfModule(const Vor_Module* module) {
    const bool isOne = module && module->type() == Vor_ModuleType::profile;
    return isOne ? static_cast<const Vor_ProfModule*>(module) : nullptr;
}
