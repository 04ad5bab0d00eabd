#include "sections/dialogs/section_picture_control.h"

#include <string>

#include "sections/section_types.h"

void showSectionPicture(CStatic& control, const Vor_String& drawnAs, const Vor_String& section,
                        PictureSize size) {
    std::string error;
    const auto picture = readBitmap(iconPath(sectionPicture(drawnAs, section, size)), error);
    control.setBitmap(picture.value_or(CBitmap()));
}

Vor_String displayOfDrawnAs(const Vor_String& drawnAs) {
    if (isDrawnTemplate(drawnAs)) return drawnAs;
    const int type = sectionTypeNumber(drawnAs);
    return type > 0 ? sectionTypeDisplay(type) : Vor_String();
}

Vor_String drawnAsOfDisplay(const Vor_String& display) {
    return isDrawnTemplate(display) ? display
                                    : Vor_String(std::to_string(findSectionType(display)));
}
