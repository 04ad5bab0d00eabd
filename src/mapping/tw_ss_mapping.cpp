#include "mapping/tw_ss_mapping.h"

#include "core_api/files.h"
#include "core_api/macros/macro_access.h"
#include "mapping/mapping_file.h"
#include "mapping/module_group_access.h"
#include "mapping/tw_dlg_standards_data.h"
#include "platform/exclusive_change.h"

namespace {

/// Each tells a difference that the other does not see: entries that only one of them has.
bool areEqual(const TwSSMapping& a, const TwSSMapping& b) {
    return a.isEqual(b) && b.isEqual(a);
}

/// Calls visit(module) for every module of the data's group until one gives true.
template <class Visit>
bool anyModuleOfGroup(Vor_Macro& macro, const Vor_String& group, Visit&& visit) {
    Vor_StringArray names;
    if (getModNamesOfGroup(&macro, group, names) != Acad::eOk) return false;
    for (const Vor_String& name : names)
        if (Vor_Module* module = macro.findModuleWrite(name))
            if (visit(module)) return true;
    return false;
}

}  // namespace

ErrorStatus TwSSMapping::initFromMacro(TwDlgStandardsData& data) {
    if (!data.macro || !data.moduleName.isEmpty()) return Acad::eInvalidInput;
    m_mode = Mode::mappingFile;
    return getMappingFromFile(data.standardsName, data.mappingKey);
}

ErrorStatus TwSSMapping::initFromModuleGroup(const Vor_String& group) {
    if (group.isEmpty()) return Acad::eInvalidInput;
    m_mode = Mode::moduleGroup;
    return Acad::eOk;
}

ErrorStatus TwSSMapping::getMacroVarValue(const Vor_String& name, const TwValueType& type,
                                          Vor_String& value, TwDlgStandardsData& data) {
    Vor_Macro* macro = data.macro ? data.macro->macroWrite() : nullptr;
    if (!macro) return Acad::eInvalidInput;
    if (m_mode != Mode::moduleGroup) {
        int index = 0;
        if (findSSVar(name, type, index) != Acad::eOk) return Acad::eInvalidInput;
        return m_objects[index].getMacroVarValue(data.macro, data.macroData, value,
                                                 data.transaction);
    }
    const bool found = anyModuleOfGroup(*macro, data.moduleName, [&](Vor_Module* module) {
        return getSetModuleGroupVar(name, type, macro, module, data.macroData, value, true,
                                    data.transaction) == Acad::eOk;
    });
    return found ? Acad::eOk : Acad::eInvalidInput;
}

ErrorStatus TwSSMapping::setMacroVarValue(const Vor_String& name, const TwValueType& type,
                                          Vor_String& value, TwDlgStandardsData& data) {
    Vor_Macro* macro = data.macro ? data.macro->macroWrite() : nullptr;
    if (!macro) return Acad::eInvalidInput;
    if (m_mode == Mode::moduleGroup)
        anyModuleOfGroup(*macro, data.moduleName, [&](Vor_Module* module) {
            (void)getSetModuleGroupVar(name, type, macro, module, data.macroData, value, false,
                                       data.transaction);
            return false;
        });
    int index = 0;
    if (findSSVar(name, type, index) != Acad::eOk) return Acad::eInvalidInput;
    return m_objects[index].setMacroVarValue(data.macro, data.macroData, value, data.transaction);
}

ErrorStatus TwSSMapping::findSSVar(const Vor_String& name, const TwValueType& type,
                                   int& index) const {
    for (int i = 0; i < m_objects.length(); ++i) {
        if (mapTypeValueType(m_objects[i].kind()) == type &&
            m_objects[i].spreadsheetVariable().equal(name)) {
            index = i;
            return Acad::eOk;
        }
    }
    return Acad::eInvalidInput;
}

ErrorStatus TwSSMapping::findCompatible(const TwObjectMap& object, int& index) const {
    for (int i = 0; i < m_objects.length(); ++i) {
        if (m_objects[i].isCompatible(object) == Acad::eOk) {
            index = i;
            return Acad::eOk;
        }
    }
    return Acad::eInvalidInput;
}

