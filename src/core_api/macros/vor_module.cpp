#include "core_api/macros/vor_module.h"

#include <utility>

#include "core_api/macros/named_items.h"

namespace {

/// Every value that the type has is in range, every other is 0.
bool areCutOffsetsGood(const CutConstraint& cut) {
    if (AcArray<TwCutOffsetType> known; getCutOffsets(cut.type, known) != Acad::eOk) return false;
    for (int number = 0; number < cutOffsetCount; ++number) {
        const auto offset = static_cast<TwCutOffsetType>(number);
        const double value = cut.offsets[static_cast<size_t>(number)];
        const bool good =
            hasCutOffset(cut.type, offset) ? isCutOffsetInRange(offset, value) : value == 0;
        if (!good) return false;
    }
    return true;
}

/// `add` adds to `items`, whose old ones come back when it refuses one.
template <class Item, class Add>
ErrorStatus replaceAll(Vor_Array<Item>& items, const Vor_Array<Item>& others, Add add) {
    Vor_Array<Item> before = std::exchange(items, {});
    for (const Item& each : others) {
        if (add(each) == Acad::eOk) continue;
        items = std::move(before);
        return Acad::eInvalidInput;
    }
    return Acad::eOk;
}

}  // namespace

ErrorStatus Vor_Module::setGroupName(std::string_view group) {
    if (!group.empty() && !isMacroName(group)) return Acad::eInvalidInput;
    m_groupName = group;
    return Acad::eOk;
}

ErrorStatus Vor_Module::addVariable(const ConstraintVariable& variable) {
    if (!isFreeName(m_variables, variable.name)) return Acad::eInvalidInput;
    if (!isMacroNumber(variable.value)) return Acad::eInvalidInput;
    m_variables.append(variable);
    return Acad::eOk;
}

ErrorStatus Vor_Module::addCut(const CutConstraint& cut) {
    if (!isFreeName(m_cuts, cut.name)) return Acad::eInvalidInput;
    if (!areCutOffsetsGood(cut)) return Acad::eInvalidInput;
    m_cuts.append(cut);
    return Acad::eOk;
}

const ConstraintVariable* Vor_Module::findVariable(std::string_view name) const {
    return findNamed(m_variables, name);
}

const CutConstraint* Vor_Module::findCut(std::string_view name) const {
    return findNamed(m_cuts, name);
}

ErrorStatus Vor_Module::setVariable(std::string_view name, double value) {
    ConstraintVariable* variable = findNamed(m_variables, name);
    if (!variable || !isMacroNumber(value)) return Acad::eInvalidInput;
    variable->value = value;
    return Acad::eOk;
}

ErrorStatus Vor_Module::setVariable(const ConstraintVariable& variable) {
    ConstraintVariable* old = findNamed(m_variables, variable.name);
    if (!old || !isMacroNumber(variable.value)) return Acad::eInvalidInput;
    Vor_String name = old->name;  // as it was spelt when it was added
    *old = variable;
    old->name = std::move(name);
    return Acad::eOk;
}

ErrorStatus Vor_Module::setVariables(Vor_Array<ConstraintVariable> variables) {
    return replaceAll(m_variables, variables,
                      [this](const auto& each) { return addVariable(each); });
}

ErrorStatus Vor_Module::setCuts(Vor_Array<CutConstraint> cuts) {
    return replaceAll(m_cuts, cuts, [this](const auto& each) { return addCut(each); });
}

ErrorStatus Vor_Module::setCutOffset(std::string_view name, TwCutOffsetType offset, double value) {
    CutConstraint* cut = findNamed(m_cuts, name);
    if (!cut || !hasCutOffset(cut->type, offset)) return Acad::eInvalidInput;
    if (!isCutOffsetInRange(offset, value)) return Acad::eInvalidInput;
    cut->offsets[static_cast<size_t>(offset)] = value;
    return Acad::eOk;
}

ErrorStatus Vor_Module::setFixed(std::string_view name, bool fixed) {
    ConstraintVariable* variable = findNamed(m_variables, name);
    if (!variable || variable->flex == Vor_FlexState::none) return Acad::eInvalidInput;
    variable->flex = fixed ? Vor_FlexState::fixed : Vor_FlexState::flexible;
    return Acad::eOk;
}

bool Vor_Module::operator==(const Vor_Module& other) const {
    return type() == other.type() && m_name == other.m_name && m_groupName == other.m_groupName &&
           m_variables == other.m_variables && m_cuts == other.m_cuts && hasSameContent(other);
}

Vor_PlainModule::Vor_PlainModule(std::string_view name, Vor_ModuleType type)
    : Vor_Module(name), m_type(type) {
    const bool isPlain = type == Vor_ModuleType::plate || type == Vor_ModuleType::weld;
    if (!isPlain) m_type = Vor_ModuleType::other;
}

std::unique_ptr<Vor_Module> Vor_PlainModule::clone() const {
    return std::make_unique<Vor_PlainModule>(*this);
}
