#include "sections/section_editing.h"

#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "frame/starters.h"
#include "platform/window/message_box.h"

namespace {

constexpr int newSizeWord = 796;

/// The first row that `before` has not.
int newRow(const Vor_ProfValuesTable& before, const Vor_ProfValuesTable& now) {
    int row = 0;
    while (before.rows.isIndex(row) && before.rows[row] == now.rows[row]) ++row;
    return row;
}

/// What stands in the way of writing may be removed meanwhile, so that nothing is typed again.
bool keep(const Vor_ProfValuesTable& table) {
    Vor_String message;
    while (!table.writeToFile(table.tableName, &message))
        if (showMessage({dialString(newSizeWord).str(), message.str(), MessageIcon::exclamation,
                         MessageButtons::retryCancel}) != IDRETRY)
            return false;
    return table.setToGlobals(&gSectionTables) == Acad::eOk;
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
    if (!table.readFromFile(getSubstrBefore(pattern, "-"), &message)) {
        showWarning(dialString(newSizeWord), message);
        return std::nullopt;
    }
    const Vor_ProfValuesTable before = table;
    int row = 0;
    table.findSysName(getSubstrAfter(pattern, "-"), row);
    if (!StartDlgEditLibSimple(pattern, table, row) || row < 0 || !keep(table)) return std::nullopt;
    return table.tableName + "-" + table.rows[newRow(before, table)][0];
}
