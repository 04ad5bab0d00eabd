// The section library: its tables, and the groups and types of its catalogue, on three pages.
// Tables are saved one by one while the dialog is open; the catalogue is written when it is closed
// with OK.
#pragma once

#include <memory>

#include "core_api/dialog_data/dlg_edit_lib_data.h"
#include "sections/dialogs/catalogue_page.h"
#include "sections/dialogs/tables_page.h"

class LibraryDialog : public CDialog {
  public:
    static constexpr int resourceNumber = 8722;
    enum Item { pageTabs = 1001 };
    enum Page { tables, groups, types };

    LibraryDialog();
    ~LibraryDialog() override;

    DlgEditLibData& data() { return m_data; }
    /// The full name of the section whose table is shown first.
    void setSection(const Vor_String& section) { m_section = section; }

    TablesPage* tablesPage() { return m_tables.get(); }
    CataloguePage* cataloguePage(Page page);

    void onCommand(int id, int code) override;

  protected:
    void onInit() override;
    void onOK() override;
    void onCancel() override;
    void onDestroy() override;
    void onSize(CSize before) override;

  private:
    CDialog* page(int index);
    void makePages();
    void showPage(int index);
    bool storeCatalogue();
    void reloadCatalogue();

    DlgEditLibData m_data;
    Vor_String m_section;
    SectionCatalogue m_before;
    std::unique_ptr<TablesPage> m_tables;
    std::unique_ptr<GroupsPage> m_groups;
    std::unique_ptr<TypesPage> m_types;
};
