// Tables of other programs for bills: one is taken, or refused with a message that names the file.
#include "bills/bill_table.h"

#include <cstdint>

#include "fed_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string path = fedFile("table.csv", {reinterpret_cast<const char*>(data), size});
    std::string error;
    const auto table = bills::readBillTable(path, error);
    if (table.has_value() != error.empty()) std::abort();
    if (table ? table->header.isEmpty() : error.find("table.csv") == error.npos) std::abort();
    return 0;
}
