// The pieces that a macro adds to the members it connects: its plates, its own profiles and its
// bolts. The members themselves and the welds are none of them.
//
// A macro's sizes are variables that users name. A plate's are found by their names, letter case
// aside, in any of the four languages: length or height, width, thickness. A module of profiles
// whose section no table has is a plate when it has a thickness. A profile's length, and that of
// the bolts of a module, is the variable called length. What is not found is left open, and so is
// the mass of the piece.
#pragma once

#include <vector>

#include "bill/bill_part.h"
#include "bill/part_mass.h"
#include "core_api/macros/vor_db_macro.h"

/// In the order of the macro's modules; bolts one part a module. A plate without a material of its
/// own has the grade of the general variable "gen_SteelClass" (275: "S275"), else that of the first
/// base profile; a bolt the class of "gen_BoltClass".
VORMANT_API std::vector<Vor_BillPart> partsOfMacro(const Vor_DbMacro& macro,
                                                   const MassPerMetre& massPerMetre);
