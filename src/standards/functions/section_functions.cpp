// Values and names out of the section tables.
#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "standards/functions/families.h"

Vor_String systemNameOf(const Vor_String& name) {
    Vor_String systemName;
    return gSectionTables.getSystemName(name, systemName) ? systemName : name;
}

FunctionResult sectionSize(FunctionArguments& arguments) {
    const auto section = arguments.text(0);
    const auto index = arguments.whole(1);
    Vor_String value;
    if (!section || !index || getSectionValue(*section, *index - 1, value) != Acad::eOk)
        return std::nullopt;
    return textToDouble(value);
}

FunctionResult getSysName(FunctionArguments& arguments) {
    const auto name = arguments.text(0);
    if (!name) return std::nullopt;
    return systemNameOf(*name);
}
