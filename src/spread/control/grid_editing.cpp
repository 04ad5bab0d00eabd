// What a user does with a grid: selecting, typing, copying.
#include <algorithm>

#include "core_api/text/delimited_text.h"
#include "core_api/text/number_text.h"
#include "spread/control/grid.h"

namespace control {
namespace {

bool isItem(std::string_view items, std::string_view text) {
    for (size_t at = 0; at <= items.size();) {
        const size_t end = std::min(items.find('\t', at), items.size());
        if (items.substr(at, end - at) == text) return true;
        at = end + 1;
    }
    return false;
}

bool mayBeTyped(const CellType& type, std::string_view text) {
    switch (type.kind) {
        case CellKind::staticText:
        case CellKind::button:
        case CellKind::picture:
        case CellKind::pictureHandle:
            return false;
        case CellKind::checkBox:
            return text == "1" || text == "0";
        case CellKind::comboBox:
            return type.editable || text.empty() || isItem(type.text, text);
        case CellKind::edit:
            return type.maxLength == 0 || text.size() <= static_cast<size_t>(type.maxLength);
        default:
            return true;
    }
}

bool isTypable(const CellType& type) {
    return type.kind == CellKind::checkBox || mayBeTyped(type, "");
}

}  // namespace

bool Grid::setActive(int col, int row) {
    if (!isInside(col, row)) return false;
    m_active = {col, row};
    m_selection.reset();
    return true;
}

bool Grid::select(const Block& block) {
    const std::optional<Block> inside = resolved(block);
    if (!inside) return false;
    m_active = {inside->col1, inside->row1};
    m_selection = block;
    return true;
}

bool Grid::beginEdit() {
    if (!isInside(m_active.col, m_active.row)) return false;
    const CellFormat& shown = format(m_active.col, m_active.row);
    if (shown.locked || !isTypable(shown.type)) return false;
    if (m_edit) return true;
    m_edit.emplace(Edit{});
    if (option(Option::userFormulas)) {
        const std::string formula = text(m_active.col, m_active.row, Reading::formula);
        if (!formula.empty()) m_edit->text = "=" + formula;
    }
    if (m_edit->text.empty()) m_edit->text = text(m_active.col, m_active.row, Reading::data);
    m_edit->start = static_cast<int>(m_edit->text.size());
    return true;
}

bool Grid::setEditText(std::string_view text) {
    if (!m_edit) return false;
    m_edit->text = text;
    m_edit->start = static_cast<int>(text.size());
    m_edit->length = 0;
    return true;
}

bool Grid::setEditSelection(int start, int length) {
    if (!m_edit) return false;
    const int size = static_cast<int>(m_edit->text.size());
    m_edit->start = std::clamp(start, 0, size);
    m_edit->length = std::clamp(length, 0, size - m_edit->start);
    return true;
}

std::pair<int, int> Grid::editSelection() const {
    return m_edit ? std::pair(m_edit->start, m_edit->length) : std::pair(0, 0);
}

bool Grid::endEdit(bool keep) {
    if (!m_edit) return false;
    if (keep && !enter(m_active.col, m_active.row, m_edit->text)) return false;
    m_edit.reset();
    return true;
}

bool Grid::enter(int col, int row, std::string_view typed) {
    if (!isInside(col, row)) return false;
    const CellFormat& shown = format(col, row);
    if (shown.locked) return false;
    const bool isFormula = typed.size() > 1 && typed[0] == '=' && option(Option::userFormulas);
    if (!mayBeTyped(shown.type, isFormula ? "" : typed)) return false;
    if (isFormula) return setFormula(col, row, typed.substr(1));
    if (shown.type.kind == CellKind::general) {
        std::string_view rest = typed;
        const std::optional<double> number = takeNumber(rest);
        if (number && rest.empty()) return writeValue(col, row, *number);
    }
    return setData(col, row, typed);
}

std::string Grid::copyText(const Block& given) const {
    const std::optional<Block> block = resolved(given);
    std::string copied, buffer;
    if (!block) return copied;
    for (int row = block->row1; row <= block->row2; ++row) {
        if (row > block->row1) copied += '\n';
        for (int col = block->col1; col <= block->col2; ++col) {
            if (col > block->col1) copied += '\t';
            appendField(copied, text(col, row, Reading::data, buffer), '\t');
        }
    }
    return copied;
}

bool Grid::pasteText(int toCol, int toRow, std::string_view text, const CellCall& entered) {
    if (!isInside(toCol, toRow)) return false;
    bool taken = true;
    DelimitedText lines(text, '\t');
    int row = toRow;
    for (std::vector<std::string> fields; row <= m_rows && lines.next(fields); ++row)
        for (int col = toCol; const std::string& field : fields) {
            if (col <= m_cols) {
                const bool isTaken = enter(col, row, field);
                if (isTaken && entered) entered(col, row);
                taken = taken && isTaken;
            }
            ++col;
        }
    return taken;
}

void Grid::setActionKey(KeyAction action, const ActionKey& key) {
    m_actionKeys[static_cast<size_t>(action)] = key;
}

std::optional<KeyAction> Grid::keyAction(const ActionKey& key) const {
    for (size_t i = 0; i < m_actionKeys.size(); ++i)
        if (m_actionKeys[i].key != 0 && m_actionKeys[i] == key) return static_cast<KeyAction>(i);
    return std::nullopt;
}

}  // namespace control
