// Items and rows.
#include "cutstock/cutting_stock_dialog.h"

#include <algorithm>

#include "core_api/dialog_state.h"
#include "core_api/texts/dial_text.h"
#include "cutstock/item_names.h"
#include "platform/host/host.h"
#include "platform/window/images.h"
#include "platform/window/text_question.h"

using cutstock::FileKind;

namespace {

using Dlg = TwCuttingStockDlg;

constexpr const char* sizeName = "DLG_CSP2";
constexpr int nameTitleText = 631, namePromptText = 632;
constexpr int saveAllText = 628, loadAllText = 629;

constexpr ControlTemplate picture(int table, Dlg::Part part, CPoint at, int image, int tip) {
    return {Control::imageButton,
            Dlg::idOf(table, part),
            {},
            {at.x, at.y, 16, 15},
            0,
            anchorTopLeft,
            image,
            dialText(tip)};
}
// The bands are 96 units apart, as steps of 16 are whole pixels in every font and at half scales
// too: what is alike in the three of them also looks alike.
constexpr ControlTemplate insertRow(int table, int top) {
    return picture(table, Dlg::insertRowButton, {142, top}, imageInsertRow, 616);
}
constexpr ControlTemplate deleteRow(int table, int top) {
    return picture(table, Dlg::deleteRowButton, {162, top}, imageDeleteRow, 617);
}
constexpr ControlTemplate openFile(int table, int top) {
    return picture(table, Dlg::openButton, {190, top}, imageOpen, 618);
}
constexpr ControlTemplate saveFile(int table, int top) {
    return picture(table, Dlg::saveButton, {210, top}, imageSave, 619);
}
constexpr ControlTemplate sheet(int table, int top) {
    return {
        Control::placeholder, Dlg::idOf(table, Dlg::sheet), {}, {142, top, 240, 61}, 0, anchorWide};
}
constexpr ControlTemplate frame(int table, int top, int caption) {
    return {Control::group, Dlg::idOf(table, Dlg::frame), dialText(caption), {137, top, 250, 93}, 0,
            anchorWide};
}

// Frames stand behind what they are around, the outermost last: the first one lies on top.
constexpr ControlTemplate controls[] = {
    {Control::label, Dlg::itemLabel, dialText(621), {7, 7, 118, 10}},
    {Control::list, Dlg::itemList, {}, {7, 19, 118, 232}, 0, anchorTall},
    {Control::button, Dlg::addItemButton, dialText(622), {7, 256, 118, 14}, 0, anchorBottomLeft},
    {Control::button, Dlg::deleteItemButton, dialText(623), {7, 274, 118, 14}, 0, anchorBottomLeft},
    insertRow(0, 28),
    deleteRow(0, 28),
    sheet(0, 45),
    insertRow(1, 124),
    deleteRow(1, 124),
    openFile(1, 124),
    saveFile(1, 124),
    sheet(1, 141),
    insertRow(2, 220),
    deleteRow(2, 220),
    openFile(2, 220),
    saveFile(2, 220),
    sheet(2, 237),
    {Control::checkBox, Dlg::askNamesCheck, dialText(630), {7, 296, 118, 12}, 0, anchorBottomLeft},
    {Control::button, Dlg::actionButton, {}, {7, 312, 118, 14}, 0, anchorBottomLeft},
    {Control::button, IDOK, dialText(1), {263, 312, 62, 14}, styleDefault, anchorBottomRight},
    {Control::button, IDCANCEL, dialText(2), {331, 312, 62, 14}, 0, anchorBottomRight},
    frame(0, 17, 625),
    frame(1, 113, 626),
    frame(2, 209, 627),
    {Control::group, Dlg::tablesFrame, dialText(624), {131, 5, 262, 301}, 0, anchorAll},
};
constexpr DialogResource resource{
    Dlg::resourceNumber, dialText(620), {0, 0, 400, 333}, controls, true};
constexpr CRect leastSize{0, 0, 300, 262};  // dialog units

constexpr Dlg::Part tableParts[] = {Dlg::frame,           Dlg::sheet,      Dlg::insertRowButton,
                                    Dlg::deleteRowButton, Dlg::openButton, Dlg::saveButton};

}  // namespace

