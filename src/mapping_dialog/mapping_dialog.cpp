// The rows of attached spreadsheets: choosing, moving and keeping them.
#include "mapping_dialog/mapping_dialog.h"

#include "core_api/dialog_state.h"
#include "core_api/files.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/dial_text.h"
#include "mapping/mapping_file.h"
#include "mapping_dialog/mapping_saver.h"
#include "platform/window/window_system.h"

namespace {

using Dlg = TwMappingDlg;

constexpr ControlTemplate controls[] = {
    {Control::placeholder, Dlg::sheetsItem, {}, {7, 7, 285, 95}, 0, anchorWide},
    {Control::button, Dlg::addButton, dialText(21528), {299, 7, 94, 14}, 0, anchorTopRight},
    {Control::button, Dlg::removeButton, dialText(21529), {299, 25, 94, 14}, 0, anchorTopRight},
    {Control::button, Dlg::moveUpButton, dialText(21530), {299, 43, 94, 14}, 0, anchorTopRight},
    {Control::button, Dlg::moveDownButton, dialText(21531), {299, 61, 94, 14}, 0, anchorTopRight},
    {Control::label, Dlg::headingLabel, dialText(21521), {7, 109, 386, 10}, 0, anchorWide},
    {Control::label, Dlg::shownLabel, {}, {7, 121, 386, 10}, 0, anchorWide},
    {Control::placeholder, Dlg::objectsItem, {}, {7, 134, 386, 138}, 0, anchorAll},
    {Control::button, IDOK, dialText(1), {231, 279, 78, 14}, styleDefault, anchorBottomRight},
    {Control::button, IDCANCEL, dialText(2), {315, 279, 78, 14}, 0, anchorBottomRight},
};
constexpr DialogResource resource{
    Dlg::resourceNumber, dialText(21520), {0, 0, 400, 300}, controls, true};

constexpr const char* stateName = "DLG_MAPPING";
constexpr std::string_view extension = ".tws";

/// Names as macros keep them, of every standard in the library.
Vor_StringArray standardsOfLibrary() {
    Vor_StringArray names;
    const Vor_String folder = standardsFolder();
    for (const Vor_String& path : ObjectExportFindFilesRecursive(folder, "*.tws")) {
        const int length = path.length() - folder.length() - static_cast<int>(extension.size());
        names.append(path.getSubStringAt(folder.length(), length));
    }
    return names;
}

/// `items`, and `own` when it is none of them: what was stored once stays until it is changed.
Vor_StringArray withOwn(Vor_StringArray items, const Vor_String& own) {
    if (!own.isEmpty() && !items.contains(own)) items.append(own);
    return items;
}

}  // namespace

TwMappingDlg::TwMappingDlg(CWnd* parent, const TabMappingData& data, const TwSSMapping& all)
    : CDialog(resource, parent),
      m_data(data),
      m_all(all),
      m_numericObjects(all, TwValueType::Double),
      m_textObjects(all, TwValueType::String),
      m_sheets(data) {}

TwMappingDlg::~TwMappingDlg() {
    destroyNow();  // before the grids, which are children
}

void TwMappingDlg::onInit() {
    m_standards = standardsOfLibrary();
    prepareGrids();
    if (WindowSystem::isAttended()) ChangeDlgSize(*this, stateName);
    fillSheets();
    if (m_sheets.length() > 0) {
        m_sheetsGrid.setActiveCell(spreadsheetColumn, 1);
        (void)selectRow(1);
    }
}

void TwMappingDlg::prepareGrids() {
    m_sheetsGrid.attach(this, sheetsItem, true);
    m_sheetsGrid.setStandardLook(1);
    m_sheetsGrid.setBool(static_cast<int>(control::Option::rowHeaders), false);
    m_sheetsGrid.setNrCols(2, false);
    m_sheetsGrid.setRow(Vor_Spread::headerIndex,
                        Vor_StringArray{dialString(21522), dialString(21523)});
    m_sheetsGrid.setAutoSize(1);
    m_sheetsGrid.setListener([this](const GridNotice& notice) { onSheetNotice(notice); });

    m_objectsGrid.attach(this, objectsItem, true);
    m_objectsGrid.setStandardLook(1);
    m_objectsGrid.setBool(static_cast<int>(control::Option::rowHeaders), false);
    m_objectsGrid.setNrCols(3, false);
    m_objectsGrid.setRow(Vor_Spread::headerIndex,
                         Vor_StringArray{dialString(21525), dialString(21526), dialString(21527)});
    constexpr int typePercent = 12;
    m_objectsGrid.setAutoSize(3, 1, typePercent);
    m_objectsGrid.setListener([this](const GridNotice& notice) {
        if (notice.what == GridNotice::What::changed && notice.col == objectColumn)
            onObjectEntered(notice.row);
    });
    m_sheetsGrid.autoSize();
    m_objectsGrid.autoSize();
}

void TwMappingDlg::onSize(CSize before) {
    CDialog::onSize(before);
    m_sheetsGrid.autoSize();
    m_objectsGrid.autoSize();
}

void TwMappingDlg::onDestroy() {
    if (WindowSystem::isAttended()) WriteDlgSize(*this, stateName);
}

