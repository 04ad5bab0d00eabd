#include "cli/io/text_table.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"

namespace cli {

namespace {

struct Column {
    size_t width = 0;
    bool isNumeric = true;  // every cell that is not empty
};

/// Characters, not bytes.
size_t widthOf(const std::string& utf8) {
    return static_cast<size_t>(
        std::ranges::count_if(utf8, [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

void TextTable::append(std::string& text, std::string_view margin, bool hasHeader) const {
    std::vector<Column> columns;
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const auto& row = m_rows[i];
        columns.resize(std::max(columns.size(), row.size()));
        for (size_t col = 0; col < row.size(); ++col) {
            columns[col].width = std::max(columns[col].width, widthOf(row[col]));
            const bool isText = !row[col].empty() && !isNumber(row[col]);
            if (isText && !(hasHeader && i == 0)) columns[col].isNumeric = false;
        }
    }
    for (const auto& row : m_rows) {
        std::string line(margin);
        for (size_t col = 0; col < row.size(); ++col) {
            const std::string blanks(columns[col].width - widthOf(row[col]), ' ');
            if (col > 0) line += "  ";
            line += columns[col].isNumeric ? blanks + row[col] : row[col] + blanks;
        }
        line.resize(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
}

}  // namespace cli
