#include "platform/window/controls.h"

#include <algorithm>

#include "platform/encodings.h"
#include "platform/window/window_system.h"

// --- statics and buttons ------------------------------------------------------------------------

void CStatic::setBitmap(CBitmap bitmap) {
    m_bitmap = std::move(bitmap);
    notify(WindowChange::content);
}

bool CButton::isCheckable() const {
    return m_kind == Control::checkBox || m_kind == Control::radioButton || hasStyle(stylePushLike);
}

void CButton::setCheck(int state) {
    if (state < 0 || state > 2) return;
    m_check = state;
    notify(WindowChange::check);
}

void CButton::setImage(int number) {
    m_image = number;
    notify(WindowChange::content);
}

void CButton::setPicture(CBitmap picture, CBitmap::Pixel without) {
    m_picture = std::move(picture);
    m_pictureWithout = without;
    notify(WindowChange::content);
}

bool CButton::userPresses() {
    if (!isCreated() || !isEnabled() || m_kind == Control::group) return false;
    if (m_kind == Control::radioButton) {
        for (CButton* button : group())
            if (button != this && button->check() != 0) button->setCheck(0);
        setCheck(1);
    } else if (isCheckable()) {
        const int states = hasStyle(styleThreeState) ? 3 : 2;
        setCheck((m_check + 1) % states);
    }
    notify(clicked);
    return true;
}

// A group of radio buttons begins at the one with styleNewGroup and ends before the next.
std::vector<CButton*> CButton::group() {
    if (!parent()) return {this};
    std::vector<CButton*> group;
    bool isOurs = false;
    for (CWnd* child : parent()->children()) {
        auto* button = dynamic_cast<CButton*>(child);
        if (!button || button->kind() != Control::radioButton) continue;
        if (button->hasStyle(styleNewGroup)) {
            if (isOurs) break;
            group.clear();
        }
        group.push_back(button);
        isOurs = isOurs || button == this;
    }
    return group;
}

// --- edits --------------------------------------------------------------------------------------

void CEdit::setText(std::string_view text) {
    m_start = m_end = 0;
    CWnd::setText(text);
}

void CEdit::setSelection(int start, int end) {
    const int length = static_cast<int>(text().size());
    m_start = std::clamp(start, 0, length);
    m_end = end < 0 ? length : std::clamp(end, m_start, length);
    notify(WindowChange::selection);
}

void CEdit::replaceSelection(std::string_view replacement) {
    std::string changed = text();
    const int start = m_start;
    changed.replace(static_cast<size_t>(m_start), static_cast<size_t>(m_end - m_start),
                    replacement);
    setText(changed);
    const int end = start + static_cast<int>(replacement.size());
    setSelection(end, end);
}

bool CEdit::userTypes(std::string_view typed) {
    if (!isCreated() || !isEnabled() || hasStyle(styleReadOnly)) return false;
    if (typed == text()) return true;
    setText(typed);
    notify(textChanged);
    return true;
}

void CEdit::userSelects(int start, int end) {
    const int length = static_cast<int>(text().size());
    m_start = std::clamp(start, 0, length);
    m_end = std::clamp(end, m_start, length);
}

// --- lists --------------------------------------------------------------------------------------

int ItemControl::add(std::string_view text, int data) {
    int index = count();
    if (hasStyle(styleSorted)) {
        const auto comesAfter = [&](const Item& item) {
            return encodings::compareFolded(item.text, text) > 0;
        };
        index = static_cast<int>(std::find_if(m_items.begin(), m_items.end(), comesAfter) -
                                 m_items.begin());
    }
    insert(index, text, data);
    return index;
}

void ItemControl::setItems(const std::vector<std::string>& texts) {
    clear();
    for (const std::string& text : texts) add(text);
}

bool ItemControl::insert(int index, std::string_view text, int data) {
    if (index < 0 || index > count()) return false;
    Item item;
    item.text = text;
    item.data = data;
    m_items.insert(m_items.begin() + index, std::move(item));
    if (m_selected >= index) ++m_selected;
    notify(WindowChange::items);
    return true;
}

