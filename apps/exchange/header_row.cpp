// The words of column headers as a row of their own.
#include "exchange/sheet_writing.h"
#include "spread/control/document.h"

namespace exchange {

std::unique_ptr<control::Grid> withHeaderRow(const control::Grid& grid) {
    const auto& words = grid.sides().cols.texts;
    if (words.empty() || !grid.sides().columnHeaders || grid.rows() >= formula::maxRows)
        return nullptr;
    std::string error;
    auto document = control::readDocument(control::writeDocument(grid), "sheet", error);
    if (!document) return nullptr;
    auto copy = std::make_unique<control::Grid>();
    copy->adopt(std::move(document));
    copy->setRows(copy->rows() + 1);
    copy->insertRows(1, 1);
    for (const auto& [col, word] : words) {
        const control::CellFormat header = grid.format(col, control::headerIndex);
        copy->changeFormats({col, 1, col, 1}, [&](control::CellFormat& format) {
            format = header;
            format.type = control::editType(0);
        });
        copy->setData(col, 1, word);
    }
    return copy;
}

}  // namespace exchange
