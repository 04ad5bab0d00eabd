#include "mapping_dialog/attached_sheets.h"

#include <utility>

#include "core_api/macros/macro_limits.h"
#include "core_api/text/text_helpers.h"

namespace {

constexpr std::string_view groupPrefix = "Module.";

/// The key of a mapping on the entire macro, which is none for a module group.
Vor_String keyOf(const AttachedSheet& sheet) {
    if (sheet.group) return Vor_String(groupPrefix) + *sheet.group;
    return sheet.key.beginsWith(groupPrefix) ? Vor_String() : sheet.key;
}

}  // namespace

AttachedSheets::AttachedSheets(const TabMappingData& data) : m_moduleGroups(data.moduleGroups()) {
    for (int i = 0; i < data.length(); ++i) {
        AttachedSheet sheet;
        sheet.name = data.standardsNames()[i];
        sheet.key = data.mappingKeys()[i];
        sheet.id = ++m_lastId;
        const Vor_String group = getSubstrAfter(sheet.key, ".");
        if (sheet.key.beginsWith(groupPrefix) && !group.isEmpty()) sheet.group = group;
        m_sheets.push_back(std::move(sheet));
    }
}

bool AttachedSheets::append() {
    if (length() >= maxMacroItems) return false;
    m_sheets.emplace_back().id = ++m_lastId;
    return true;
}

bool AttachedSheets::remove(int index) {
    if (!has(index)) return false;
    m_sheets.erase(m_sheets.begin() + index);
    return true;
}

bool AttachedSheets::swap(int a, int b) {
    if (!has(a) || !has(b)) return false;
    std::swap((*this)[a], (*this)[b]);
    return true;
}

std::optional<TabMappingData> AttachedSheets::toData() const {
    TabMappingData data;
    data.setModuleGroups(m_moduleGroups);
    for (const AttachedSheet& sheet : m_sheets)
        if (data.insertRow(data.length(), sheet.name, keyOf(sheet)) != Acad::eOk)
            return std::nullopt;
    return data;
}
