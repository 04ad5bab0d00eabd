#include "mapping/tw_map_type.h"

#include <array>
#include <cstddef>

namespace {

struct MapTypeRow {
    std::string_view name;
    TwValueType valueType;
    bool macroLevel;
};

// In the order of the codes, from 1.
constexpr std::array<MapTypeRow, 21> rows{{
    {"Distance", TwValueType::Double, false},
    {"GenVar", TwValueType::Double, true},
    {"CutOffset", TwValueType::Double, false},
    {"CutPolyOffset", TwValueType::Double, false},
    {"CutLengthOffset", TwValueType::Double, false},
    {"CutCenterOffset", TwValueType::Double, false},
    {"CutInsideOffset", TwValueType::Double, false},
    {"CutOutsideOffset", TwValueType::Double, false},
    {"CutChamferOffset1", TwValueType::Double, false},
    {"CutChamferOffset2", TwValueType::Double, false},
    {"CutRadius", TwValueType::Double, false},
    {"PrPlName", TwValueType::String, true},
    {"PrPlMaterial", TwValueType::String, true},
    {"OwnedMemberName", TwValueType::String, false},
    {"MemberSectionSize", TwValueType::Double, true},
    {"PatternNrBolts1", TwValueType::String, false},
    {"PatternNrBolts2", TwValueType::String, false},
    {"PatternReverseStart1", TwValueType::Int, false},
    {"PatternReverseStart2", TwValueType::Int, false},
    {"BoltsDiameter", TwValueType::Double, false},
    {"BoltsHoleOffset", TwValueType::Double, false},
}};

constexpr std::array<int, 21> prefixOrder{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11,
                                          16, 17, 18, 19, 12, 13, 14, 15, 20, 21};

const MapTypeRow* rowOf(TwMapType kind) {
    const auto code = static_cast<std::size_t>(kind);
    return code >= 1 && code <= rows.size() ? &rows[code - 1] : nullptr;
}

}  // namespace

std::string_view mapTypeName(TwMapType kind) {
    const MapTypeRow* row = rowOf(kind);
    return row ? row->name : std::string_view();
}

std::optional<TwValueType> mapTypeValueType(TwMapType kind) {
    const MapTypeRow* row = rowOf(kind);
    return row ? std::optional(row->valueType) : std::nullopt;
}

TwMapType mapTypeFromPrefix(std::string_view text) {
    for (const int code : prefixOrder)
        if (text.starts_with(rows[static_cast<std::size_t>(code - 1)].name))
            return static_cast<TwMapType>(code);
    return TwMapType::none;
}

bool isMacroLevel(TwMapType kind) {
    const MapTypeRow* row = rowOf(kind);
    return row && row->macroLevel;
}
