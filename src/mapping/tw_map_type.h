// The kinds of values that a mapping can reach inside a macro.
#pragma once

#include <optional>
#include <string_view>

#include "core_api/macros/cut_constraint.h"
#include "mapping/tw_var_cell.h"
#include "platform/export.h"

enum class TwMapType : int {
    none = 0,
    distance,
    genVar,
    cutOffset,
    cutPolyOffset,
    cutLengthOffset,
    cutCenterOffset,
    cutInsideOffset,
    cutOutsideOffset,
    cutChamferOffset1,
    cutChamferOffset2,
    cutRadius,
    prPlName,
    prPlMaterial,
    ownedMemberName,
    memberSectionSize,
    patternNrBolts1,
    patternNrBolts2,
    patternReverseStart1,
    patternReverseStart2,
    boltsDiameter,
    boltsHoleOffset,
};

/// The word of a mapping file, "CutPolyOffset"; empty for none.
VORMANT_API std::string_view mapTypeName(TwMapType kind);
/// Nothing for none.
VORMANT_API std::optional<TwValueType> mapTypeValueType(TwMapType kind);
/// The first kind whose word `text` begins with, tried in the order of the mapping file's age:
/// distances, general variables and cuts, then patterns, profiles and bolts.
VORMANT_API TwMapType mapTypeFromPrefix(std::string_view text);

/// Cut kinds are the offset types in their order.
inline bool isCutKind(TwMapType kind) {
    return kind >= TwMapType::cutOffset && kind <= TwMapType::cutRadius;
}
inline TwCutOffsetType cutOffsetTypeOf(TwMapType kind) {
    return static_cast<TwCutOffsetType>(static_cast<int>(kind) -
                                        static_cast<int>(TwMapType::cutOffset));
}
inline TwMapType mapTypeOfCut(TwCutOffsetType offset) {
    return static_cast<TwMapType>(static_cast<int>(TwMapType::cutOffset) + offset);
}
/// Reached through the macro itself, not through one of its modules.
VORMANT_API bool isMacroLevel(TwMapType kind);
