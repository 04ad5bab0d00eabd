// Whether a bill has found the sections that it shows.
#pragma once

#include <string>

#include "bill/vor_bill.h"

namespace bills {

/// False, with the reason, when a section of the bill is in no table, but may lie in one that could
/// not be read or listed: the bill would lack its picture and mass. Sections that no table has are
/// the user's own matter.
bool areSectionsRead(const Vor_Bill& bill, std::string& error);

}  // namespace bills
