// Section tables in JSON: every text gives a table or a message with its line, and what is exported
// of a table comes back as the same table.
#include <cstdint>

#include "cli/sections/imported_table.h"
#include "cli/sections/section_json.h"
#include "fed_lines.h"

namespace {

std::optional<cli::ImportedTable> tableOf(std::string_view text, size_t pieceSize) {
    auto source = feedLines(text, pieceSize);
    cli::ImportProblem problem;
    auto read = cli::tableFromJson(source, problem);
    require(read.has_value() == problem.message.empty());
    if (!read) return read;
    read->table.tableName = "T";
    require(static_cast<int>(read->lines.size()) == read->table.rows.length() + 2);
    for (const Vor_StringArray& row : read->table.rows)
        require(row.length() == read->table.columnNames.length());
    return read;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const Feeding feeding(data[0]);
    const std::string text = feeding.lines({reinterpret_cast<const char*>(data) + 1, size - 1});
    const auto first = tableOf(text, feeding.pieceSize);
    if (!first) return 0;
    const std::string exported = cli::tableAsJson(first->table);
    const auto second = tableOf(exported, feeding.pieceSize);
    require(second && cli::tableAsJson(second->table) == exported);
    return 0;
}
