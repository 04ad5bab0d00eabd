// The pages of section tables: opening them, and what their buttons do.
#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "run/run_page.h"
#include "sections/section_editing.h"
#include "sections/table_page.h"
#include "shell/main_window.h"
#include "shell/words.h"
#include "window/dialog_font.h"

namespace {

/// Null when there is none, or its file cannot be read.
const SectionTable* tableNamed(const Vor_String& name) {
    int index = 0;
    return gSectionTables.hasTable(name, index) ? gSectionTables.table(index) : nullptr;
}

}  // namespace

QWidget* MainWindow::openSectionTable(const Vor_String& path) {
    const QString key = toQt(path);
    if (QWidget* there = bringForward(key)) return there;
    const Vor_String name = removeExtension(getFileName(path));
    const SectionTable* table = tableNamed(name);
    if (!table) {
        complain(key + ": " + toQt(dialString(wordNoSuchFile)));
        return nullptr;
    }
    auto* page = new TablePage(path, *table);
    page->setCommands({[this, page] {
                           editSectionLibrary(page->section());
                           sectionsChanged();
                       },
                       [this, page] { addSize(*page); }});
    showPage(page, toQt(name), key);
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
        const SectionTable* table = page ? tableNamed(page->tableName()) : nullptr;
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
    return page ? page->section() : Vor_String();
}
