#include "core_api/sections/section_table_file.h"

#include "core_api/files.h"

namespace {

// Splits the active flag off a row of a file.
void removeActiveFlag(Vor_StringArray& row) {
    if (row.length() > 1) row.removeAt(1);
}

}  // namespace

std::unique_ptr<SectionTable> readSectionTable(const Vor_String& path, Vor_String& message) {
    Vor_String name;
    RecordRows records;
    if (!readFile(path, name, records, &message)) return nullptr;
    if (records.length() < 2) {
        message = path + ":" + std::to_string(records.length() + 1) +
                  ": the section table has no column names; restore the file";
        return nullptr;
    }
    Vor_String drawnAs;
    if (!records[0].isEmpty()) drawnAs = records[0][0];
    Vor_StringArray header = std::move(records[1]);
    removeActiveFlag(header);
    Vor_Array<Vor_StringArray> rows;
    rows.reserve(records.length() - 2);
    for (int i = 2; i < records.length(); ++i) {
        removeActiveFlag(records[i]);
        rows.append(std::move(records[i]));
    }
    return std::make_unique<SectionTable>(std::move(name), std::move(drawnAs), std::move(header),
                                          std::move(rows));
}