ErrorStatus TwSSMapping::isCompatible(const TwSSMapping& other, int& missing) const {
    missing = 0;
    int index = 0;
    for (const TwObjectMap& object : m_objects)
        if (other.findCompatible(object, index) != Acad::eOk) ++missing;
    return Acad::eOk;
}

bool TwSSMapping::isEqual(const TwSSMapping& other) const {
    for (const TwObjectMap& object : m_objects) {
        const auto type = mapTypeValueType(object.kind());
        int index = 0;
        if (!type || other.findSSVar(object.spreadsheetVariable(), *type, index) != Acad::eOk ||
            other.m_objects[index].isCompatible(object) != Acad::eOk)
            return false;
    }
    return true;
}

ErrorStatus TwSSMapping::getValidVars(const bool& /*unused*/, const TwValueType& type,
                                      AcArray<int>& indexes) const {
    indexes.removeAll();
    for (int i = 0; i < m_objects.length(); ++i) {
        const auto own = mapTypeValueType(m_objects[i].kind());
        if (own && isNumeric(*own) == isNumeric(type)) indexes.append(i);
    }
    return Acad::eOk;
}

ErrorStatus TwSSMapping::sortValidVars(AcArray<int>& indexes, const AcArray<int>& order) const {
    if (order.isEmpty()) return Acad::eInvalidInput;
    std::vector<std::vector<int>> buckets(static_cast<size_t>(order.length()));
    for (const int index : indexes) {
        const int place = m_objects.isIndex(index) ? order.find(m_objects[index].category()) : -1;
        buckets[place < 0 ? buckets.size() - 1 : static_cast<size_t>(place)].push_back(index);
    }
    indexes.removeAll();
    for (const auto& bucket : buckets) {
        indexes.append(-1);
        for (const int index : bucket) indexes.append(index);
    }
    return Acad::eOk;
}

ErrorStatus TwSSMapping::getMappingFromFile(const Vor_String& standardsName,
                                            const Vor_String& key) {
    const auto lines = readMappingLines(standardsName);
    return lines ? getMappingFromLines(*lines, key) : Acad::eInvalidInput;
}

ErrorStatus TwSSMapping::getMappingFromLines(const Vor_StringArray& lines, const Vor_String& key) {
    if (lines.isEmpty()) return Acad::eOk;
    const int index = findMappingLine(lines, key);
    return index < 0 ? Acad::eInvalidInput : initMappingFromLine(lines[index]);
}

ErrorStatus TwSSMapping::setMappingToFile(const Vor_String& standardsName, const Vor_String& key,
                                          Vor_String* message) const {
    std::string error;
    const auto change = files::ExclusiveChange::take(mappingFilePath(standardsName), error);
    if (!change) {
        if (message) *message = error;
        return Acad::eInvalidInput;
    }
    const auto stored = readMappingLines(standardsName, message);
    if (!stored && ObjectExportFileExists(mappingFilePath(standardsName)))
        return Acad::eInvalidInput;
    Vor_StringArray lines = stored ? *stored : Vor_StringArray();
    const Vor_String line = makeMappingLine(key, m_objects);
    const int index = findMappingLine(lines, key);
    if (index >= 0) {
        TwSSMapping before;
        TwSSMapping after;
        if (before.initMappingFromLine(lines[index]) == Acad::eOk &&
            after.initMappingFromLine(line) == Acad::eOk && areEqual(before, after))
            return Acad::eOk;
        lines.removeAt(index);
    }
    lines.append(line);
    return writeMappingLines(standardsName, std::move(lines), message) ? Acad::eOk
                                                                       : Acad::eInvalidInput;
}

ErrorStatus TwSSMapping::initMappingFromLine(const Vor_String& line) {
    m_objects.clear();
    auto objects = parseMappingLine(line);
    if (!objects) return Acad::eInvalidInput;
    m_objects = std::move(*objects);
    return Acad::eOk;
}

bool TwSSMapping::hasSameMapping(const Vor_String& standardsName, Vor_String& key) const {
    const auto lines = readMappingLines(standardsName);
    if (!lines) return false;
    for (const Vor_String& line : *lines) {
        TwSSMapping stored;
        if (stored.initMappingFromLine(line) == Acad::eOk && stored.isEqual(*this)) {
            key = mappingLineKey(line);
            return true;
        }
    }
    return false;
}
