// A bill in short, for scripts.
#pragma once

#include <string>

#include "bill/vor_bill.h"

namespace cli {

/// One JSON object: the file, the columns, how many rows and which groups there are, what they come
/// to, and the pieces of which no mass is known.
std::string billSummary(const Vor_Bill& bill, const Vor_String& file);

}  // namespace cli
