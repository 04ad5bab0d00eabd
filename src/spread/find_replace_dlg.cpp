#include "spread/find_replace_dlg.h"

#include <utility>

#include "core_api/dialog_state.h"
#include "core_api/texts/dial_text.h"
#include "core_api/texts/sheet_text_numbers.h"
#include "platform/window/window_system.h"
#include "spread/vor_spread.h"

namespace {

using Dlg = TwFindReplaceDlg;

constexpr ControlTemplate controls[] = {
    {Control::label, Dlg::findLabel, dialText(1137), {7, 9, 72, 10}},
    {Control::edit, Dlg::findField, {}, {83, 7, 110, 14}, 0, anchorWide},
    {Control::label, Dlg::replaceLabel, dialText(1138), {7, 29, 72, 10}},
    {Control::edit, Dlg::replaceField, {}, {83, 27, 110, 14}, 0, anchorWide},
    {Control::button, IDOK, dialText(1139), {201, 7, 80, 16}, styleDefault, anchorTopRight},
    {Control::button, Dlg::replaceButton, dialText(1140), {201, 27, 80, 16}, 0, anchorTopRight},
    {Control::button, Dlg::replaceAllButton, dialText(1141), {201, 47, 80, 16}, 0, anchorTopRight},
    {Control::button, IDCANCEL, dialText(285), {201, 67, 80, 16}, 0, anchorTopRight},
};
constexpr DialogResource resource{
    Dlg::resourceNumber, dialText(1136), {0, 0, 288, 90}, controls, true, true};

constexpr const char* stateName = "DLG_FINDREPLACE";
constexpr int findOption = 13;      // the selection stays shown while another window is in front
constexpr int oppositeOption = 20;  // off while the window is open

std::string words(int number) {
    return dialString(number).str();
}

Vor_String valueOf(const Vor_Spread& spread, int col, int row) {
    Vor_String text;
    spread.getCellText(col, row, text, control::Reading::value);
    return text;
}

}  // namespace

TwFindReplaceDlg::TwFindReplaceDlg(Vor_Spread& spread)
    : CDialog(resource, spread.top()), m_spread(&spread) {}

TwFindReplaceDlg::~TwFindReplaceDlg() {
    destroyNow();
}

void TwFindReplaceDlg::onInit() {
    m_isOpen = true;
    ChangeDlgSize(*this, stateName);
    m_hadOption = m_spread->getBool(findOption);
    m_spread->setBool(findOption, true);
    m_spread->setBool(oppositeOption, false);
}

void TwFindReplaceDlg::onCancel() {
    close();
    CDialog::onCancel();
}

void TwFindReplaceDlg::onDestroy() {
    close();
}

// Whoever ends it: its user, its grid or the window around both. Once, as the window of another
// grid may have stored its own size by the time this one is destroyed.
void TwFindReplaceDlg::close() {
    if (!std::exchange(m_isOpen, false)) return;
    WriteDlgSize(*this, stateName);
    if (m_spread && !m_hadOption) m_spread->setBool(findOption, false);
}

void TwFindReplaceDlg::forgetSpread() {
    close();
    m_spread = nullptr;
}

void TwFindReplaceDlg::onCommand(int id, int code) {
    if (code == clicked && id == replaceButton) replace();
    if (code == clicked && id == replaceAllButton) replaceAll();
    CDialog::onCommand(id, code);
}

const std::string& TwFindReplaceDlg::wanted() const {
    return item(findField)->text();
}

bool TwFindReplaceDlg::findNext(bool askWrap) {
    if (!m_spread || wanted().empty()) return false;
    m_spread->focus();
    if (findInEdit()) return true;
    int col = 1, row = 1;
    m_spread->getActiveCell(col, row);
    if (goToHitFrom(col + 1, row)) return true;
    return askWrap && goOnFromStart();
}

bool TwFindReplaceDlg::findInEdit() {
    const control::Grid& grid = m_spread->grid();
    if (!grid.isEditing()) return false;
    const auto [start, length] = grid.editSelection();
    const auto [col, row] = grid.active();
    const Vor_String text = valueOf(*m_spread, col, row);
    const int found = text.findFirstFrom(wanted(), start + length);
    if (found < 0) return false;
    selectInCell(col, row, found);
    return true;
}

bool TwFindReplaceDlg::goToHitFrom(int col, int row) {
    int foundCol = 0, foundRow = 0;
    if (!m_spread->findNext(wanted(), true, col, row, foundCol, foundRow)) return false;
    control::Grid& grid = m_spread->grid();
    // What is being typed is kept; a cell that refuses it stays the active one.
    CellChanges changes(m_spread->changeObserver(), texts::stepTyping);
    if (!keepTyped(changes)) return false;
    m_spread->setActiveCell(foundCol, foundRow);
    const Vor_String text = valueOf(*m_spread, foundCol, foundRow);
    if (grid.beginEdit()) selectInCell(foundCol, foundRow, text.findFirstFrom(wanted(), 0));
    m_spread->invalidate();
    return true;
}

bool TwFindReplaceDlg::keepTyped(CellChanges& changes) {
    control::Grid& grid = m_spread->grid();
    if (!grid.isEditing()) return true;
    const auto [col, row] = grid.active();
    changes.before(col, row);
    return grid.endEdit(true);
}

// The characters are those of the value, so that is what is edited; a formula stays as it is.
void TwFindReplaceDlg::selectInCell(int col, int row, int from) {
    control::Grid& grid = m_spread->grid();
    if (grid.text(col, row, control::Reading::formula).empty())
        grid.setEditText(valueOf(*m_spread, col, row));
    grid.setEditSelection(from, static_cast<int>(wanted().size()));
    m_spread->invalidate();
}

bool TwFindReplaceDlg::goOnFromStart() {
    const MessageBox question{words(1144), words(1142) + "\n" + words(1143) + "\n",
                              MessageIcon::question, MessageButtons::yesNo};
    if (showMessage(question) != IDYES || !m_spread) return false;
    if (goToHitFrom(1, 1)) return true;
    showMessage({words(1146), words(1145), MessageIcon::information, MessageButtons::ok});
    return false;
}

bool TwFindReplaceDlg::replace() {
    findNext(true);
    if (!m_spread) return false;
    control::Grid& grid = m_spread->grid();
    const auto [start, length] = grid.editSelection();
    if (!grid.isEditing() || length == 0) return false;
    const auto [col, row] = grid.active();
    const std::string replacement = item(replaceField)->text();
    Vor_String text = valueOf(*m_spread, col, row);
    text.removeAt(start, length);
    text.insertAt(start, replacement);
    CellChanges changes(m_spread->changeObserver(), texts::stepReplace);
    changes.before(col, row);
    if (!m_spread->setData(col, row, text)) return false;
    grid.setEditText(valueOf(*m_spread, col, row));
    grid.setEditSelection(start + static_cast<int>(replacement.size()), 0);
    m_spread->invalidate();
    return true;
}

int TwFindReplaceDlg::replaceAll() {
    if (!m_spread) return 0;
    const Vor_String from = wanted(), to = item(replaceField)->text();
    int count = 0;
    {
        CellChanges changes(m_spread->changeObserver(), texts::stepReplaceAll);
        keepTyped(changes);
        int col = 0, row = 1;
        while (m_spread->findNext(from, true, col + 1, row, col, row)) {
            changes.before(col, row);
            if (m_spread->replaceInCell(col, row, from, to)) ++count;
        }
    }
    m_spread->invalidate();
    showMessage({words(1149), words(1147) + " " + std::to_string(count) + " " + words(1148),
                 MessageIcon::information, MessageButtons::ok});
    return count;
}