bool ItemControl::remove(int index) {
    if (!has(index)) return false;
    m_items.erase(m_items.begin() + index);
    if (m_selected == index)
        m_selected = -1;
    else if (m_selected > index)
        --m_selected;
    notify(WindowChange::items);
    return true;
}

void ItemControl::clear() {
    m_items.clear();
    m_selected = -1;
    notify(WindowChange::items);
}

bool ItemControl::setItemText(int index, std::string_view text) {
    if (!has(index)) return false;
    m_items[static_cast<size_t>(index)].text = text;
    notify(WindowChange::items);
    return true;
}

bool ItemControl::setData(int index, int data) {
    if (!has(index)) return false;
    m_items[static_cast<size_t>(index)].data = data;
    return true;
}

bool ItemControl::setPicture(int index, CBitmap picture) {
    if (!has(index)) return false;
    m_items[static_cast<size_t>(index)].picture = std::move(picture);
    notify(WindowChange::items);
    return true;
}

bool ItemControl::select(int index) {
    if (index != -1 && !has(index)) return false;
    m_selected = index;
    onSelected();
    notify(WindowChange::selection);
    return true;
}

std::string ItemControl::selectedText() const {
    return has(m_selected) ? at(m_selected).text : std::string();
}

int ItemControl::find(std::string_view text) const {
    for (int i = 0; i < count(); ++i)
        if (encodings::equalFolded(at(i).text, text)) return i;
    return -1;
}

bool ItemControl::userSelects(int index) {
    if (!isCreated() || !isEnabled() || !has(index)) return false;
    select(index);
    notify(selectionChanged);
    return true;
}

bool CListBox::setChecked(int index, bool checked) {
    if (!has(index)) return false;
    changeItems()[static_cast<size_t>(index)].isChecked = checked;
    notify(WindowChange::items);
    return true;
}

std::vector<int> CListBox::selection() const {
    std::vector<int> indexes;
    for (int i = 0; i < count(); ++i)
        if (at(i).isSelected) indexes.push_back(i);
    return indexes;
}

bool CListBox::setSelection(const std::vector<int>& indexes) {
    if (!std::all_of(indexes.begin(), indexes.end(), [&](int index) { return has(index); }))
        return false;
    for (Item& item : changeItems()) item.isSelected = false;
    for (const int index : indexes) changeItems()[static_cast<size_t>(index)].isSelected = true;
    return select(indexes.empty() ? -1 : indexes.back());
}

void CListBox::setPictureSize(CSize size) {
    m_pictureSize = size;
    notify(WindowChange::items);
}

bool CListBox::userSelects(int index) {
    return hasStyle(styleMultiSelect) ? userSelectsAll({index}) : ItemControl::userSelects(index);
}

bool CListBox::userSelectsAll(const std::vector<int>& indexes) {
    if (!isCreated() || !isEnabled() || !setSelection(indexes)) return false;
    notify(selectionChanged);
    return true;
}

bool CListBox::userChecks(int index, bool checked) {
    if (!isCreated() || !isEnabled() || !setChecked(index, checked)) return false;
    notify(checkChanged);
    return true;
}

bool CListBox::userDoubleClicks(int index) {
    if (!userSelects(index)) return false;
    notify(doubleClicked);
    return true;
}

// --- combos and tabs ----------------------------------------------------------------------------

void CComboBox::setText(std::string_view text) {
    const int index = find(text);
    if (index < 0 && !isEditable()) return;
    if (index != selected()) select(index);
    CWnd::setText(text);
}

void CComboBox::onSelected() {
    if (selected() >= 0 || !isEditable()) CWnd::setText(selectedText());
}

bool CComboBox::userTypes(std::string_view typed) {
    if (!isCreated() || !isEnabled() || !isEditable()) return false;
    if (typed == text()) return true;
    setText(typed);
    notify(textChanged);
    return true;
}

CRect CTabCtrl::pageRect() const {
    constexpr int border = 4;
    const int tabHeight = pixelsOf({0, 0, 0, 15}).height();
    const CRect& own = rect();
    return {own.left + border, own.top + tabHeight + border, own.right - border,
            own.bottom - border};
}
