#include "sections/section_names.h"

#include "core_api/device_names.h"
#include "core_api/text/text_helpers.h"

bool isUserSection(const Vor_String& section) {
    return section.beginsWith(userSectionsFolder);
}

Vor_String userSectionName(const Vor_String& section) {
    const int folder =
        isUserSection(section) ? static_cast<int>(std::string_view(userSectionsFolder).size()) : 0;
    return removeExtension(section.getSubStringAt(folder));
}

Vor_String sectionTableOf(const Vor_String& section) {
    return getSubstrBefore(section, "-");
}

bool canNameSectionTable(std::string_view name) {
    return !name.empty() && name.find('-') == std::string_view::npos && !isDeviceName(name) &&
           !hasInvalidFileNameChars(name);
}
