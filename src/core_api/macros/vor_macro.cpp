#include "core_api/macros/vor_macro.h"

#include <algorithm>

#include "core_api/macros/named_items.h"

Vor_Macro::Vor_Macro(const Vor_Macro& other)
    : m_generalVariables(other.m_generalVariables), m_standards(other.m_standards) {
    m_modules.reserve(other.m_modules.size());
    for (const auto& module : other.m_modules) m_modules.push_back(module->clone());
}

Vor_Macro& Vor_Macro::operator=(const Vor_Macro& other) {
    if (this != &other) *this = Vor_Macro(other);
    return *this;
}

Vor_StringArray Vor_Macro::getModuleNames() const {
    Vor_StringArray names;
    for (const auto& module : m_modules) names.append(module->name());
    return names;
}

const Vor_Module* Vor_Macro::findModule(std::string_view name) const {
    for (const auto& module : m_modules) {
        if (module->name().equal(name)) return module.get();
    }
    return nullptr;
}

Vor_Module* Vor_Macro::findModuleWrite(std::string_view name) {
    for (const auto& module : m_modules) {
        if (module->name().equal(name)) return module.get();
    }
    return nullptr;
}

ErrorStatus Vor_Macro::addModule(std::unique_ptr<Vor_Module> module) {
    if (!module || moduleCount() >= maxMacroItems) return Acad::eInvalidInput;
    if (!isMacroName(module->name()) || findModule(module->name())) return Acad::eInvalidInput;
    m_modules.push_back(std::move(module));
    return Acad::eOk;
}

Vor_StringArray Vor_Macro::getModuleGroups() const {
    Vor_StringArray groups;
    for (const auto& module : m_modules) {
        if (!groups.contains(module->key())) groups.append(module->key());
    }
    return groups;
}

Vor_StringArray Vor_Macro::getGeneralVariables() const {
    Vor_StringArray names;
    for (const GeneralVariable& variable : m_generalVariables) names.append(variable.name);
    return names;
}

std::optional<double> Vor_Macro::generalVariableValue(std::string_view name) const {
    const GeneralVariable* variable = findNamed(m_generalVariables, name);
    if (!variable) return std::nullopt;
    return variable->value;
}

ErrorStatus Vor_Macro::setGeneralVariable(std::string_view name, double value) {
    GeneralVariable* variable = findNamed(m_generalVariables, name);
    if (!variable || !isMacroNumber(value)) return Acad::eInvalidInput;
    variable->value = value;
    return Acad::eOk;
}

ErrorStatus Vor_Macro::addGeneralVariable(std::string_view name, double value) {
    if (!isFreeName(m_generalVariables, name) || !isMacroNumber(value)) {
        return Acad::eInvalidInput;
    }
    m_generalVariables.append({name, value});
    return Acad::eOk;
}

void Vor_Macro::setStandards(const TabMappingData& standards) {
    m_standards = standards;
    m_standards.setModuleGroups({});
}

bool Vor_Macro::operator==(const Vor_Macro& other) const {
    return m_generalVariables == other.m_generalVariables && m_standards == other.m_standards &&
           std::ranges::equal(m_modules, other.m_modules,
                              [](const auto& a, const auto& b) { return *a == *b; });
}
