#include "sections/dialogs/library_dialog.h"

#include "core_api/dialog_state.h"
#include "core_api/dialogs/open_file.h"
#include "core_api/texts/dial_text.h"
#include "platform/host/host.h"
#include "platform/window/message_box.h"
#include "sections/dialogs/section_dialog_words.h"

namespace {

using Dlg = LibraryDialog;

constexpr const char* sizeName = "DLG_EDITLIB";
constexpr ControlTemplate controls[] = {
    {Control::tabs, Dlg::pageTabs, {}, {7, 7, 440, 276}, 0, anchorAll},
    {Control::button, IDOK, dialText(wordOk), {321, 290, 60, 14}, styleDefault, anchorBottomRight},
    {Control::button, IDCANCEL, dialText(wordCancel), {387, 290, 60, 14}, 0, anchorBottomRight},
};
constexpr DialogResource resource{
    Dlg::resourceNumber, dialText(wordLibraryTitle), {0, 0, 454, 311}, controls, true};

}  // namespace

LibraryDialog::LibraryDialog() : CDialog(resource, Host::current().mainWindow()) {}

LibraryDialog::~LibraryDialog() {
    destroyNow();
}

CDialog* LibraryDialog::page(int index) {
    CDialog* const pages[] = {m_tables.get(), m_groups.get(), m_types.get()};
    return pages[index];
}

CataloguePage* LibraryDialog::cataloguePage(Page which) {
    return dynamic_cast<CataloguePage*>(page(which));
}

void LibraryDialog::onInit() {
    m_data.GetAvailableFiles();
    m_before = m_data.catalogue;
    auto* tabs = itemAs<CTabCtrl>(pageTabs);
    for (const int word : {wordTables, wordGroups, wordTypes}) tabs->add(dialString(word));
    tabs->select(tables);
    makePages();
    m_tables->start(m_section);
    showPage(tables);
    ChangeDlgSize(*this, sizeName);
    if (!m_data.catalogueProblem().isEmpty())
        showWarning(dialString(wordLibraryTitle),
                    dialString(wordCatalogueUnreadable) + "\n" + m_data.catalogueProblem());
}

void LibraryDialog::makePages() {
    m_tables = std::make_unique<TablesPage>(this, m_data);
    m_groups = std::make_unique<GroupsPage>(this, m_data.catalogue);
    m_types = std::make_unique<TypesPage>(this, m_data.catalogue);
    const CRect place = itemAs<CTabCtrl>(pageTabs)->pageRect();
    for (int i = tables; i <= types; ++i) page(i)->createPage(place);
}

void LibraryDialog::showPage(int index) {
    for (int i = tables; i <= types; ++i) page(i)->show(i == index);
}

void LibraryDialog::onCommand(int id, int code) {
    if (id != pageTabs || code != selectionChanged) return CDialog::onCommand(id, code);
    m_groups->store();
    m_types->store();
    const int chosen = itemAs<CTabCtrl>(pageTabs)->selected();
    // Types name their groups, which may be others now.
    if (auto* entries = dynamic_cast<CataloguePage*>(page(chosen))) entries->refresh();
    showPage(chosen);
}

void LibraryDialog::onSize(CSize before) {
    CDialog::onSize(before);
    const CRect place = itemAs<CTabCtrl>(pageTabs)->pageRect();
    for (int i = tables; i <= types; ++i)
        if (page(i)) page(i)->move(place);
}

// --- closing ------------------------------------------------------------------------------------

/// False: the user wants to stay, or the files cannot be written. A host without a library keeps
/// the catalogue itself.
bool LibraryDialog::storeCatalogue() {
    m_groups->store();
    m_types->store();
    if (m_data.catalogue == m_before || gSettings.libDir().isEmpty()) return true;
    if (!m_data.catalogueProblem().isEmpty()) {
        const Vor_String question = dialString(wordCatalogueUnreadable) + "\n" +
                                    m_data.catalogueProblem() + "\n" + dialString(wordReplaceFiles);
        const int answer = showMessage({dialString(wordLibraryTitle).str(), question.str(),
                                        MessageIcon::exclamation, MessageButtons::yesNoCancel});
        if (answer != IDYES) return answer == IDNO;
    }
    using Written = DlgEditLibData::Written;
    Vor_String message;
    Written written = Written::changedMeanwhile;
    while ((written = m_data.writeCatalogueAsRead(message)) == Written::changedMeanwhile) {
        const int answer = OpenFile::askAbout(sectionCatalogueFolder());
        if (answer == IDNO) reloadCatalogue();
        if (answer != IDYES) return false;
    }
    if (written == Written::yes) return true;
    showWarning(dialString(wordLibraryTitle), message);
    return false;
}

void LibraryDialog::reloadCatalogue() {
    m_data.readCatalogue();
    m_before = m_data.catalogue;
    m_groups->refresh();
    m_types->refresh();
}

void LibraryDialog::onOK() {
    if (m_tables->mayLeave() && storeCatalogue()) CDialog::onOK();
}

void LibraryDialog::onCancel() {
    if (m_tables->mayLeave()) CDialog::onCancel();
}

void LibraryDialog::onDestroy() {
    WriteDlgSize(*this, sizeName);
    m_types.reset();
    m_groups.reset();
    m_tables.reset();
}
