// The registry of section tables. It lists the ".pr" files of the library's "prof\" folder when
// first asked (and again when the library folder changes), reads a table when one of its sections
// is first wanted, and holds what section editors register. Sections are asked for by their full
// system name ("IPE-200": table, "-", system name) or by their user name in any language
// ("IPE 200"), letter case aside.
#pragma once

#include <memory>
#include <vector>

#include "core_api/sections/section_table.h"
#include "platform/host/error_status.h"

class VORMANT_API Vor_SectionTableManager {
  public:
    Vor_SectionTableManager();
    ~Vor_SectionTableManager();

    /// The index of the table of this name, letter case aside.
    bool hasTable(std::string_view name, int& index);
    /// Registers a table under the base name of `fileName` ("IPE.pr"). `header` and `rows` come
    /// without the active flag. eInvalidInput when there is a table of that name already, or when
    /// the name is empty. One that has a file in the library is what that file holds: it is
    /// forgotten with the others that came from files.
    ErrorStatus addSectionTable(const Vor_String& fileName, const Vor_String& drawnAs,
                                const Vor_StringArray& header,
                                const Vor_Array<Vor_StringArray>& rows);
    ErrorStatus removeTable(int index);
    /// In alphabetical order for those of the library, then as registered.
    Vor_StringArray tableNames();
    /// Null when `index` is out of range or the table's file cannot be read. Valid until the next
    /// change of the registry.
    const SectionTable* table(int index);

    /// The full system name. False, with `systemName` as it was, for an unknown section.
    bool getSystemName(std::string_view name, Vor_String& systemName);
    /// The name in the working language.
    bool getUserName(std::string_view name, Vor_String& userName);

    /// Forgets what came from files; it is read again when wanted.
    void reload();

    struct Place {
        const SectionTable* table = nullptr;
        int row = -1;
        explicit operator bool() const { return table != nullptr; }
    };
    /// Where a section lies. Valid until the next change of the registry.
    Place find(std::string_view name);

  private:
    struct Entry;

    void listLibrary();
    Vor_String tablesFolder() const;
    int indexOf(std::string_view name);
    Place findUserName(std::string_view name);
    void tablesChanged();

    std::vector<std::unique_ptr<Entry>> m_entries;
    std::unique_ptr<TextIndex> m_names;  // of m_entries; none: to be made again
    struct UserNames;
    std::unique_ptr<UserNames> m_userNames;  // of all tables; none: to be made again
    Vor_String m_library;                    // the folder that m_entries were listed from
    bool m_isListed = false;
};

extern VORMANT_API Vor_SectionTableManager gSectionTables;

/// The text of value column `index` (from 0) of a section. eInvalidInput, with `text` as it was,
/// for an unknown section or column.
VORMANT_API ErrorStatus getSectionValue(std::string_view section, int index, Vor_String& text);
/// The names of the value columns of a section's table, in the order of getSectionValue.
VORMANT_API ErrorStatus getSectionColumnNames(std::string_view section, Vor_StringArray& columns);
