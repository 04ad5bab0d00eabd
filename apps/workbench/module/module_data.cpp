#include "workbench/module/module_data.h"

#include "core_api/files.h"
#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "platform/host/host.h"
#include "workbench/macro/macro_page.h"

ModuleData::ModuleData(PageOf pageOf)
    : openMacros([this](const Vor_String& path, const MacroData& data) {
          changeMacro(path, [&](Vor_DbMacro& macro) { data.setAllToMacro(&macro); });
      }),
      m_pageOf(std::move(pageOf)) {}

void ModuleData::clear() {
    objects = {};
    m_ofLibrary.reset();
}

runs::MacroRun* ModuleData::macro() {
    if (MacroPage* page = pageInFront()) return &page->macro();
    if (m_ofLibrary) return m_ofLibrary.get();
    if (gSettings.libDir().isEmpty()) return nullptr;
    for (const Vor_String& path :
         ObjectExportFindFilesRecursive(gSettings.libDir() + "Macros\\", "*.macro")) {
        Vor_String failure;
        m_ofLibrary = runs::MacroRun::open(path, failure);
        if (m_ofLibrary) return m_ofLibrary.get();
        acutPrint(failure + "\n");
    }
    return nullptr;
}

runs::MacroRun* ModuleData::macroOf(const Vor_String& path) {
    if (MacroPage* page = m_pageOf(path)) return &page->macro();
    return m_ofLibrary && m_ofLibrary->path() == path ? m_ofLibrary.get() : nullptr;
}

void ModuleData::changeMacro(const Vor_String& path,
                             const std::function<void(Vor_DbMacro&)>& change) {
    runs::MacroRun* run = macroOf(path);
    if (!run) return;
    // What a run left in the dialog data belongs to the macro that is changed.
    run->macroData().setAllToMacro(&run->macro());
    change(run->macro());
    run->macroData() = makeMacroData(run->macro());
    if (MacroPage* page = m_pageOf(path)) page->noteChange();
}

Vor_PrPl ModuleData::member() {
    runs::MacroRun* run = macro();
    const Vor_PrPl* first = run ? run->macro().baseProf(0) : nullptr;
    return first ? *first : Vor_PrPl();
}

Vor_String ModuleData::section() {
    const Vor_String inFront = m_sectionPages.inFront ? m_sectionPages.inFront() : Vor_String();
    return inFront.isEmpty() ? member().sectionName : inFront;
}

void ModuleData::noteSectionChange() const {
    if (m_sectionPages.changed) m_sectionPages.changed();
}

Vor_StringArray ModuleData::sections(std::string_view table) {
    Vor_StringArray names;
    int index = 0;
    if (!gSectionTables.hasTable(table, index)) index = 0;
    if (const SectionTable* found = gSectionTables.table(index))
        for (int row = 0; row < found->rows().length(); ++row) names.append(found->fullName(row));
    return names;
}
