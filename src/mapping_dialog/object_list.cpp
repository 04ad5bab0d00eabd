#include "mapping_dialog/object_list.h"

#include <unordered_set>

#include "platform/encodings.h"

namespace {

/// Equal for objects that are the same, and for those alone.
std::string identityOf(const TwObjectMap& object) {
    return encodings::uppered(object.group()) + '\n' +
           std::to_string(static_cast<int>(object.kind())) + '\n' +
           encodings::uppered(object.objectName());
}

}  // namespace

Vor_String objectLabel(const TwObjectMap& object) {
    Vor_String label = object.group();
    const auto add = [&](std::string_view part) {
        if (part.empty()) return;
        if (!label.isEmpty()) label += ".";
        label += part;
    };
    add(object.objectName());
    const bool isPlain =
        object.kind() == TwMapType::distance || object.kind() == TwMapType::memberSectionSize;
    if (!isPlain) add(mapTypeName(object.kind()));
    return label + object.extraText();
}

ObjectList::ObjectList(const TwSSMapping& all, TwValueType type) {
    AcArray<int> indexes;
    (void)all.getValidVars(true, type, indexes);
    std::unordered_set<std::string> known, used;
    for (const int index : indexes) {
        const TwObjectMap& object = all.mappedObjects()[index];
        if (!known.insert(identityOf(object)).second) continue;
        const Vor_String plain = objectLabel(object);
        Vor_String label = plain;
        for (int number = 2; !used.insert(encodings::uppered(label)).second; ++number)
            label = plain + " (" + Vor_String(number, 0) + ")";
        m_objects.append(object);
        m_labels.append(label);
    }
}

const TwObjectMap* ObjectList::find(const Vor_String& label) const {
    const int index = m_labels.find(label);
    return index < 0 ? nullptr : &m_objects[index];
}

std::optional<Vor_String> ObjectList::labelOf(const TwObjectMap& object) const {
    for (int i = 0; i < m_objects.length(); ++i)
        if (m_objects[i].isCompatible(object) == Acad::eOk) return m_labels[i];
    return std::nullopt;
}
