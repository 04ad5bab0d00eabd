// The names of items. They are those of folders, on systems of which some ignore letter case.
#pragma once

#include <string>
#include <unordered_set>

#include "core_api/text/vor_string_array.h"

namespace cutstock {

class ItemNames {
  public:
    ItemNames() = default;
    explicit ItemNames(const Vor_StringArray& names);

    /// Empty when the name was taken in, else why it cannot be that of one more item.
    [[nodiscard]] Vor_String add(const Vor_String& name);
    /// Letter case aside.
    bool contains(const Vor_String& name) const;

  private:
    std::unordered_set<std::string> m_lowered;
};

}  // namespace cutstock
