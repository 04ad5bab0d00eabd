#include "core_api/sections/section_group_array.h"

#include <algorithm>

#include "core_api/texts/texts.h"

Vor_String SectionGroupArray::getName(const int& index) const {
    return m_groups.isIndex(index) ? nameToShow(m_groups[index].names) : Vor_String();
}

long SectionGroupArray::getId(const int& index) const {
    return m_groups.isIndex(index) ? m_groups[index].id : -1;
}

bool SectionGroupArray::getEnabled(const int& index) const {
    return m_groups.isIndex(index) && m_groups[index].isEnabled;
}

bool SectionGroupArray::setEnabled(const int& index, bool enabled) {
    if (!m_groups.isIndex(index)) return false;
    m_groups[index].isEnabled = enabled;
    return true;
}

Vor_String SectionGroupArray::getImage(const int& index) const {
    return m_groups.isIndex(index) ? m_groups[index].image : Vor_String();
}

bool SectionGroupArray::setImage(const int& index, const Vor_String& file) {
    if (!m_groups.isIndex(index)) return false;
    m_groups[index].image = file;
    return true;
}

Vor_StringArray SectionGroupArray::getLangs(const int& index) const {
    return m_groups.isIndex(index) ? m_groups[index].names : Vor_StringArray();
}

bool SectionGroupArray::setLangs(const int& index, const Vor_StringArray& names) {
    if (!m_groups.isIndex(index)) return false;
    m_groups[index].names = names;
    return true;
}

int SectionGroupArray::appendNewGrp() {
    constexpr int newGroupText = 758;
    long id = 1;
    for (const Group& each : m_groups) id = std::max(id, each.id + 1);
    return m_groups.append({id, true, {}, dialStringAllLangs(newGroupText)});
}

bool SectionGroupArray::removeAt(const int& index) {
    return m_groups.isIndex(index) && m_groups.removeAt(index);
}

void SectionGroupArray::namesOfAllGroups(Vor_StringArray& names, AcArray<long>& ids) const {
    names.clear();
    ids.clear();
    for (int i = 0; i < length(); ++i) {
        names.append(getName(i));
        ids.append(getId(i));
    }
}

bool SectionGroupArray::append(Group group) {
    for (const Group& each : m_groups)
        if (each.id == group.id) return false;
    m_groups.append(std::move(group));
    return true;
}
