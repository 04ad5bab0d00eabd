// The rows of stock and purchase files. No cell is lost: rows that can be written come back as they
// were, and their text holds all that the file held, line ends aside.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "cutstock/stock_files.h"

namespace {

bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

bool holdsLineEnd(const cutstock::Rows& rows) {
    for (const Vor_StringArray& row : rows)
        for (const Vor_String& cell : row)
            if (std::any_of(cell.view().begin(), cell.view().end(), isLineEnd)) return true;
    return false;
}

std::string withoutLineEnds(std::string_view text) {
    std::string rest;
    std::remove_copy_if(text.begin(), text.end(), std::back_inserter(rest), isLineEnd);
    return rest;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const cutstock::Rows rows = cutstock::rowsOfText(text);
    const std::string written = cutstock::textOfRows(rows);
    if (withoutLineEnds(written) != withoutLineEnds(text)) std::abort();
    if (!holdsLineEnd(rows) && cutstock::rowsOfText(written) != rows) std::abort();
    return 0;
}
