// One section table in the form the registry keeps it: the sizes of one rolled series with their
// system name, their name in each language, and their values. Files hold an active flag besides
// (column "I/O"), which the registry has no use for.
#pragma once

#include "core_api/text/text_index.h"
#include "core_api/text/vor_string_array.h"

class VORMANT_API SectionTable {
  public:
    /// `header` is "SysName", the names of the languages (four, or five when the fifth is
    /// "Korean"), then the value columns; rows have their cells in that order and may be short.
    SectionTable(Vor_String name, Vor_String drawnAs, Vor_StringArray header,
                 Vor_Array<Vor_StringArray> rows);
    SectionTable(const SectionTable&) = delete;
    SectionTable& operator=(const SectionTable&) = delete;

    const Vor_String& name() const { return m_name; }
    /// A section type number, or a drawn template's file name.
    const Vor_String& drawnAs() const { return m_template; }
    const Vor_StringArray& header() const { return m_header; }
    const Vor_Array<Vor_StringArray>& rows() const { return m_rows; }
    int languageColumns() const { return m_languages; }

    /// Row of a system name without the table's, letter case aside; -1 when there is none.
    int findRow(std::string_view systemName) const { return m_systemNames.find(systemName); }
    /// Table name + "-" + system name.
    Vor_String fullName(int row) const;
    /// The name in language `language` (from 0), or an empty text.
    std::string_view userName(int row, int language) const;
    /// The text of value column `index` (from 0); null when the row has no such cell.
    const Vor_String* value(int row, int index) const;
    Vor_StringArray valueColumns() const;

  private:
    Vor_String m_name;
    Vor_String m_template;
    Vor_StringArray m_header;
    Vor_Array<Vor_StringArray> m_rows;
    int m_languages;
    TextIndex m_systemNames;  // borrows the cells of m_rows
};
