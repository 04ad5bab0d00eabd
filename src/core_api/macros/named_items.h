// Looking up the items of a module or macro by name, letter case aside. Lists are short (at most
// maxMacroItems), so they are simply walked.
#pragma once

#include <string_view>

#include "core_api/macros/macro_limits.h"
#include "core_api/text/vor_array.h"

template <class Item>
int indexOfNamed(const Vor_Array<Item>& items, std::string_view name) {
    for (int index = 0; index < items.length(); ++index) {
        if (items[index].name.equal(name)) return index;
    }
    return -1;
}

template <class Item>
const Item* findNamed(const Vor_Array<Item>& items, std::string_view name) {
    const int index = indexOfNamed(items, name);
    return index < 0 ? nullptr : &items[index];
}

template <class Item>
Item* findNamed(Vor_Array<Item>& items, std::string_view name) {
    const int index = indexOfNamed(items, name);
    return index < 0 ? nullptr : &items[index];
}

/// A further item of that name can be added: the name is good and free, and there is room.
template <class Item>
bool isFreeName(const Vor_Array<Item>& items, std::string_view name) {
    return items.length() < maxMacroItems && isMacroName(name) && indexOfNamed(items, name) < 0;
}
