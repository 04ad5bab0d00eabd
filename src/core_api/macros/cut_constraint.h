// A cut of a module's plate or member, and the offsets that its type has.
#pragma once

#include <array>
#include <string_view>

#include "core_api/text/vor_string.h"
#include "platform/host/ac_array.h"
#include "platform/host/error_status.h"

/// The nine offsets a cut can have, in millimetres. A mapping kind is this number + 3.
enum TwCutOffsetType : int {
    cutOffset = 0,     ///< from the cutting plane, along its normal
    cutPolyOffset,     ///< gap around the outline of the member that cuts
    cutLengthOffset,   ///< length of the cut-out along the member, from 0
    cutCenterOffset,   ///< from the member's centre line
    cutInsideOffset,   ///< gap on the inner side
    cutOutsideOffset,  ///< gap on the outer side
    cutChamfer1,       ///< first leg of a chamfer, from 0
    cutChamfer2,       ///< second leg of a chamfer, from 0
    cutRadius,         ///< radius of a rounded corner, from 0
};
inline constexpr int cutOffsetCount = 9;

/// What a cut does; the numbers are what a dialog's list of cut types counts, from 0.
enum class TwCutType {
    plane,    ///< along a plane: offset
    outline,  ///< along the outline of another member: offset, poly offset
    notch,    ///< a rectangular notch with rounded corner: offset, length offset, radius
    slot,     ///< a slot that another plate passes through: length, centre, radius
    fit,      ///< fitted between two faces: inside, outside
    chamfer,  ///< a cut corner: both chamfers
    round,    ///< a rounded corner: radius
};
inline constexpr int cutTypeCount = 7;

/// One cut by name. A value counts only when the type has that offset; the others stay 0.
struct CutConstraint {
    Vor_String name;
    TwCutType type = TwCutType::plane;
    std::array<double, cutOffsetCount> offsets{};

    bool operator==(const CutConstraint&) const = default;
};

/// The offsets of a cut type in the order of their numbers. eInvalidInput, with `offsets` as they
/// were, for a type that does not exist.
VORMANT_API ErrorStatus getCutOffsets(TwCutType type, AcArray<TwCutOffsetType>& offsets);
VORMANT_API bool hasCutOffset(TwCutType type, TwCutOffsetType offset);

/// True when `value` may be set: finite, within ±1e9, and not below 0 where a length is meant.
VORMANT_API bool isCutOffsetInRange(TwCutOffsetType offset, double value);

/// The word for a type in macro files ("notch"), and back; false for another word.
VORMANT_API const char* cutTypeName(TwCutType type);
VORMANT_API bool cutTypeFromName(std::string_view name, TwCutType& type);
/// The word for an offset in macro files ("offset", "polyOffset", … "radius"), and back.
VORMANT_API const char* cutOffsetName(TwCutOffsetType offset);
VORMANT_API bool cutOffsetFromName(std::string_view name, TwCutOffsetType& offset);
