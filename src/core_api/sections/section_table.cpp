#include "core_api/sections/section_table.h"

#include <algorithm>

#include "core_api/settings.h"

namespace {

int countLanguages(const Vor_StringArray& header) {
    constexpr int fifth = languageCount + 1;
    return header.length() > fifth && header[fifth].equal("Korean") ? fifth : languageCount;
}

}  // namespace

SectionTable::SectionTable(Vor_String name, Vor_String drawnAs, Vor_StringArray header,
                           Vor_Array<Vor_StringArray> rows)
    : m_name(std::move(name)),
      m_template(std::move(drawnAs)),
      m_header(std::move(header)),
      m_rows(std::move(rows)),
      m_languages(countLanguages(m_header)),
      m_systemNames(m_rows.length()) {
    for (int row = 0; row < m_rows.length(); ++row) {
        if (!m_rows[row].isEmpty()) m_systemNames.add(m_rows[row][0], row);
    }
}

Vor_String SectionTable::fullName(int row) const {
    return m_name + "-" + (m_rows[row].isEmpty() ? std::string_view() : m_rows[row][0].view());
}

std::string_view SectionTable::userName(int row, int language) const {
    const int column = 1 + language;
    const bool isThere = language >= 0 && language < m_languages && m_rows[row].isIndex(column);
    return isThere ? m_rows[row][column].view() : std::string_view();
}

const Vor_String* SectionTable::value(int row, int index) const {
    if (index < 0 || index >= m_rows[row].length() - 1 - m_languages) return nullptr;
    return &m_rows[row][1 + m_languages + index];
}

Vor_StringArray SectionTable::valueColumns() const {
    Vor_StringArray columns;
    for (int i = 1 + m_languages; i < m_header.length(); ++i) columns.append(m_header[i]);
    return columns;
}
