// The table files behind the page: reading, saving, making, renaming and deleting them. What the
// rest of the program knows of a table follows its file.
#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "platform/host/host.h"
#include "platform/window/message_box.h"
#include "platform/window/text_question.h"
#include "sections/dialogs/section_dialog_words.h"
#include "sections/dialogs/section_picture_control.h"
#include "sections/dialogs/tables_page.h"
#include "sections/section_names.h"

namespace {

int ask(int title, const Vor_String& text, MessageIcon icon, MessageButtons buttons) {
    return showMessage({dialString(title).str(), text.str(), icon, buttons});
}

Vor_String with(int text, const Vor_String& name) {
    Vor_String filled = dialString(text);
    filled.replaceSubString("%1", name);
    return filled;
}

void unregister(const Vor_String& table) {
    int index = -1;
    if (gSectionTables.hasTable(table, index)) gSectionTables.removeTable(index);
}

void removeTableFile(const Vor_String& name) {
    std::string error;
    if (!files::removeFile(Vor_ProfValuesTable::filePath(name), error)) acutPrint(error + "\n");
}

}  // namespace

void TablesPage::read(int index) {
    m_index = index;
    m_table = {};
    m_problem.clear();
    m_isNew = false;
    m_file.opening({});
    if (index < 0) return;
    m_table.tableName = tableName();
    const Vor_String path = Vor_ProfValuesTable::filePath(tableName());
    m_file.opening(path);
    m_table.readFromFile(tableName(), &m_problem);
    if (!isReadable() || !m_table.columnNames.isEmpty()) return;
    m_problem = path + ": " + dialString(wordNoColumns);
    m_table.rows.clear();
}

// --- saving -------------------------------------------------------------------------------------

bool TablesPage::takeBack(Vor_ProfValuesTable& table) {
    if (!isReadable() || !table.getFromSS(m_sheet)) return false;
    table.drawnAs = drawnAsOfDisplay(itemAs<CComboBox>(templateList)->selectedText());
    return true;
}

/// Under `name`, while the file of the table shown is as it was read, or its user says so.
bool TablesPage::write(Vor_ProfValuesTable& table, const Vor_String& name, int title) {
    const auto writeTable = [&](std::string& why) {
        Vor_String message;
        const bool isWritten = table.writeToFile(name, &message);
        why = message.str();
        return isWritten;
    };
    std::string error;
    const auto saved = m_file.save(m_file.path(), writeTable, error);
    if (saved == OpenFile::Saved::reload) {
        m_sheet.setSaved();
        showTable(m_index);
    } else if (!error.empty()) {
        showWarning(dialString(title), error);
    }
    return saved == OpenFile::Saved::yes;
}

bool TablesPage::save() {
    Vor_ProfValuesTable table = m_table;
    if (!takeBack(table)) return true;
    if (!write(table, tableName(), wordSaveTitle)) return false;
    table.tableName = tableName();
    table.setToGlobals(&gSectionTables);
    m_table = table;
    m_isNew = false;
    m_sheet.setSaved();
    return true;
}

bool TablesPage::mayLeave() {
    if (m_index < 0 || !m_sheet.isChanged()) return true;
    const Vor_String question =
        dialString(wordSaveBefore) + " <" + tableName() + "> " + dialString(wordSaveAfter);
    switch (ask(wordSaveTitle, question, MessageIcon::question, MessageButtons::yesNoCancel)) {
        case IDYES:
            return save();
        case IDNO:
            if (m_isNew) forgetTable();
            return true;
        default:
            return false;
    }
}

/// The table shown has no file and gets none.
void TablesPage::forgetTable() {
    m_data.tableNames.removeAt(m_index);
    m_index = -1;
    m_sheet.setSaved();
    fillTables();
}

// --- coming and going ---------------------------------------------------------------------------

void TablesPage::newTable() {
    if (!mayLeave()) return;
    const Vor_String name = findNonExistingString(m_data.tableNames, dialString(wordNewTable));
    m_index = m_data.tableNames.append(name);
    m_problem.clear();
    m_isNew = true;
    m_file.startNew(Vor_ProfValuesTable::filePath(name));
    m_table = {};
    m_table.tableName = name;
    m_table.columnNames = {"SysName", "I/O"};
    m_table.columnNames.appendAll(gMacroLangs.GetAllLanguages());
    Vor_StringArray row{"", "1"};
    row.setLength(m_table.columnNames.length());
    for (const char* number : {"1", "2"}) {
        m_table.columnNames.append(dialString(wordValue) + number);
        row.append("0");
    }
    m_table.rows.append(row);
    m_sheet.showTable(m_table, {});
    m_sheet.setUnsaved();
    showProblem();
    selectTemplate({});
    fillTables();
    showWhatCanBeDone();
}

void TablesPage::renameTable() {
    TextQuestion question;
    question.title = dialString(wordRenameTitle).str();
    question.prompt = dialString(wordRenamePrompt).str();
    question.preset = tableName().str();
    question.ok = dialString(wordOk).str();
    question.cancel = dialString(wordCancel).str();
    std::string answer;
    if (!askText(question, this, answer)) return;
    Vor_String name = trimmed(answer);
    if (name.endsWith(".pr")) name = removeExtension(name);
    if (name.isEmpty() || name == tableName()) return;
    if (!isGoodName(name) || !rename(name)) return;
    m_data.tableNames[m_index] = name;
    fillTables();
    showTable(m_index);
}

// The part of a section's name before the first "-" is its table's. Letter case does not tell names
// of files apart.
bool TablesPage::isGoodName(const Vor_String& name) {
    const auto refuse = [&](int text) {
        showWarning(dialString(wordRenameTitle), with(text, name));
        return false;
    };
    if (!canNameSectionTable(name)) return refuse(wordBadName);
    const bool isTaken =
        m_data.tableNames.contains(name) || files::exists(Vor_ProfValuesTable::filePath(name));
    return !isTaken || refuse(wordNameTaken);
}

/// Writes the table under its new name, and only then removes the old file.
bool TablesPage::rename(const Vor_String& name) {
    Vor_ProfValuesTable table = m_table;
    if (!takeBack(table)) return false;
    if (!write(table, name, wordRenameTitle)) return false;
    removeTableFile(tableName());
    unregister(tableName());
    table.tableName = name;
    table.setToGlobals(&gSectionTables);
    return true;
}

void TablesPage::deleteTable() {
    const Vor_String question =
        dialString(wordDeleteBefore) + " <" + tableName() + "> " + dialString(wordDeleteAfter);
    if (ask(wordDeleteTitle, question, MessageIcon::exclamation, MessageButtons::yesNo) != IDYES)
        return;
    const Vor_String name = tableName();
    const bool hasFile = !m_isNew;
    m_data.tableNames.removeAt(m_index);
    if (hasFile) removeTableFile(name);
    unregister(name);
    fillTables();
    showTable(m_data.tableNames.isEmpty() ? -1 : 0);
}
