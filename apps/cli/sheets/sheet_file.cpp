#include "cli/sheets/sheet_file.h"

#include <filesystem>

#include "cli/io/console.h"
#include "cli/io/typed_paths.h"
#include "exchange/sheet_writing.h"
#include "platform/encodings.h"
#include "platform/files.h"
#include "spread/control/document.h"

namespace cli {

std::optional<SheetFormat> sheetFormat(const std::string& path) {
    const std::string extension =
        encodings::lowered(std::filesystem::path(path).extension().string());
    if (extension == ".csv") return SheetFormat::csv;
    if (extension == ".xlsx") return SheetFormat::xlsx;
    if (extension == ".tws" || extension == ".sss") return SheetFormat::document;
    return std::nullopt;
}

bool loadSheet(const std::string& path, SheetFormat format, control::Grid& grid) {
    if (format == SheetFormat::csv) return sheetFromCsv(path, grid);
    const auto inside = insidePath(path);
    if (!inside) return false;
    std::string error;
    auto document = control::loadDocument(*inside, error);
    if (!document) {
        complainText(error);
        return false;
    }
    grid.restore(std::move(document));
    grid.recalculate();  // a document written or changed by hand has no results, or old ones
    return true;
}

bool saveSheet(const control::Grid& grid, const std::string& path, SheetFormat format) {
    const auto inside = insidePath(path);
    if (!inside) return false;
    std::string error;
    if (format == SheetFormat::document) {
        if (control::saveDocument(grid, *inside, error)) return true;
        complainText(error);
        return false;
    }
    const auto content = format == SheetFormat::csv
                             ? exchange::sheetAsCsv(grid, exchange::CsvTexts::exact, error)
                             : exchange::sheetAsXlsx(grid, error);
    if (!content) {
        complainAt(path, 0, error);
        return false;
    }
    if (files::writeWhole(*inside, *content, error)) return true;
    complainText(error);
    return false;
}

}  // namespace cli
