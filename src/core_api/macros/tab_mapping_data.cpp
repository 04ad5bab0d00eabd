#include "core_api/macros/tab_mapping_data.h"

#include "core_api/macros/macro_limits.h"

ErrorStatus TabMappingData::getMapping(int row, Vor_String& key) const {
    if (!m_keys.isIndex(row)) return Acad::eInvalidInput;
    key = m_keys[row];
    return Acad::eOk;
}

ErrorStatus TabMappingData::setRow(int row, std::string_view standardsName, std::string_view key) {
    if (!m_keys.isIndex(row)) return Acad::eInvalidInput;
    if (!isMacroText(standardsName) || !isMacroText(key)) return Acad::eInvalidInput;
    m_standards[row] = standardsName;
    m_keys[row] = key;
    return Acad::eOk;
}

ErrorStatus TabMappingData::insertRow(int row, std::string_view standardsName,
                                      std::string_view key) {
    if (row < 0 || row > length() || length() >= maxMacroItems) return Acad::eInvalidInput;
    if (!isMacroText(standardsName) || !isMacroText(key)) return Acad::eInvalidInput;
    m_standards.insertAt(row, standardsName);
    m_keys.insertAt(row, key);
    return Acad::eOk;
}

ErrorStatus TabMappingData::swapRows(int a, int b) {
    if (!m_keys.isIndex(a) || !m_keys.isIndex(b)) return Acad::eInvalidInput;
    m_standards.swap(a, b);
    m_keys.swap(a, b);
    return Acad::eOk;
}

ErrorStatus TabMappingData::removeRow(int row) {
    if (!m_keys.isIndex(row)) return Acad::eInvalidInput;
    m_standards.removeAt(row);
    m_keys.removeAt(row);
    return Acad::eOk;
}
