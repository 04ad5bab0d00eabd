// One kind of piece in a bill: what it is, what it is made of and how many there are of it.
#pragma once

#include <optional>

#include "core_api/text/vor_string.h"
#include "platform/export.h"

/// In the order in which bills list them.
enum class BillPartKind { plate, profile, bolt };

struct Vor_BillPart {
    BillPartKind kind = BillPartKind::plate;
    Vor_String name;      ///< what the piece is called where it comes from
    Vor_String section;   ///< "IPE-200" of a profile, "PL 10" of a plate, "M20" of a bolt
    Vor_String material;  ///< steel grade, or the property class of a bolt
    // Millimetres; 0 for what is not known.
    double length = 0;           ///< of a bolt: under its head
    double width = 0;            ///< of a plate
    double thickness = 0;        ///< of a plate
    double diameter = 0;         ///< of a bolt
    std::optional<double> mass;  ///< kilograms of one piece
    long long count = 1;
};

/// Whether pieces of both are the same in a bill, whatever they are called.
VORMANT_API bool isSamePiece(const Vor_BillPart& a, const Vor_BillPart& b);
/// Below 0, 0 or above 0 in the order of bills: by kind, section, material, then from the longest.
VORMANT_API int comparePieces(const Vor_BillPart& a, const Vor_BillPart& b);
