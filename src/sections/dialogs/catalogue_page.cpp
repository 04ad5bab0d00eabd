#include "sections/dialogs/catalogue_page.h"

#include <algorithm>

#include "core_api/texts/dial_text.h"
#include "sections/dialogs/section_dialog_words.h"

namespace {

using Page = CataloguePage;

constexpr int namesColumn = 1;

constexpr ControlTemplate list{Control::list,    Page::entryList, {},
                               {0, 0, 110, 205}, styleCheckList,  anchorTall};
constexpr ControlTemplate button(int id, int word, int top) {
    return {Control::button, id, dialText(word), {0, top, 110, 14}, 0, anchorBottomLeft};
}
constexpr ControlTemplate frame(int height) {
    return {
        Control::group, Page::propertiesFrame, dialText(wordProperties), {118, 0, 306, height}, 0,
        anchorWide};
}
constexpr ControlTemplate enabled{
    Control::checkBox, Page::enabledBox, dialText(wordInUse), {126, 14, 120, 10}};
constexpr ControlTemplate label(int id, int word, int top) {
    return {Control::label, id, dialText(word), {126, top + 2, 54, 10}};
}
constexpr ControlTemplate field(int id, int top) {
    return {Control::edit, id, {}, {182, top, 234, 13}, 0, anchorWide};
}

constexpr ControlTemplate groupControls[] = {
    list,
    button(Page::addButton, wordNewGroup, 212),
    button(Page::removeButton, wordRemoveGroup, 230),
    frame(52),
    enabled,
    label(Page::pictureLabel, wordPicture, 30),
    field(Page::pictureField, 30),
    {Control::group, Page::namesFrame, dialText(wordGroupNames), {118, 58, 306, 187}, 0, anchorAll},
    {Control::placeholder, Page::namesSheet, {}, {126, 72, 290, 165}, 0, anchorAll},
};
constexpr DialogResource groupsResource{
    GroupsPage::resourceNumber, {}, {0, 0, 424, 245}, groupControls};

constexpr ControlTemplate typeControls[] = {
    list,
    button(Page::addButton, wordNewType, 212),
    button(Page::removeButton, wordRemoveType, 230),
    frame(86),
    enabled,
    label(Page::pictureLabel, wordPicture, 30),
    field(Page::pictureField, 30),
    label(Page::groupLabel, wordGroup, 47),
    {Control::combo, Page::groupList, {}, {182, 47, 234, 13}, 0, anchorWide},
    label(Page::remarkLabel, wordRemark, 64),
    field(Page::remarkField, 64),
    {Control::group, Page::namesFrame, dialText(wordTypeNames), {118, 92, 306, 153}, 0, anchorAll},
    {Control::placeholder, Page::namesSheet, {}, {126, 106, 290, 131}, 0, anchorAll},
};
constexpr DialogResource typesResource{
    TypesPage::resourceNumber, {}, {0, 0, 424, 245}, typeControls};

}  // namespace

CataloguePage::CataloguePage(const DialogResource& resource, CWnd* parent,
                             SectionCatalogue& catalogue)
    : CDialog(resource, parent), m_catalogue(catalogue) {}

CataloguePage::~CataloguePage() {
    destroyNow();  // before the sheet, which is one of the children
}

void CataloguePage::onInit() {
    constexpr int typedFormat = 1, fixedWidth = 4, languagesWidth = 90, longest = 4096;
    m_names.attach(this, namesSheet, true);
    m_names.setStandardLook(typedFormat);
    m_names.setNrRows(gMacroLangs.GetNrLanguages());
    m_names.setNrCols(1, false);
    m_names.setTextCell({namesColumn, -1, namesColumn, -1}, longest);
    m_names.setData(namesColumn, Vor_Spread::headerIndex, dialString(wordName));
    m_names.setColumn(Vor_Spread::headerIndex, gMacroLangs.GetAllLanguages());
    m_names.setMenuCommands({Vor_Spread::menuCopy, Vor_Spread::menuPaste});
    m_names.setAutoSize(fixedWidth, Vor_Spread::headerIndex, languagesWidth);
    m_names.autoSize();
    fillList();
    show(-1);  // until the page is looked at: what is shown is stored
}

void CataloguePage::onSize(CSize before) {
    CDialog::onSize(before);
    m_names.autoSize();
}

// --- showing and storing ------------------------------------------------------------------------

void CataloguePage::refresh() {
    fillList();
    show(count() == 0 ? -1 : std::clamp(m_shown, 0, count() - 1));
}

