#include "mapping/tw_object_map.h"

#include "core_api/text/text_helpers.h"

namespace {
constexpr std::string_view groupSeparator = "\x95";
}

TwObjectMap::TwObjectMap(const Vor_String& group, TwMapType kind, const Vor_String& objectName,
                         const Vor_String& spreadsheetVariable, int category)
    : m_group(group),
      m_objectName(objectName),
      m_variable(spreadsheetVariable),
      m_kind(kind),
      m_category(category) {}

ErrorStatus TwObjectMap::setMappingToStrs(Vor_String& mapping, Vor_String& variable) const {
    const std::string_view kindName = mapTypeName(m_kind);
    if (kindName.empty()) return Acad::eInvalidInput;
    mapping = m_group + groupSeparator + kindName + " " + m_objectName;
    variable = m_variable;
    return Acad::eOk;
}

ErrorStatus TwObjectMap::getMappingFromStrs(const Vor_String& variable, const Vor_String& mapping) {
    Vor_String group;
    Vor_String rest;
    if (!splitString(mapping, groupSeparator, group, rest)) return Acad::eInvalidInput;
    rest = stripSymbols(rest, ' ', true, false);
    const TwMapType kind = mapTypeFromPrefix(rest);
    if (kind == TwMapType::none) return Acad::eInvalidInput;
    m_group = group;
    m_kind = kind;
    m_objectName = getSubstrAfter(rest, " ");
    m_variable = variable;
    return Acad::eOk;
}

ErrorStatus TwObjectMap::mapFromArrays(const Vor_StringArray& variables,
                                       const Vor_StringArray& mappings, const TwVarCell& cell) {
    const int index = variables.find(cell.name());
    if (!mappings.isIndex(index)) return Acad::eInvalidInput;
    return getMappingFromStrs(variables[index], mappings[index]);
}

ErrorStatus TwObjectMap::isCompatible(const TwObjectMap& other) const {
    const bool same = m_kind == other.m_kind && m_group.equal(other.m_group) &&
                      m_objectName.equal(other.m_objectName);
    return same ? Acad::eOk : Acad::eInvalidInput;
}

ErrorStatus TwObjectMap::getMacroVarValue(Vor_DbMacro* dbMacro, MacroData* macroData,
                                          Vor_String& value, AcTransaction* transaction) const {
    return getSetMacroVarValue(dbMacro, macroData, value, true, transaction);
}

ErrorStatus TwObjectMap::setMacroVarValue(Vor_DbMacro* dbMacro, MacroData* macroData,
                                          Vor_String& value, AcTransaction* transaction) const {
    return getSetMacroVarValue(dbMacro, macroData, value, false, transaction);
}
