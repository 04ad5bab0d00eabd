#include "core_api/macros/macro_item_kinds.h"

#include <array>

#include "core_api/macros/macro_limits.h"
#include "core_api/macros/vor_prof_module.h"
#include "core_api/text/text_helpers.h"

namespace macro_file {

namespace {

Damage declareVariable(Vor_Module& module, const std::string& name, const Property& property) {
    ConstraintVariable variable;
    variable.name = name;
    if (Damage damage = readNumber(property, variable.value); !damage.empty()) return damage;
    return refusedAs(module.addVariable(variable), nameDamage("the variable", name));
}

Damage takeVariablePart(Vor_Module& module, const std::string& name, const std::string& field,
                        const Property& property) {
    ConstraintVariable variable = *module.findVariable(name);
    Damage damage = unknownKey();
    if (field == "dialog") damage = readFlag(property, variable.inDialog);
    if (field == "editable") damage = readFlag(property, variable.isEditable);
    if (field == "flex") damage = readWord(property, flexWords, variable.flex);
    return damage.empty() ? refusedAs(module.setVariable(variable), outOfRange) : damage;
}

/// "plane, outline, …".
std::string cutTypeList() {
    std::string list;
    for (int number = 0; number < cutTypeCount; ++number) {
        list.append(number == 0 ? "" : ", ").append(cutTypeName(static_cast<TwCutType>(number)));
    }
    return list;
}

Damage declareCut(Vor_Module& module, const std::string& name, const Property& property) {
    CutConstraint cut;
    cut.name = name;
    if (property.type != Property::Type::text) return wrongType("s", "a text");
    if (!cutTypeFromName(property.value, cut.type)) {
        return "this type of cut is not known; write one of " + cutTypeList();
    }
    return refusedAs(module.addCut(cut), nameDamage("the cut", name));
}

Damage takeCutPart(Vor_Module& module, const std::string& name, const std::string& field,
                   const Property& property) {
    TwCutOffsetType offset{};
    if (!cutOffsetFromName(field, offset)) return unknownKey();
    const TwCutType type = module.findCut(name)->type;
    if (!hasCutOffset(type, offset)) {
        return std::string("a cut of type ") + cutTypeName(type) +
               " has no such offset; remove the line or change the type";
    }
    double value = 0;
    if (Damage damage = readNumber(property, value); !damage.empty()) return damage;
    return refusedAs(module.setCutOffset(name, offset, value),
                     "this offset is a length; write 0 or more");
}

Damage declarePattern(Vor_Module& module, const std::string& name, const Property& property) {
    Vor_BoltPattern pattern;
    pattern.name = name;
    if (Damage damage = readWord(property, patternWords, pattern.type); !damage.empty()) {
        return damage;
    }
    return refusedAs(asBoltModule(&module)->addPattern(pattern), nameDamage("the pattern", name));
}

Damage takePatternPart(Vor_Module& module, const std::string& name, const std::string& field,
                       const Property& property) {
    Vor_BoltModule& bolts = *asBoltModule(&module);
    const Vor_BoltPattern& pattern = *bolts.findPattern(name);
    const bool first = field.ends_with('1');
    const bool isCount = field == "count1" || field == "count2";
    if (!isCount && field != "reverse1" && field != "reverse2") return unknownKey();
    if (!first && !pattern.hasSecondDirection()) {
        return "only a grid has a second direction; remove the line or make the pattern a grid";
    }
    if (isCount) {
        if (property.type != Property::Type::whole) return wrongType("i", "a whole number");
        return refusedAs(
            bolts.setNrBolts(pattern.id, first, textToInt(property.value)),
            "a bolt count lies between 0 and " + std::to_string(maxBoltCount) + "; correct it");
    }
    bool reverse = false;
    if (Damage damage = readFlag(property, reverse); !damage.empty()) return damage;
    return refusedAs(bolts.setReverseStart(pattern.id, first, reverse), outOfRange);
}

Damage declarePlacement(Vor_Module& module, const std::string& name, const Property& property) {
    Vor_PrPl placement;
    placement.name = name;
    if (Damage damage = readText(property, placement.sectionName); !damage.empty()) return damage;
    return refusedAs(asProfModule(&module)->addPlacement(placement),
                     nameDamage("the placement", name));
}

Damage takePlacementPart(Vor_Module& module, const std::string& name, const std::string& field,
                         const Property& property) {
    Vor_ProfModule& profiles = *asProfModule(&module);
    Vor_PrPl placement = *profiles.findPlacement(name);
    if (Damage damage = readPlacementText(property, field, placement); !damage.empty()) {
        return damage;
    }
    return refusedAs(profiles.setPlacement(placement), outOfRange);
}

constexpr auto always = [](const Vor_Module&) { return true; };
constexpr auto isBolts = [](const Vor_Module& module) { return asBoltModule(&module) != nullptr; };
constexpr auto isProfiles = [](const Vor_Module& module) {
    return asProfModule(&module) != nullptr;
};

constexpr std::array<ItemKind, 4> itemKinds{{
    {"var", always,
     [](const Vor_Module& module, const std::string& name) {
         return module.findVariable(name) != nullptr;
     },
     declareVariable, takeVariablePart},
    {"cut", always,
     [](const Vor_Module& module, const std::string& name) {
         return module.findCut(name) != nullptr;
     },
     declareCut, takeCutPart},
    {"pattern", isBolts,
     [](const Vor_Module& module, const std::string& name) {
         return asBoltModule(&module)->findPattern(name) != nullptr;
     },
     declarePattern, takePatternPart},
    {"placement", isProfiles,
     [](const Vor_Module& module, const std::string& name) {
         return asProfModule(&module)->findPlacement(name) != nullptr;
     },
     declarePlacement, takePlacementPart},
}};

}  // namespace

const ItemKind* itemKindOf(std::string_view word) {
    for (const ItemKind& kind : itemKinds) {
        if (kind.word == word) return &kind;
    }
    return nullptr;
}

}  // namespace macro_file
