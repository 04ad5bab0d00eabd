// The pages of section tables: opening them, and what their buttons do.
#include "core_api/sections/section_table_file.h"
#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "workbench/run/run_page.h"
#include "workbench/sections/section_editing.h"
#include "workbench/sections/table_page.h"
#include "workbench/shell/main_window.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/machine_path.h"

namespace {

/// Null when there is none, or its file cannot be read.
const SectionTable* tableNamed(const Vor_String& name) {
    int index = 0;
    return gSectionTables.hasTable(name, index) ? gSectionTables.table(index) : nullptr;
}

}  // namespace

QWidget* MainWindow::openSectionTable(const Vor_String& path) {
    const Vor_String name = removeExtension(getFileName(path));
    const Vor_String inLibrary = gSettings.libDir() + "prof\\" + name + ".pr";
    if (!isSameFile(path.str(), inLibrary.str())) return openForeignTable(path);
    const QString key = toQt(inLibrary);
    if (QWidget* there = bringForward(key)) return there;
    const SectionTable* table = tableNamed(name);
    if (!table) {
        gSectionTables.reload();  // the file may be newer than the list of them
        table = tableNamed(name);
    }
    if (!table) {
        Vor_String failure;
        readSectionTable(inLibrary, failure);
        complain(toQt(failure));
        return nullptr;
    }
    auto* page = new TablePage(inLibrary, *table);
    page->setCommands({[this, page] {
                           editSectionLibrary(page->section());
                           sectionsChanged();
                       },
                       [this, page] { addSize(*page); }});
    showPage(page, toQt(name), key);
    return page;
}

/// What is edited is the library, which has a table of this name perhaps, but not this one.
QWidget* MainWindow::openForeignTable(const Vor_String& path) {
    const QString key = toQt(path);
    if (QWidget* there = bringForward(key)) return there;
    Vor_String failure;
    const auto table = readSectionTable(path, failure);
    if (!table) {
        complain(toQt(failure));
        return nullptr;
    }
    auto* page = new TablePage(path, *table);
    showPage(page, toQt(table->name()), key);
    return page;
}

void MainWindow::addSize(TablePage& page) {
    const auto added = addSectionSize(page.section());
    if (!added) return;
    sectionsChanged();
    page.select(*added);
}

/// A table that is gone stays on its page until that is closed.
void MainWindow::refreshSectionTables() {
    for (int i = 0; i < m_pages->count(); ++i) {
        auto* page = dynamic_cast<TablePage*>(m_pages->widget(i));
        if (!page || !page->isOfLibrary()) continue;
        const SectionTable* table = tableNamed(page->tableName());
        if (table) page->show(*table);
    }
}

void MainWindow::sectionsChanged() {
    refreshSectionTables();
    for (int i = 0; i < m_pages->count(); ++i)
        if (auto* page = dynamic_cast<RunPage*>(m_pages->widget(i))) page->sectionsChanged();
}

Vor_String MainWindow::sectionInFront() const {
    const auto* page = dynamic_cast<TablePage*>(m_pages->currentWidget());
    return page && page->isOfLibrary() ? page->section() : Vor_String();
}
