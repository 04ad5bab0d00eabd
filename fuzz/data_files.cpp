// Lists of sizes and look-up tables: lists stay as long as each other, and each row of a table is
// found by its key unless an earlier row has the same one.
#include "standards/data_files.h"

#include <cstdint>

#include "fed_file.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string path = fedFile("data.txt", {reinterpret_cast<const char*>(data), size});
    const auto sizes = readSizeList(path);
    require(sizes && sizes->first.size() == sizes->second.size());
    const auto table = readLookupTable(path);
    if (!table) return 0;
    for (int i = 0; i < table->rows().length(); ++i) {
        const auto& row = table->rows()[i];
        require(!row.isEmpty());
        const int found = table->findRow(row[0]);
        require(found >= 0 && found <= i && table->rows()[found][0].equal(row[0], false));
    }
    return 0;
}
