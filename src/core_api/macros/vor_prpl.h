// A profile placement: one member with its section and material. A macro stands on base profiles
// (the beams and columns it connects) and its profile modules own named placements.
#pragma once

#include <string_view>

#include "core_api/text/vor_string.h"
#include "platform/host/error_status.h"
#include "platform/host/transaction.h"

struct Vor_PrPl {
    Vor_String name;         ///< unique in its module; empty for a base profile
    Vor_String sectionName;  ///< full section name, "IPE-200"
    Vor_String material;     ///< steel grade, "S355"
    Vor_String memberName;   ///< the member's name in bills, "Brace"

    bool operator==(const Vor_PrPl&) const = default;
};

/// isMacroText holds for section, material and member name.
VORMANT_API bool arePlacementTextsGood(const Vor_PrPl& placement);

/// The full section name of a placement. eInvalidInput, with `value` as it was, without a
/// placement, when none is set yet, or inside a transaction that is over (null: outside of any).
VORMANT_API ErrorStatus getSectionName(const Vor_PrPl* profile, Vor_String& value,
                                       AcTransaction* transaction);
/// The same for the material.
VORMANT_API ErrorStatus getMaterial(const Vor_PrPl* profile, Vor_String& value,
                                    AcTransaction* transaction);
