// The standards attached to a macro, as the mapping dialog edits them: for every attached
// spreadsheet its standards name and its mapping key, and the module groups that can be chosen.
// Names and keys stay in step by construction.
#pragma once

#include <string_view>

#include "core_api/text/vor_string_array.h"
#include "platform/host/error_status.h"

class VORMANT_API TabMappingData {
  public:
    virtual ~TabMappingData() = default;

    int length() const { return m_standards.length(); }
    /// Names relative to the standards folder, without extension.
    const Vor_StringArray& standardsNames() const { return m_standards; }
    /// "Module." + a module group, or the key of a line of the mapping file, or empty.
    const Vor_StringArray& mappingKeys() const { return m_keys; }
    const Vor_StringArray& moduleGroups() const { return m_moduleGroups; }
    void setModuleGroups(const Vor_StringArray& groups) { m_moduleGroups = groups; }

    /// Rows count from 0. A bad row, or a text that isMacroText refuses, changes nothing and gives
    /// eInvalidInput. insertRow takes also length(): the row after the last.
    ErrorStatus getMapping(int row, Vor_String& key) const;
    ErrorStatus setRow(int row, std::string_view standardsName, std::string_view key);
    ErrorStatus insertRow(int row, std::string_view standardsName = {}, std::string_view key = {});
    ErrorStatus swapRows(int a, int b);
    ErrorStatus removeRow(int row);

    bool operator==(const TabMappingData&) const = default;

  private:
    Vor_StringArray m_standards;
    Vor_StringArray m_keys;
    Vor_StringArray m_moduleGroups;
};
