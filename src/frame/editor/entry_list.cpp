#include "frame/editor/entry_list.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"

NamedValues listValues(const ValueName& heading, EntryList list,
                       const std::function<NamedValues(int index)>& rowsOf) {
    const auto shared = std::make_shared<const EntryList>(std::move(list));
    NamedValue title;
    title.kind = NamedValue::Kind::heading;
    title.name = heading.text;
    title.list = shared;
    title.read = [] { return Vor_String(); };
    NamedValues values{title};
    for (int i = 0; i < shared->length; ++i) {
        for (NamedValue& row : rowsOf(i)) {
            row.list = shared;
            row.entry = i;
            values.push_back(std::move(row));
        }
    }
    return values;
}

Vor_String entryOwner(const Vor_String& name, int index) {
    return name.isEmpty() ? Vor_String(index + 1, 0) : name;
}

namespace {

/// "Hole" of "Hole_2".
std::string_view withoutNumber(std::string_view name) {
    const size_t mark = name.rfind('_');
    if (mark == std::string_view::npos || mark == 0 || mark + 1 == name.size()) return name;
    const bool isNumbered = std::all_of(name.begin() + static_cast<std::ptrdiff_t>(mark) + 1,
                                        name.end(), [](char c) { return c >= '0' && c <= '9'; });
    return isNumbered ? name.substr(0, mark) : name;
}

}  // namespace

Vor_String freeName(const Vor_StringArray& taken, const Vor_String& name) {
    if (name.isEmpty() || !taken.contains(name)) return name;
    return findNonExistingString(taken, withoutNumber(name));
}
