#include "mapping/module_group_access.h"

#include <array>
#include <optional>

#include "core_api/text/text_helpers.h"
#include "mapping/module_values.h"

namespace {

/// In the order of TwCutOffsetType.
constexpr std::array<std::string_view, cutOffsetCount> cutSuffixes{
    ".Cut",        ".CutPoly",  ".CutLength", ".CutCenter", ".CutInside",
    ".CutOutside", ".Chamfer1", ".Chamfer2",  ".CutRadius"};

std::optional<TwCutOffsetType> cutSuffixOf(const Vor_String& name) {
    for (int i = 0; i < cutOffsetCount; ++i)
        if (name.endsWith(cutSuffixes[static_cast<size_t>(i)]))
            return static_cast<TwCutOffsetType>(i);
    return std::nullopt;
}

ErrorStatus getSetGenVar(const Vor_String& name, Vor_Macro* macro, Vor_String& value, bool get) {
    const Vor_String general = Vor_String("gen_") + name.getSubStringAt(4);
    if (!macro || !macro->getGeneralVariables().contains(general)) return Acad::eInvalidInput;
    if (!get) return macro->setGeneralVariable(general, textToDouble(value));
    value = Vor_String(macro->generalVariableValue(general).value_or(0), 4);
    return Acad::eOk;
}

/// Section or material of a named placement; nothing when the module has no such placement.
std::optional<ErrorStatus> getPlacementText(const ModuleAccess& access, const Vor_String& name,
                                            const Vor_String& object, Vor_String& value) {
    const bool wantsName = name.endsWith(".Name");
    if (!wantsName && !name.endsWith(".Material")) return std::nullopt;
    const Vor_PrPl* placement = nullptr;
    if (getNamedPrpl(&access.module, object, placement) != Acad::eOk) return std::nullopt;
    return wantsName ? getSectionName(placement, value, access.transaction)
                     : getMaterial(placement, value, access.transaction);
}

}  // namespace

ErrorStatus getSetModuleGroupVar(const Vor_String& name, TwValueType type, Vor_Macro* macro,
                                 Vor_Module* module, MacroData* macroData, Vor_String& value,
                                 bool get, AcTransaction* transaction) {
    if (!module || !macroData) return Acad::eInvalidInput;
    MacroTabData* tab = findTabOf(*macroData, *module);
    if (!tab) return Acad::eInvalidInput;
    const ModuleAccess access{*module, *tab, transaction, get};
    const Vor_String object = getSubstrBefore(name, ".", true);
    const bool numeric = isNumeric(type);

    if (numeric && name.beginsWith("gen.")) return getSetGenVar(name, macro, value, get);
    if (!numeric && get)
        if (const auto status = getPlacementText(access, name, object, value)) return *status;
    if (numeric) {
        if (const auto offset = cutSuffixOf(name))
            return getSetCutOffset(access, object, *offset, value);
        if (name.endsWith(".Diameter")) return getSetBoltField(access, BoltField::diameter, value);
        if (name.endsWith(".HoleOffset"))
            return getSetBoltField(access, BoltField::holeOffset, value);
    }
    const bool firstCount = name.endsWith(".NrBolts1");
    if (firstCount || name.endsWith(".NrBolts2"))
        return getSetNrBolts(tab, object, value, get, firstCount);
    const bool firstStart = name.endsWith(".ReverseStart1");
    if (numeric && (firstStart || name.endsWith(".ReverseStart2")))
        return getSetReverseStart(access, object, firstStart, value);
    if (!numeric)
        return name.endsWith(".MemberName") ? getSetMemberName(access, object, value)
                                            : Acad::eInvalidInput;
    return getSetDistance(access, name, value);
}
