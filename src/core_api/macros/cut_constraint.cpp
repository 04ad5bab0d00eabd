#include "core_api/macros/cut_constraint.h"

#include <cstdint>

#include "core_api/macros/macro_limits.h"

namespace {

struct OffsetRow {
    const char* name;
    bool isLength;  // cannot be below 0
};

constexpr std::array<OffsetRow, cutOffsetCount> offsetRows{{
    {"offset", false},
    {"polyOffset", false},
    {"lengthOffset", true},
    {"centerOffset", false},
    {"insideOffset", false},
    {"outsideOffset", false},
    {"chamfer1", true},
    {"chamfer2", true},
    {"radius", true},
}};

constexpr std::uint32_t bit(TwCutOffsetType offset) {
    return 1U << offset;
}

struct TypeRow {
    const char* name;
    std::uint32_t offsets;
};

constexpr std::array<TypeRow, cutTypeCount> typeRows{{
    {"plane", bit(cutOffset)},
    {"outline", bit(cutOffset) | bit(cutPolyOffset)},
    {"notch", bit(cutOffset) | bit(cutLengthOffset) | bit(cutRadius)},
    {"slot", bit(cutLengthOffset) | bit(cutCenterOffset) | bit(cutRadius)},
    {"fit", bit(cutInsideOffset) | bit(cutOutsideOffset)},
    {"chamfer", bit(cutChamfer1) | bit(cutChamfer2)},
    {"round", bit(cutRadius)},
}};

bool isOffsetType(TwCutOffsetType offset) {
    const int number = static_cast<int>(offset);
    return number >= 0 && number < cutOffsetCount;
}

/// Null for a type that does not exist.
const TypeRow* rowOf(TwCutType type) {
    const int number = static_cast<int>(type);
    if (number < 0 || number >= cutTypeCount) return nullptr;
    return &typeRows[static_cast<size_t>(number)];
}

}  // namespace

bool hasCutOffset(TwCutType type, TwCutOffsetType offset) {
    const TypeRow* row = rowOf(type);
    return row && isOffsetType(offset) && (row->offsets & bit(offset)) != 0;
}

ErrorStatus getCutOffsets(TwCutType type, AcArray<TwCutOffsetType>& offsets) {
    if (!rowOf(type)) return Acad::eInvalidInput;
    offsets.removeAll();
    for (int number = 0; number < cutOffsetCount; ++number) {
        const auto offset = static_cast<TwCutOffsetType>(number);
        if (hasCutOffset(type, offset)) offsets.append(offset);
    }
    return Acad::eOk;
}

bool isCutOffsetInRange(TwCutOffsetType offset, double value) {
    if (!isOffsetType(offset) || !isMacroNumber(value)) return false;
    return value >= 0 || !offsetRows[static_cast<size_t>(offset)].isLength;
}

const char* cutTypeName(TwCutType type) {
    const TypeRow* row = rowOf(type);
    return row ? row->name : "";
}

bool cutTypeFromName(std::string_view name, TwCutType& type) {
    for (int number = 0; number < cutTypeCount; ++number) {
        if (name != typeRows[static_cast<size_t>(number)].name) continue;
        type = static_cast<TwCutType>(number);
        return true;
    }
    return false;
}

const char* cutOffsetName(TwCutOffsetType offset) {
    return isOffsetType(offset) ? offsetRows[static_cast<size_t>(offset)].name : "";
}

bool cutOffsetFromName(std::string_view name, TwCutOffsetType& offset) {
    for (int number = 0; number < cutOffsetCount; ++number) {
        if (name != offsetRows[static_cast<size_t>(number)].name) continue;
        offset = static_cast<TwCutOffsetType>(number);
        return true;
    }
    return false;
}