void CataloguePage::fillList() {
    auto* entries = itemAs<CListBox>(entryList);
    entries->clear();
    for (int i = 0; i < count(); ++i) {
        entries->add(nameOf(i));
        entries->setChecked(i, isInUse(i));
    }
}

void CataloguePage::show(int entry) {
    m_shown = entry;
    auto* entries = itemAs<CListBox>(entryList);
    for (int i = 0; i < count(); ++i) entries->setChecked(i, isInUse(i));
    entries->select(entry);
    const bool isEntry = entry >= 0, canChange = isEntry && isInUse(entry);
    for (const int id : {propertiesFrame, enabledBox, removeButton}) item(id)->enable(isEntry);
    for (const int id : {pictureLabel, pictureField, namesFrame}) item(id)->enable(canChange);
    itemAs<CButton>(enabledBox)->setCheck(canChange ? 1 : 0);
    item(pictureField)->setText(isEntry ? pictureOf(entry) : Vor_String());
    Vor_StringArray texts = isEntry ? namesOf(entry) : Vor_StringArray();
    texts.setLength(m_names.nrRows());
    m_names.setColumn(namesColumn, texts);
    m_names.setLockRange({namesColumn, 1, namesColumn, m_names.nrRows()}, !canChange);
    m_names.enable(canChange);
    m_names.invalidate();
    showOwn(entry, canChange);
}

void CataloguePage::store() {
    if (m_shown < 0) return;
    setInUse(m_shown, itemAs<CButton>(enabledBox)->isChecked());
    setPicture(m_shown, item(pictureField)->text());
    storeOwn(m_shown);
    Vor_StringArray texts;
    m_names.getColumn(namesColumn, texts);
    setNames(m_shown, texts);
    itemAs<CListBox>(entryList)->setItemText(m_shown, nameOf(m_shown));
}

// --- what the user does -------------------------------------------------------------------------

void CataloguePage::add() {
    store();
    append();
    fillList();
    show(count() - 1);
}

void CataloguePage::remove() {
    if (m_shown < 0) return;
    removeEntry(m_shown);
    fillList();
    show(std::min(m_shown, count() - 1));
}

/// A check mark was set or taken away in the list, of any entry.
void CataloguePage::onChecked() {
    store();
    const auto* entries = itemAs<CListBox>(entryList);
    for (int i = 0; i < count(); ++i) setInUse(i, entries->isChecked(i));
    show(m_shown);
}

void CataloguePage::onCommand(int id, int code) {
    if (id == entryList && code == selectionChanged) {
        const int selected = itemAs<CListBox>(entryList)->selected();
        if (selected == m_shown) return;
        store();
        return show(selected);
    }
    if (id == entryList && code == checkChanged) return onChecked();
    if (code != clicked) return;
    if (id == addButton) add();
    if (id == removeButton) remove();
    if (id == enabledBox) {
        store();
        show(m_shown);
    }
}

bool CataloguePage::preTranslateKey(const KeyMessage& key) {
    if (!key.isDown || key.ctrl || key.alt || !item(entryList)->hasFocus()) return false;
    if (key.key == keyInsert) return press(addButton);
    if (key.key == keyDelete) return press(removeButton);
    return false;
}

// --- groups and types ---------------------------------------------------------------------------

GroupsPage::GroupsPage(CWnd* parent, SectionCatalogue& catalogue)
    : CataloguePage(groupsResource, parent, catalogue) {}

TypesPage::TypesPage(CWnd* parent, SectionCatalogue& catalogue)
    : CataloguePage(typesResource, parent, catalogue) {}

void TypesPage::showOwn(int entry, bool canChange) {
    for (const int id : {groupLabel, groupList, remarkLabel, remarkField})
        item(id)->enable(canChange);
    Vor_StringArray names;
    catalogue().groups.namesOfAllGroups(names, m_groupIds);
    auto* groups = itemAs<CComboBox>(groupList);
    groups->clear();
    for (const Vor_String& name : names) groups->add(name);
    groups->select(entry < 0 ? -1 : m_groupIds.find(types()[entry].group));
    item(remarkField)->setText(entry < 0 ? Vor_String() : types()[entry].remark);
}

void TypesPage::storeOwn(int entry) {
    const int group = itemAs<CComboBox>(groupList)->selected();
    types()[entry].group = m_groupIds.isIndex(group) ? m_groupIds[group] : SectionType::noGroup;
    types()[entry].remark = item(remarkField)->text();
}
