// Tables of other programs: CSV files whose first record names the columns.
#pragma once

#include <optional>
#include <string>

#include "core_api/text/vor_string_array.h"

namespace bills {

struct BillTable {
    Vor_StringArray header;
    Vor_Array<Vor_StringArray> rows;
};

/// UTF-8 with commas. Nothing with "file:line: what is wrong".
std::optional<BillTable> readBillTable(const Vor_String& path, std::string& error);

}  // namespace bills
