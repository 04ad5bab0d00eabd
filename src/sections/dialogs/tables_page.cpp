#include "sections/dialogs/tables_page.h"

#include "core_api/text/text_helpers.h"
#include "core_api/texts/dial_text.h"
#include "platform/window/images.h"
#include "platform/window/message_box.h"
#include "platform/window/window_system.h"
#include "sections/dialogs/section_dialog_words.h"
#include "sections/dialogs/section_picture_control.h"
#include "sections/section_types.h"

namespace {

using Page = TablesPage;

constexpr ControlTemplate picture(int id, int left, int image, int tip) {
    return {Control::imageButton, id,    {},           {left, 0, 18, 16}, 0,
            anchorTopLeft,        image, dialText(tip)};
}

constexpr ControlTemplate below(int id, int word, int top) {
    return {Control::button, id, dialText(word), {0, top, 102, 14}, 0, anchorBottomLeft};
}

// The buttons above lie close together, as the dialog may have to go on a small screen.
constexpr CRect sheetPlace{108, 20, 316, 140};
constexpr ControlTemplate controls[] = {
    picture(Page::saveButton, 0, imageSave, wordSaveTable),
    picture(Page::undoButton, 24, imageUndo, wordUndo),
    picture(Page::redoButton, 44, imageRedo, wordRedo),
    picture(Page::copyButton, 68, imageCopy, wordCopyCells),
    picture(Page::pasteButton, 88, imagePaste, wordPasteCells),
    picture(Page::insertRowButton, 112, imageInsertRow, wordInsertRow),
    picture(Page::deleteRowButton, 132, imageDeleteRow, wordDeleteRow),
    picture(Page::rowUpButton, 152, imageUp, wordRowUp),
    picture(Page::rowDownButton, 172, imageDown, wordRowDown),
    picture(Page::findButton, 196, imageFind, wordFindReplace),
    {Control::list, Page::tableList, {}, {0, 20, 102, 156}, 0, anchorTall},
    below(Page::newButton, wordNewTable, 180),
    below(Page::deleteButton, wordDeleteTable, 197),
    below(Page::renameButton, wordRename, 214),
    below(Page::rowNamesButton, wordRowNames, 231),
    {Control::placeholder, Page::sheetItem, {}, sheetPlace, 0, anchorAll},
    {Control::label, Page::problemLabel, {}, sheetPlace, styleHidden, anchorAll},
    {Control::group,
     Page::templateFrame,
     dialText(wordSectionType),
     {108, 164, 316, 81},
     0,
     anchorWideBelow},
    {Control::combo, Page::templateList, {}, {116, 177, 300, 13}, 0, anchorWideBelow},
    {Control::picture, Page::templatePicture, {}, {116, 194, 300, 47}, 0, anchorWideBelow},
};
constexpr DialogResource resource{Page::resourceNumber, {}, {0, 0, 424, 245}, controls};

}  // namespace

TablesPage::TablesPage(CWnd* parent, DlgEditLibData& data)
    : CDialog(resource, parent), m_data(data) {}

TablesPage::~TablesPage() {
    destroyNow();  // before the sheet, which is one of the children
}

void TablesPage::onInit() {
    constexpr int typedFormat = 1;
    m_sheet.attach(this, sheetItem, true);
    m_sheet.setStandardLook(typedFormat);
    m_sheet.setListener([this](const GridNotice&) { showWhatCanBeDone(); });
    m_sheet.setMenuOpener([this] { showMenu(); });
    fillTemplates();
    fillTables();
    showWhatCanBeDone();
}

Vor_String TablesPage::tableName() const {
    return m_data.tableNames.isIndex(m_index) ? m_data.tableNames[m_index] : Vor_String();
}

// --- what is shown ------------------------------------------------------------------------------

void TablesPage::start(const Vor_String& section) {
    const Vor_String table = getSubstrBefore(section, "-");
    const int found = m_data.tableNames.find(table);
    showTable(found >= 0 ? found : m_data.tableNames.isEmpty() ? -1 : 0);
    if (found >= 0) m_sheet.goToSize(tableName(), section);
    showWhatCanBeDone();
}

void TablesPage::fillTemplates() {
    auto* list = itemAs<CComboBox>(templateList);
    list->clear();
    for (int type = 1; type <= sectionTypeCount; ++type) list->add(sectionTypeDisplay(type));
    for (const Vor_String& drawn : m_data.templateNames) list->add(drawn);
}