void TwMappingDlg::fillSheets() {
    m_sheetsGrid.setNrRows(m_sheets.length());
    for (int row = 1; row <= m_sheets.length(); ++row) fillSheetRow(row);
    const bool isAny = m_sheets.length() > 0;
    for (const int id : {removeButton, moveUpButton, moveDownButton}) item(id)->enable(isAny);
}

void TwMappingDlg::fillSheetRow(int row) {
    const AttachedSheet& sheet = m_sheets[row - 1];
    const Vor_String entire = dialString(21524);
    Vor_StringArray places{entire};
    for (const Vor_String& group : m_sheets.moduleGroups()) places.append(group);
    const auto fill = [&](int col, const Vor_StringArray& items, const Vor_String& text) {
        m_sheetsGrid.setComboCell({col, row, col, row}, withOwn(items, text), false);
        m_sheetsGrid.setData(col, row, text);
    };
    fill(spreadsheetColumn, m_standards, sheet.name);
    fill(mapsToColumn, places, sheet.group.value_or(entire));
}

// --- what the user does with the rows -----------------------------------------------------------

void TwMappingDlg::onCommand(int id, int code) {
    if (code == clicked) {
        if (id == addButton) return add();
        if (id == removeButton) return remove();
        if (id == moveUpButton) return move(-1);
        if (id == moveDownButton) return move(1);
    }
    CDialog::onCommand(id, code);
}

void TwMappingDlg::add() {
    if (!m_sheets.append()) return warn(21535);
    fillSheets();
    m_sheetsGrid.setActiveCell(spreadsheetColumn, m_sheets.length());
    (void)selectRow(m_sheets.length());
    m_sheetsGrid.focus();
}

void TwMappingDlg::remove() {
    const int row = m_sheetsGrid.currentRow();
    if (!m_sheets.remove(row - 1)) return;
    fillSheets();
    if (!shownSheet()) clearObjects();
    const int next = std::min(row, m_sheets.length());
    if (next < 1) return;
    m_sheetsGrid.setActiveCell(spreadsheetColumn, next);
    (void)selectRow(next);
}

void TwMappingDlg::move(int by) {
    const int row = m_sheetsGrid.currentRow();
    if (!m_sheets.swap(row - 1, row - 1 + by)) return;
    fillSheetRow(row);
    fillSheetRow(row + by);
    m_sheetsGrid.setActiveCell(m_sheetsGrid.currentCol(), row + by);
}

void TwMappingDlg::onSheetNotice(const GridNotice& notice) {
    if (notice.row < 1 || notice.row > m_sheets.length()) return;
    if (notice.what == GridNotice::What::changed) onSheetEntered(notice.col, notice.row);
    if (notice.what == GridNotice::What::changed || notice.what == GridNotice::What::moved)
        (void)selectRow(notice.row);
}

void TwMappingDlg::onSheetEntered(int col, int row) {
    AttachedSheet& sheet = m_sheets[row - 1];
    Vor_String text;
    m_sheetsGrid.getData(col, row, text);
    if (col == spreadsheetColumn && !text.equal(sheet.name)) {
        sheet.name = text;
        sheet.choices.reset();
        if (sheet.id == m_shownId) clearObjects();
    } else if (col == mapsToColumn) {
        const bool isGroup = !text.isEmpty() && !text.equal(dialString(21524));
        sheet.group = isGroup ? std::optional(text) : std::nullopt;
        fillSheetRow(row);
    }
}

// --- keeping it ---------------------------------------------------------------------------------

void TwMappingDlg::onOK() {
    if (hasNameless()) return;
    MappingSaver saver;
    AttachedSheets before = m_sheets;
    if (!saveAll(saver)) {
        m_sheets = std::move(before);
        return;
    }
    const auto data = m_sheets.toData();
    if (!data) {
        m_sheets = std::move(before);
        return warn(21539);
    }
    saver.keep();
    m_isChanged = !(*data == m_data);
    m_data = *data;
    CDialog::onOK();
}

bool TwMappingDlg::hasNameless() {
    for (int row = 1; row <= m_sheets.length(); ++row) {
        if (!m_sheets[row - 1].name.isEmpty()) continue;
        m_sheetsGrid.setActiveCell(spreadsheetColumn, row);
        showWarning(text(), dialString(21534) + " " + Vor_String(row, 0));
        return true;
    }
    return false;
}

bool TwMappingDlg::saveAll(MappingSaver& saver) {
    for (AttachedSheet& sheet : m_sheets)
        if (!saveSheet(sheet, saver)) return false;
    return true;
}

// A module group needs no mapping: its variables are found by their names. A mapping that was not
// looked at is as it was.
bool TwMappingDlg::saveSheet(AttachedSheet& sheet, MappingSaver& saver) {
    if (sheet.group || !sheet.choices) return true;
    TwSSMapping stored;
    (void)stored.getMappingFromFile(sheet.name, sheet.key);
    if (sheet.choices->isStoredAs(stored)) return true;
    Vor_String message;
    if (saver.save(sheet.name, sheet.choices->mapping(), sheet.key, message) == Acad::eOk)
        return true;
    warn(21537, message);
    return false;
}

void TwMappingDlg::warn(int textNumber, const Vor_String& detail) {
    Vor_String message = dialString(textNumber);
    if (!detail.isEmpty()) message += "\n" + detail;
    showWarning(text(), message);
}
