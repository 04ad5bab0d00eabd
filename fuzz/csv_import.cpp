// Text files imported into a sheet: accepted bytes give a sheet whose document reads back, refused
// ones a reason and the sheet as it was.
#include "spread/editor/csv_import.h"

#include <cstdint>
#include <cstdlib>

#include "spread/control/document.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    control::Grid grid;
    grid.setCols(1);
    grid.setRows(1);
    std::string error;
    if (!editor::importCsv(grid, bytes, {}, error))
        return error.empty() || grid.cols() != 1 ? std::abort(), 1 : 0;
    const std::string document = writeDocument(grid);
    if (!control::readDocument(document, "again", error)) std::abort();
    return 0;
}
