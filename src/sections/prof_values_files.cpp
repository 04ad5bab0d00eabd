// Section values tables as files and in the registry.
#include "core_api/files.h"
#include "core_api/library_folder.h"
#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "sections/vor_prof_values_table.h"

namespace {

constexpr const char* extension = ".pr";
constexpr int recordsBeforeSizes = 2;  // how sections are drawn, and the header

Vor_StringArray withoutActiveFlag(Vor_StringArray cells) {
    if (cells.isIndex(Vor_ProfValuesTable::activeColumn))
        cells.removeAt(Vor_ProfValuesTable::activeColumn);
    return cells;
}

}  // namespace

Vor_String Vor_ProfValuesTable::filePath(const Vor_String& name) {
    const Vor_String path = gSettings.libDir() + "prof\\" + name;
    return name.endsWith(extension) ? path : path + extension;
}

bool Vor_ProfValuesTable::readFromFile(const Vor_String& name, Vor_String* message) {
    return hasLibraryFolder(message) && readFromPath(filePath(name), message);
}

bool Vor_ProfValuesTable::readFromPath(const Vor_String& path, Vor_String* message) {
    if (!readFile(path, tableName, rows, message)) return false;
    if (rows.length() < recordsBeforeSizes) return true;
    if (!rows[0].isEmpty()) drawnAs = rows[0][0];
    columnNames = std::move(rows[1]);
    Vor_Array<Vor_StringArray> sizes;
    sizes.reserve(rows.length() - recordsBeforeSizes);
    for (int i = recordsBeforeSizes; i < rows.length(); ++i) sizes.append(std::move(rows[i]));
    rows = std::move(sizes);
    return true;
}

bool Vor_ProfValuesTable::writeToFile(const Vor_String& name, Vor_String* message) const {
    if (!hasLibraryFolder(message)) return false;
    const Vor_String path = filePath(name);
    return ObjectExportCreateDirectory(getPath(path), message) == Acad::eOk &&
           writeToPath(path, message);
}

bool Vor_ProfValuesTable::writeToPath(const Vor_String& path, Vor_String* message) const {
    RecordRows records;
    records.reserve(rows.length() + recordsBeforeSizes);
    records.append({drawnAs});
    records.append(columnNames);
    records.appendAll(rows);
    return writeFile(path, records, message);
}

ErrorStatus Vor_ProfValuesTable::setToGlobals(Vor_SectionTableManager* manager) const {
    if (!manager) return Acad::eInvalidInput;
    const bool isDrawn = drawnAs.findFirstFrom(".", 0) >= 0;
    const Vor_String registeredAs = isDrawn ? "Prof\\" + drawnAs : drawnAs;
    Vor_Array<Vor_StringArray> sizes;
    sizes.reserve(rows.length());
    for (const Vor_StringArray& row : rows) sizes.append(withoutActiveFlag(row));
    int index = -1;
    if (manager->hasTable(tableName, index)) manager->removeTable(index);
    return manager->addSectionTable(tableName + extension, registeredAs,
                                    withoutActiveFlag(columnNames), sizes);
}
