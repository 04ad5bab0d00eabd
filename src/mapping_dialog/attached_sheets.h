// The spreadsheets attached to a macro, while the mapping dialog is open: the list is changed here
// and handed back whole when all went well.
#pragma once

#include <optional>
#include <vector>

#include "core_api/macros/tab_mapping_data.h"
#include "mapping_dialog/sheet_choices.h"

struct AttachedSheet {
    /// Relative to the standards folder, without extension.
    Vor_String name;
    /// Where the mapping file has the objects; kept while a module group is chosen, so that going
    /// back to the entire macro loses nothing.
    Vor_String key;
    /// The module group it maps to; nothing for the entire macro.
    std::optional<Vor_String> group;
    /// What was chosen, once it was shown.
    std::optional<SheetChoices> choices;
    /// Tells rows apart while they move.
    int id = 0;
};

class VORMANT_API AttachedSheets {
  public:
    explicit AttachedSheets(const TabMappingData& data);

    int length() const { return static_cast<int>(m_sheets.size()); }
    /// From 0, inside the list.
    AttachedSheet& operator[](int index) { return m_sheets[static_cast<size_t>(index)]; }
    const AttachedSheet& operator[](int index) const {
        return m_sheets[static_cast<size_t>(index)];
    }
    auto begin() { return m_sheets.begin(); }
    auto end() { return m_sheets.end(); }

    /// False when the macro can take no more.
    bool append();
    bool remove(int index);
    bool swap(int a, int b);

    const Vor_StringArray& moduleGroups() const { return m_moduleGroups; }
    /// As the macro keeps it. Nothing when a name is none that a macro can keep.
    std::optional<TabMappingData> toData() const;

  private:
    bool has(int index) const { return index >= 0 && index < length(); }

    std::vector<AttachedSheet> m_sheets;
    Vor_StringArray m_moduleGroups;
    int m_lastId = 0;
};
