// Finding and replacing texts. Letter case never matters.
#include <algorithm>

#include "platform/window/message_scope.h"
#include "platform/window/window_system.h"
#include "spread/find_replace_dlg.h"
#include "spread/vor_spread.h"

bool Vor_Spread::findInRow(const Vor_String& text, bool substring, int row, int fromCol,
                           int& foundCol) const {
    if (!isAttached() || row < 0 || row > nrRows()) return false;
    std::string buffer;
    for (int col = std::max(fromCol, 1); col <= nrCols(); ++col) {
        const std::string_view value = grid().text(col, row, Reading::value, buffer);
        const bool isFound = substring ? Vor_String(value).hasSubString(text) : text.equal(value);
        if (!isFound) continue;
        foundCol = col;
        return true;
    }
    return false;
}

bool Vor_Spread::findNext(const Vor_String& text, bool substring, int fromCol, int fromRow,
                          int& foundCol, int& foundRow) const {
    for (int row = std::max(fromRow, 0), col = fromCol; row <= nrRows(); ++row, col = 1) {
        if (!findInRow(text, substring, row, col, foundCol)) continue;
        foundRow = row;
        return true;
    }
    return false;
}

bool Vor_Spread::replaceInCell(int col, int row, const Vor_String& from, const Vor_String& to) {
    Vor_String text;
    if (!getCellText(col, row, text, Reading::value)) return false;
    text.replaceSubString(from, to);
    return setData(col, row, text);
}

bool Vor_Spread::showFindReplace() {
    if (!isAttached()) return false;
    if (!findDialog()) {
        retire(std::move(m_findDialog));
        m_findDialog = std::make_unique<TwFindReplaceDlg>(*this);
        if (!m_findDialog->create()) {
            m_findDialog.reset();
            return false;
        }
        m_findDialog->show(true);
    }
    WindowSystem::current().bringToFront(*m_findDialog);
    if (CWnd* field = m_findDialog->item(TwFindReplaceDlg::findField)) field->focus();
    return true;
}

TwFindReplaceDlg* Vor_Spread::findDialog() const {
    const bool isOpen = m_findDialog && m_findDialog->isAlive() && !m_findDialog->isEnded();
    return isOpen ? m_findDialog.get() : nullptr;
}
