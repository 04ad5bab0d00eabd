#include "workbench/run/section_names.h"

#include "core_api/sections/section_tables.h"
#include "workbench/window/dialog_font.h"

QStringList sectionNames() {
    QStringList names;
    const int tables = gSectionTables.tableNames().length();
    for (int index = 0; index < tables; ++index) {
        const SectionTable* table = gSectionTables.table(index);
        if (!table) continue;
        for (int row = 0; row < table->rows().length(); ++row) names += toQt(table->fullName(row));
    }
    return names;
}