TwCuttingStockDlg::TwCuttingStockDlg() : CDialog(resource, Host::current().mainWindow()) {}

TwCuttingStockDlg::~TwCuttingStockDlg() {
    destroyNow();  // before the sheets, which are children
}

void TwCuttingStockDlg::onInit() {
    m_shownId.reset();
    m_places.clear();
    m_usualHeight = rect().height();
    setMinimumSize(pixelsOf(leastSize).size());
    for (int table = 0; table < DlgCSP2Data::tableCount; ++table) {
        auto& sheet = m_sheets[static_cast<size_t>(table)];
        sheet.attach(this, idOf(table, Part::sheet));
        sheet.grid().setListener([this](const GridNotice&) { showWhatCanBeDone(); });
        for (const Part part : tableParts)
            if (const CWnd* control = item(idOf(table, part)))
                m_places.push_back(
                    {control->id(), table, part == frame || part == Part::sheet, control->rect()});
    }
    item(actionButton)->setText(dialString(m_data.savesAll ? saveAllText : loadAllText));
    item(askNamesCheck)->show(m_data.savesAll);
    auto* list = itemAs<CListBox>(itemList);
    for (int i = 0; cutstock::isItem(m_data, i); ++i) list->add(m_data.itemNames[i]);
    ChangeDlgSize(*this, sizeName);
    select(0);
}

// --- the shown item -----------------------------------------------------------------------------

/// -1 for none.
int TwCuttingStockDlg::current() const {
    return itemAs<CListBox>(itemList)->selected();
}

std::optional<int> TwCuttingStockDlg::currentId() const {
    const int index = current();
    return cutstock::isItem(m_data, index) ? std::optional(m_data.itemIds[index]) : std::nullopt;
}

void TwCuttingStockDlg::showItem() {
    m_shownId = currentId();
    for (size_t table = 0; table < m_sheets.size(); ++table)
        m_sheets[table].show(m_data.tables[table], m_shownId);
    showWhatCanBeDone();
}

void TwCuttingStockDlg::takeItemBack() {
    if (!m_shownId) return;
    for (size_t table = 0; table < m_sheets.size(); ++table)
        cutstock::replaceRows(m_data.tables[table], *m_shownId, m_sheets[table].rows());
}

/// The item, else the last one, else none.
void TwCuttingStockDlg::select(int index) {
    auto* list = itemAs<CListBox>(itemList);
    list->select(std::min(index, list->count() - 1));
    showItem();
}

void TwCuttingStockDlg::showWhatCanBeDone() {
    const bool hasItem = m_shownId.has_value();
    item(deleteItemButton)->enable(hasItem);
    item(actionButton)->enable(hasItem);
    for (int table = 0; table < DlgCSP2Data::tableCount; ++table) {
        const bool hasRows = m_sheets[static_cast<size_t>(table)].grid().nrRows() > 0;
        item(idOf(table, Part::sheet))->enable(hasItem);
        item(idOf(table, insertRowButton))->enable(hasItem);
        item(idOf(table, deleteRowButton))->enable(hasItem && hasRows);
    }
    for (const FileKind& kind : cutstock::fileKinds)
        for (const Part part : {openButton, saveButton})
            item(idOf(kind.table, part))->enable(hasItem);
}

// --- what the user does -------------------------------------------------------------------------

void TwCuttingStockDlg::onCommand(int id, int code) {
    if (id == itemList && code == selectionChanged) {
        takeItemBack();
        return showItem();
    }
    if (code == clicked) {
        if (id == addItemButton) return addItem();
        if (id == deleteItemButton) return deleteItem();
        if (id == actionButton) return runAction();
        if (onTableCommand(id)) return;
    }
    CDialog::onCommand(id, code);
}

