#include "workbench/sections/section_editing.h"

#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "frame/starters.h"
#include "platform/exclusive_change.h"
#include "platform/window/message_box.h"

namespace {

constexpr int newSizeWord = 796;
constexpr int changedWord = 9114;

/// The first row that `before` has not.
int newRow(const Vor_ProfValuesTable& before, const Vor_ProfValuesTable& now) {
    int row = 0;
    while (before.rows.isIndex(row) && before.rows[row] == now.rows[row]) ++row;
    return row;
}

/// Adds the size in `row` to the table as another program has written it meanwhile. False when that
/// table has other columns or the size already.
bool addToNewer(Vor_ProfValuesTable& table, int row, Vor_String& message) {
    Vor_ProfValuesTable newer;
    if (!newer.readFromFile(table.tableName, &message)) return false;
    const Vor_StringArray size = table.rows[row];
    int found = 0;
    if (newer.columnNames != table.columnNames || newer.findSysName(size[0], found)) {
        message = dialString(changedWord);
        message.replaceSubString("%1", table.tableName);
        return false;
    }
    newer.rows.append(size);
    table = newer;
    return true;
}

bool write(Vor_ProfValuesTable& table, const Vor_ProfValuesTable& before,
           const std::optional<files::Stamp>& stamp, Vor_String& message) {
    std::string error;
    const auto change =
        files::ExclusiveChange::take(Vor_ProfValuesTable::filePath(table.tableName), error);
    message = error;
    if (!change) return false;
    if (change->stamp() != stamp && !addToNewer(table, newRow(before, table), message))
        return false;
    return table.writeToFile(table.tableName, &message);
}

/// What stands in the way of writing may be removed meanwhile, so that nothing is typed again.
bool keep(Vor_ProfValuesTable& table, const Vor_ProfValuesTable& before,
          const std::optional<files::Stamp>& stamp) {
    Vor_String message;
    for (;;) {
        Vor_ProfValuesTable written = table;
        if (write(written, before, stamp, message)) {
            table = written;
            return table.setToGlobals(&gSectionTables) == Acad::eOk;
        }
        if (showMessage({dialString(newSizeWord).str(), message.str(), MessageIcon::exclamation,
                         MessageButtons::retryCancel}) != IDRETRY)
            return false;
    }
}

}  // namespace

bool editSectionLibrary(const Vor_String& section) {
    DlgEditLibData library;
    library.readCatalogue();  // the dialog tells why it cannot be read
    return StartDlgEditLibSections(library, section);
}

std::optional<Vor_String> addSectionSize(const Vor_String& pattern) {
    Vor_ProfValuesTable table;
    Vor_String message;
    const Vor_String name = getSubstrBefore(pattern, "-");
    const auto stamp = files::stampOf(Vor_ProfValuesTable::filePath(name));
    if (!table.readFromFile(name, &message)) {
        showWarning(dialString(newSizeWord), message);
        return std::nullopt;
    }
    const Vor_ProfValuesTable before = table;
    int row = 0;
    table.findSysName(getSubstrAfter(pattern, "-"), row);
    if (!StartDlgEditLibSimple(pattern, table, row) || row < 0) return std::nullopt;
    const Vor_String size = table.rows[newRow(before, table)][0];
    if (!keep(table, before, stamp)) return std::nullopt;
    return table.tableName + "-" + size;
}
