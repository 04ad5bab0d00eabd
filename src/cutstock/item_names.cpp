#include "cutstock/item_names.h"

#include "core_api/texts/texts.h"
#include "cutstock/item_rows.h"
#include "platform/encodings.h"

namespace cutstock {

namespace {

constexpr int noFolderNameText = 25201, nameTakenText = 25203;

}  // namespace

ItemNames::ItemNames(const Vor_StringArray& names) {
    for (const Vor_String& name : names) m_lowered.insert(encodings::lowered(name));
}

Vor_String ItemNames::add(const Vor_String& name) {
    const auto refused = [&](int text) { return "\"" + name + "\": " + dialString(text); };
    if (!canBeFolder(name)) return refused(noFolderNameText);
    return m_lowered.insert(encodings::lowered(name)).second ? "" : refused(nameTakenText);
}

bool ItemNames::contains(const Vor_String& name) const {
    return m_lowered.contains(encodings::lowered(name));
}

}  // namespace cutstock
