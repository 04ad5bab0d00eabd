#include "bills/bill_sections.h"

#include <filesystem>

#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "platform/encodings.h"
#include "platform/paths.h"

namespace bills {

namespace {

/// Nothing when all files of tables are known and read.
std::string unreadTable() {
    const Vor_StringArray tables = gSectionTables.tableNames();
    for (int i = 0; i < tables.length(); ++i)
        if (!gSectionTables.table(i)) return "the section table " + tables[i].str();
    std::error_code code;
    std::filesystem::directory_iterator files(paths::toMachine(gSettings.libDir() + "prof\\"),
                                              code);
    for (; !code && files != std::filesystem::directory_iterator(); files.increment(code)) {
        const auto name = encodings::fromUtf8(files->path().stem().string());
        int known = 0;
        if (name && encodings::equalFolded(files->path().extension().string(), ".pr") &&
            !gSectionTables.hasTable(*name, known))
            return "the section table " + *name;
    }
    return !code || code == std::errc::no_such_file_or_directory
               ? ""
               : "the folder of the section tables";
}

}  // namespace

bool areSectionsRead(const Vor_Bill& bill, std::string& error) {
    if (gSettings.libDir().isEmpty()) return true;
    for (const BillRow& row : bill.rows) {
        const bool isProfile = row.piece && row.piece->kind == BillPartKind::profile;
        if (!isProfile || gSectionTables.find(row.piece->section)) continue;
        const std::string unread = unreadTable();
        if (unread.empty()) return true;
        error = unread + " cannot be read, and no other table has " + row.piece->section.str();
        return false;
    }
    return true;
}

}  // namespace bills
