// A bill made of pieces: equal ones are counted together, groups and the whole are summed up.
#pragma once

#include <vector>

#include "bill/bill_fields.h"
#include "bill/vor_bill.h"

enum class BillGrouping { none, kind, section, material };

/// "none", "kind", "section", "material"; letter case aside.
VORMANT_API std::optional<BillGrouping> billGroupingOfCode(std::string_view code);

struct VORMANT_API PartBillOptions {
    Vor_String title;
    std::vector<BillField> fields = {BillField::position, BillField::name,     BillField::kind,
                                     BillField::section,  BillField::material, BillField::length,
                                     BillField::width,    BillField::count,    BillField::mass,
                                     BillField::totalMass};
    BillGrouping grouping = BillGrouping::kind;
};

/// Positions count from 1 in the order of the rows. Lengths are whole numbers unless one of them is
/// none. A mass that is not known leaves its cell, and the sums leave it out.
VORMANT_API Vor_Bill billFromParts(std::vector<Vor_BillPart> parts, const PartBillOptions& options);
