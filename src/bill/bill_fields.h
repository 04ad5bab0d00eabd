// What the columns of a bill can hold, and what they are called.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "bill/bill_part.h"
#include "core_api/settings.h"

enum class BillField {
    position,
    name,
    kind,
    section,
    material,
    length,
    width,
    thickness,
    count,
    mass,
    totalMass,
};
inline constexpr int billFieldCount = 11;

/// As programs and scripts write it: "totalMass".
VORMANT_API std::string_view billFieldCode(BillField field);
/// Letter case aside.
VORMANT_API std::optional<BillField> billFieldOfCode(std::string_view code);
/// The heading in the working language: "Total mass (kg)".
VORMANT_API Vor_String billFieldName(BillField field);
/// The field that a heading means: its code or its name in any language, with or without its unit.
VORMANT_API std::optional<BillField> billFieldOfHeading(std::string_view heading);

/// "Plate" in the working language.
VORMANT_API Vor_String billPartKindName(BillPartKind kind);
