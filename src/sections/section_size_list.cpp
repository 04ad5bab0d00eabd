#include "sections/section_size_list.h"

#include "core_api/sections/section_tables.h"
#include "core_api/texts/texts.h"
#include "platform/window/controls.h"
#include "sections/section_names.h"
#include "sections/vor_prof_values_table.h"

namespace {

constexpr int variesText = 695;

/// The name in the working language, or the system name where there is none.
Vor_String shownName(const Vor_String& systemName) {
    Vor_String name = systemName;
    gSectionTables.getUserName(systemName, name);
    return name;
}

}  // namespace

SectionSizes sectionSizes(const Vor_String& section) {
    SectionSizes sizes;
    if (isUserSection(section)) {
        sizes.systemNames = {section};
        sizes.entries = {userSectionName(section)};
        sizes.selected = 0;
    } else {
        Vor_ProfValuesTable table;
        if (table.readFromFile(sectionTableOf(section)))
            table.getFilteredSysNames(sizes.systemNames);
        for (const Vor_String& name : sizes.systemNames) sizes.entries.append(shownName(name));
        sizes.selected = sizes.entries.find(shownName(section));
    }
    sizes.entries.append(dialString(variesText));
    return sizes;
}

Vor_StringArray fillSizeList(ItemControl& list, const Vor_String& section) {
    SectionSizes sizes = sectionSizes(section);
    list.clear();
    for (const Vor_String& entry : sizes.entries) list.insert(list.count(), entry);
    list.select(sizes.selected);
    return std::move(sizes.systemNames);
}