void TablesPage::fillTables() {
    auto* list = itemAs<CListBox>(tableList);
    list->clear();
    for (const Vor_String& name : m_data.tableNames) list->add(name);
    list->select(m_index);
}

void TablesPage::showTable(int index) {
    read(index);
    const Vor_String display = displayOfDrawnAs(m_table.drawnAs);
    m_sheet.showTable(m_table, display);
    selectTemplate(display);
    itemAs<CListBox>(tableList)->select(index);
    showProblem();
    showWhatCanBeDone();
}

/// In place of the sheet, why the table cannot be read.
void TablesPage::showProblem() {
    const Vor_String problem =
        isReadable() ? Vor_String() : dialString(wordUnreadable) + "\n\n" + m_problem;
    item(problemLabel)->setText(problem);
    item(problemLabel)->show(!isReadable());
    m_sheet.show(isReadable());
}

// A template that is not in the library is still what the table names.
void TablesPage::selectTemplate(const Vor_String& display) {
    auto* list = itemAs<CComboBox>(templateList);
    int found = list->find(display);
    if (found < 0 && !display.isEmpty()) found = list->add(display);
    list->select(found);
    showPicture();
}

void TablesPage::showPicture() {
    const Vor_String display = itemAs<CComboBox>(templateList)->selectedText();
    const Vor_String drawnAs = drawnAsOfDisplay(display);
    showSectionPicture(*itemAs<CStatic>(templatePicture), drawnAs, {}, PictureSize::big);
}

void TablesPage::showWhatCanBeDone() {
    const int rows = m_sheet.nrRows();
    const int row = rows > 0 ? m_sheet.currentRow() : 0;
    const bool isTable = m_index >= 0;
    const bool isSheet = isTable && isReadable() && rows > 0;
    item(deleteButton)->enable(isTable);
    item(renameButton)->enable(isSheet);
    item(rowNamesButton)->enable(isSheet);
    item(saveButton)->enable(isSheet && m_sheet.isChanged());
    item(undoButton)->enable(m_sheet.editor().canUndo());
    item(redoButton)->enable(m_sheet.editor().canRedo());
    item(insertRowButton)->enable(isTable && isReadable());
    for (const int id : {copyButton, pasteButton, deleteRowButton, findButton})
        item(id)->enable(isSheet);
    item(rowUpButton)->enable(row > 1);
    item(rowDownButton)->enable(row > 0 && row < rows);
    item(templateList)->enable(isSheet);
}

// --- what the user chooses ----------------------------------------------------------------------

void TablesPage::onTableChosen() {
    const int chosen = itemAs<CListBox>(tableList)->selected();
    if (chosen == m_index || chosen < 0) return;
    const Vor_String name = m_data.tableNames[chosen];
    if (!mayLeave()) {
        itemAs<CListBox>(tableList)->select(m_index);
        return;
    }
    // A new table that was not saved is gone from the list by now.
    showTable(m_data.tableNames.find(name, true));
}

void TablesPage::onTemplateChosen() {
    applyTemplate(true);
    showPicture();
    m_sheet.setBool(static_cast<int>(control::Option::changed), true);
    showWhatCanBeDone();
}

void TablesPage::applyTemplate(bool byUser) {
    const Vor_String display = itemAs<CComboBox>(templateList)->selectedText();
    Vor_StringArray header = m_sheet.languageHeader();
    if (!isDrawnTemplate(display)) header.appendAll(sectionTypeColumns(findSectionType(display)));
    const bool isWider = m_sheet.nrCols() > header.length();
    const bool narrows = byUser && isWider && asksToDropColumns(display);
    if (!m_sheet.setTemplate(display, header, narrows)) did(false);
}

bool TablesPage::asksToDropColumns(const Vor_String& display) {
    const Vor_String text = dialString(wordTemplateBefore) + " " + display + " " +
                            dialString(wordTemplateAfter) + "\n" + dialString(wordDropColumns);
    return showMessage({dialString(wordTemplateTitle).str(), text.str(), MessageIcon::question,
                        MessageButtons::yesNo}) == IDYES;
}

void TablesPage::nameRows() {
    const editor::SheetEditor::OneStep step(m_sheet.editor(), wordRowNames);
    m_sheet.nameRows(tableName());
    applyTemplate(false);
    m_sheet.autoSize();
    showWhatCanBeDone();
}

