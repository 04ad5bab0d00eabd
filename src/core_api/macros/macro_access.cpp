#include "core_api/macros/macro_access.h"

#include "core_api/macros/macro_limits.h"

namespace {

constexpr int distanceDecimals = 8;

bool isOver(const AcTransaction* transaction) {
    return transaction && !transaction->isActive();
}

}  // namespace

ErrorStatus getModNamesOfGroup(const Vor_Macro* macro, std::string_view group,
                               Vor_StringArray& names) {
    if (!macro) return Acad::eInvalidInput;
    Vor_StringArray found;
    if (!group.empty()) {
        for (int number = 0; number < macro->moduleCount(); ++number) {
            const Vor_Module& module = macro->module(number);
            if (module.key().equal(group)) found.append(module.name());
        }
        if (found.isEmpty()) {
            const Vor_Module* module = macro->findModule(group);
            if (!module) return Acad::eInvalidInput;
            found.append(module->name());
        }
    }
    names = std::move(found);
    return Acad::eOk;
}

ErrorStatus openModule(Vor_Macro* macro, std::string_view name, Vor_Module*& module, int index) {
    Vor_Module* found = macro && index >= 0 ? macro->findModuleWrite(name) : nullptr;
    if (!found) return Acad::eInvalidInput;
    module = found;
    return Acad::eOk;
}

ErrorStatus getDialogVariables(const Vor_Module* module, Vor_StringArray& names,
                               AcArray<bool>& inDialog, AcArray<bool>& editable) {
    if (!module) return Acad::eInvalidInput;
    names.clear();
    inDialog.removeAll();
    editable.removeAll();
    for (const ConstraintVariable& variable : module->variables()) {
        names.append(variable.name);
        inDialog.append(variable.inDialog);
        editable.append(variable.isEditable);
    }
    return Acad::eOk;
}

ErrorStatus getSetConstrVarValue(Vor_Module* module, std::string_view name, Vor_String& value,
                                 bool get) {
    const ConstraintVariable* variable = module ? module->findVariable(name) : nullptr;
    if (!variable) return Acad::eInvalidInput;
    if (get) {
        value = Vor_String(variable->value, distanceDecimals);
        return Acad::eOk;
    }
    const std::optional<double> number = macroNumber(value);
    return number ? module->setVariable(name, *number) : Acad::eInvalidInput;
}

ErrorStatus getCutConstraints(const Vor_Module* module, Vor_StringArray& names,
                              AcArray<TwCutType>& types) {
    if (!module) return Acad::eInvalidInput;
    names.clear();
    types.removeAll();
    for (const CutConstraint& cut : module->cuts()) {
        names.append(cut.name);
        types.append(cut.type);
    }
    return Acad::eOk;
}

ErrorStatus getCutConstraint(const Vor_Module* module, std::string_view name, CutConstraint& cut) {
    const CutConstraint* found = module ? module->findCut(name) : nullptr;
    if (!found) return Acad::eInvalidInput;
    cut = *found;
    return Acad::eOk;
}

ErrorStatus getSetCutValue(Vor_Module* module, CutConstraint& cut, TwCutOffsetType offset,
                           double& value, bool get) {
    const CutConstraint* found = module ? module->findCut(cut.name) : nullptr;
    if (!found || !hasCutOffset(found->type, offset)) return Acad::eInvalidInput;
    const auto place = static_cast<size_t>(offset);
    if (get) {
        value = found->offsets[place];
        return Acad::eOk;
    }
    const ErrorStatus status = module->setCutOffset(cut.name, offset, value);
    if (status == Acad::eOk) cut = *found;
    return status;
}

ErrorStatus findPattern(const Vor_BoltModule* module, std::string_view name, AcDbObjectId& pattern,
                        AcTransaction* transaction) {
    if (!module || isOver(transaction)) return Acad::eInvalidInput;
    const Vor_BoltPattern* found = module->findPattern(name);
    if (!found) return Acad::eInvalidInput;
    pattern = found->id;
    return Acad::eOk;
}

ErrorStatus getSetNrBolts(MacroTabData* tab, std::string_view name, Vor_String& value, bool get,
                          bool first) {
    int index = 0;
    if (!tab || !tab->findPatternWithName(name, index)) return Acad::eInvalidInput;
    MacroPatternProps& pattern = *tab->getPattern(index);
    if (!get) {
        const std::optional<int> count = macroBoltCount(value);
        return count ? pattern.setNrBolts(first, *count) : Acad::eInvalidInput;
    }
    if (!first && !pattern.hasSecondDirection()) return Acad::eInvalidInput;
    value = Vor_String(pattern.nrBolts(first), 0);
    return Acad::eOk;
}

ErrorStatus getSetBoltPatternReverses(Vor_BoltModule* module, AcDbObjectId pattern, bool first,
                                      bool get, bool& flag, AcTransaction* transaction) {
    if (!module || isOver(transaction)) return Acad::eInvalidInput;
    if (!get) return module->setReverseStart(pattern, first, flag);
    const Vor_BoltPattern* found = module->getPattern(pattern);
    if (!found || (!first && !found->hasSecondDirection())) return Acad::eInvalidInput;
    flag = !(first ? found->reverseStart1 : found->reverseStart2);
    return Acad::eOk;
}

ErrorStatus getNamedPrpl(const Vor_Module* module, std::string_view name,
                         const Vor_PrPl*& placement) {
    const Vor_ProfModule* profiles = asProfModule(module);
    const Vor_PrPl* found = profiles ? profiles->findPlacement(name) : nullptr;
    if (!found) return Acad::eInvalidInput;
    placement = found;
    return Acad::eOk;
}