bool TwCuttingStockDlg::onTableCommand(int id) {
    for (int table = 0; table < DlgCSP2Data::tableCount; ++table) {
        auto& sheet = m_sheets[static_cast<size_t>(table)];
        if (id == idOf(table, insertRowButton))
            sheet.insertRow();
        else if (id == idOf(table, deleteRowButton))
            sheet.deleteRow();
        else
            continue;
        showWhatCanBeDone();
        return true;
    }
    for (const FileKind& kind : cutstock::fileKinds) {
        if (id == idOf(kind.table, openButton)) return openFile(kind), true;
        if (id == idOf(kind.table, saveButton)) return saveFile(kind), true;
    }
    return false;
}

/// In the sheet with the keyboard Ctrl+Insert and Ctrl+Delete are its buttons for rows, Ctrl+O and
/// Ctrl+S those for files.
bool TwCuttingStockDlg::preTranslateKey(const KeyMessage& key) {
    if (!key.isDown || !key.ctrl || key.alt || key.shift) return false;
    constexpr std::pair<int, Part> shortcuts[] = {{keyInsert, insertRowButton},
                                                  {keyDelete, deleteRowButton},
                                                  {'O', openButton},
                                                  {'S', saveButton}};
    for (int table = 0; table < DlgCSP2Data::tableCount; ++table) {
        if (!m_sheets[static_cast<size_t>(table)].grid().hasFocus()) continue;
        for (const auto& [pressed, part] : shortcuts)
            if (pressed == key.key && item(idOf(table, part))) return press(idOf(table, part));
    }
    return false;
}

void TwCuttingStockDlg::addItem() {
    Vor_String name;
    if (!askName(name)) return;
    takeItemBack();
    const int index = cutstock::addItem(m_data, name);
    itemAs<CListBox>(itemList)->add(name);
    select(index);
}

/// Until the name is a good one or the user gives up. Two items of one name would share a folder.
bool TwCuttingStockDlg::askName(Vor_String& name) {
    TextQuestion question;
    question.title = dialString(nameTitleText);
    question.prompt = dialString(namePromptText);
    question.ok = dialString(IDOK);
    question.cancel = dialString(IDCANCEL);
    cutstock::ItemNames names(m_data.itemNames);
    std::string answer;
    while (askText(question, this, answer)) {
        name = answer;
        const Vor_String refusal = names.add(name);
        if (refusal.isEmpty()) return true;
        showWarning(question.title, refusal);
        question.preset = answer;
    }
    return false;
}

void TwCuttingStockDlg::deleteItem() {
    const int index = current();
    if (!cutstock::removeItem(m_data, index)) return;
    itemAs<CListBox>(itemList)->remove(index);
    select(index);
}

void TwCuttingStockDlg::onOK() {
    takeItemBack();
    CDialog::onOK();
}

// --- its size -----------------------------------------------------------------------------------

void TwCuttingStockDlg::onSize(CSize before) {
    CDialog::onSize(before);
    shareHeight();
    for (auto& sheet : m_sheets) sheet.grid().autoSize();
}

/// Each of the three tables takes a third of what the dialog is higher or lower than usual.
void TwCuttingStockDlg::shareHeight() {
    const int more = rect().height() - m_usualHeight;
    const auto share = [&](int bands) { return more * bands / DlgCSP2Data::tableCount; };
    for (const Place& each : m_places) {
        CWnd* control = item(each.id);
        if (!control) continue;
        CRect place = control->rect();
        place.top = each.place.top + share(each.band);
        place.bottom = each.place.bottom + share(each.band + (each.grows ? 1 : 0));
        control->move(place);
    }
}

void TwCuttingStockDlg::onDestroy() {
    WriteDlgSize(*this, sizeName);
}