// A file may have columns and no size yet.
void TablesPage::insertRow() {
    if (m_sheet.nrRows() > 0) return did(m_sheet.addRow(m_sheet.currentRow()));
    Vor_StringArray first;
    first.setLength(m_table.columnNames.length());
    if (first.isIndex(Vor_ProfValuesTable::activeColumn))
        first[Vor_ProfValuesTable::activeColumn] = "1";
    m_table.rows.append(first);
    m_sheet.showTable(m_table, displayOfDrawnAs(m_table.drawnAs));
    m_sheet.setUnsaved();
    showWhatCanBeDone();
}

/// After a step of the sheet, which says itself why it could not be taken.
void TablesPage::did(bool isDone) {
    if (!isDone && !m_sheet.lastError().empty())
        showWarning(dialString(wordLibraryTitle), m_sheet.lastError());
    m_sheet.invalidate();
    showWhatCanBeDone();
}

void TablesPage::onCommand(int id, int code) {
    if (id == tableList && code == selectionChanged) return onTableChosen();
    if (id == templateList && code == selectionChanged) return onTemplateChosen();
    if (code != clicked) return;
    switch (id) {
        case newButton:
            return newTable();
        case deleteButton:
            return deleteTable();
        case renameButton:
            return renameTable();
        case rowNamesButton:
            return nameRows();
        case saveButton:
            save();
            return showWhatCanBeDone();
        case undoButton:
        case redoButton:
            did(id == undoButton ? m_sheet.undo() : m_sheet.redo());
            return selectTemplate(m_sheet.drawnAs());
        case copyButton:
            m_sheet.clipboardCopy();
            return;
        case pasteButton:
            return did(m_sheet.paste());
        case insertRowButton:
            return insertRow();
        case deleteRowButton:
            return did(m_sheet.removeRows());
        case rowUpButton:
            return did(m_sheet.moveRow(-1));
        case rowDownButton:
            return did(m_sheet.moveRow(1));
        case findButton:
            m_sheet.showFindReplace();
            return;
        default:
            return;
    }
}

void TablesPage::showMenu() {
    struct Entry {
        int button, word;
    };
    constexpr Entry offered[] = {{copyButton, wordCopyCells},
                                 {pasteButton, wordPasteCells},
                                 {},
                                 {insertRowButton, wordInsertRow},
                                 {deleteRowButton, wordDeleteRow},
                                 {rowUpButton, wordRowUp},
                                 {rowDownButton, wordRowDown}};
    std::vector<MenuEntry> entries;
    for (const auto& [button, word] : offered) {
        if (button == 0)
            entries.push_back({});
        else
            entries.push_back({button, dialString(word).str(), item(button)->isEnabled()});
    }
    if (const int picked = WindowSystem::current().popupMenu(m_sheet, entries)) press(picked);
}

/// Insert and Delete make and remove tables in the list, and with Ctrl rows in the sheet.
bool TablesPage::preTranslateKey(const KeyMessage& key) {
    if (!key.isDown) return false;
    enum class Where { anywhere, list, sheet };
    using enum Where;
    struct Shortcut {
        Where where;
        int key;
        bool ctrl, alt;
        int button;
    };
    constexpr Shortcut shortcuts[] = {
        {list, keyInsert, false, false, newButton},
        {list, keyDelete, false, false, deleteButton},
        {list, keyF2, false, false, renameButton},
        {sheet, keyInsert, false, false, insertRowButton},
        {sheet, keyInsert, true, false, insertRowButton},
        {sheet, keyDelete, true, false, deleteRowButton},
        {sheet, keyUp, false, true, rowUpButton},
        {sheet, keyDown, false, true, rowDownButton},
        {sheet, 'Z', true, false, undoButton},
        {sheet, 'Y', true, false, redoButton},
        {sheet, 'C', true, false, copyButton},
        {sheet, 'V', true, false, pasteButton},
        {sheet, 'F', true, false, findButton},
        {anywhere, 'S', true, false, saveButton},
    };
    const bool inSheet = m_sheet.hasFocus() && !m_sheet.grid().isEditing();
    const bool inList = item(tableList)->hasFocus();
    for (const Shortcut& each : shortcuts)
        if (each.key == key.key && each.ctrl == key.ctrl && each.alt == key.alt &&
            (each.where == anywhere || (each.where == sheet && inSheet) ||
             (each.where == list && inList)))
            return press(each.button);
    return false;
}
