#include "manual/page.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "core_api/text/text_helpers.h"

namespace manual {

std::string read(std::string_view path) {
    std::ifstream file(VORMANT_SOURCE_DIR "/" + std::string(path), std::ios::binary);
    EXPECT_TRUE(file) << path;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::vector<std::vector<std::string>> tableRows(std::string_view page) {
    std::vector<std::vector<std::string>> rows;
    for (const Vor_String& line : splitStringAtSymbol(page, '\n', false)) {
        if (!line.beginsWith("| ") || !line.endsWith("|")) continue;
        const Vor_StringArray cells =
            splitStringAtSymbol(line.view().substr(1, line.str().size() - 2), '|', true);
        auto& row = rows.emplace_back();
        for (const Vor_String& cell : cells) row.push_back(cell.str());
    }
    return rows;
}

std::string code(std::string_view cell) {
    const size_t first = cell.find('`') + 1;
    return std::string(cell.substr(first, cell.find('`', first) - first));
}

}  // namespace manual
