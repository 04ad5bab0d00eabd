#include "workbench/sheet/sheet_file.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "spread/editor/csv_import.h"
#include "spread/sheet_preparation.h"

namespace {

// Room to start with; more comes with rows that are inserted, and with what is pasted.
constexpr int newCols = 26;
constexpr int newRows = 200;
constexpr int goesDown = 2;  // Enter, after typing

bool endsWith(std::string_view path, std::string_view ending) {
    return encodings::lowered(std::string(path)).ends_with(ending);
}

void prepare(SheetSpread& spread, bool isNew) {
    prepareSheet(spread, {}, isNew);
    control::ViewSettings& view = spread.grid().view();
    view.editEnterAction = goesDown;
    view.noteIndicators = true;
    spread.grid().setActive(1, 1);
    spread.editor().clearHistory();
    spread.editor().markSaved();
}

}  // namespace

bool isCsvPath(std::string_view path) {
    return endsWith(path, ".csv") || endsWith(path, ".txt");
}

bool isSheetPath(std::string_view path) {
    return endsWith(path, ".tws") || endsWith(path, ".sss") || isCsvPath(path);
}

void SheetFile::startNew() {
    prepare(m_spread, true);
    control::Grid& grid = m_spread.grid();
    grid.setType({1, 1, -1, -1}, control::CellType{});
    grid.setCols(newCols);
    grid.setRows(newRows);
    m_spread.editor().clearHistory();
    m_spread.editor().markSaved();
}

bool SheetFile::open(const std::string& path, std::string& error) {
    if (isCsvPath(path)) return import(path, error);
    OpenFile file;
    file.opening(path);
    if (!m_spread.loadFromFile(path)) {
        error = m_spread.lastError();
        return false;
    }
    m_spread.grid().recalculate();  // documents written by hand have no results, or old ones
    m_file = std::move(file);
    m_isImported = false;
    prepare(m_spread, false);
    return true;
}

bool SheetFile::import(const std::string& path, std::string& error) {
    const auto bytes = files::readWhole(path, error);
    if (!bytes) return false;
    if (!editor::importCsv(m_spread.grid(), *bytes, {}, error)) {
        error = path + ": " + error;
        return false;
    }
    m_file.opening({});
    m_isImported = true;
    prepare(m_spread, false);
    return true;
}

OpenFile::Saved SheetFile::save(const std::string& path, std::string& error) {
    const auto write = [&](std::string& why) {
        if (saveSheet(m_spread, path)) return true;
        why = m_spread.lastError();
        return false;
    };
    const OpenFile::Saved saved = m_file.save(path, write, error);
    if (saved != OpenFile::Saved::yes) return saved;
    m_isImported = false;
    m_spread.editor().markSaved();
    return saved;
}

bool SheetFile::isStandard() const {
    return endsWith(path(), ".tws");
}
