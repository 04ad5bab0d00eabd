#include "core_api/sections/section_type.h"

#include "core_api/texts/texts.h"

SectionType::SectionType() {
    constexpr int newTypeText = 764;
    names = dialStringAllLangs(newTypeText);
}

Vor_String SectionType::getName() const {
    return nameToShow(names);
}
