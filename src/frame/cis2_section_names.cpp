#include "frame/cis2_section_names.h"

#include "core_api/texts/texts.h"
#include "platform/window/message_box.h"

namespace {

constexpr const char* fileName = "CIS2ProfNames.dat";
constexpr int fileTitle = 25000, sectionTitle = 670, otherTitle = 1740;

bool told(ErrorStatus status, const Vor_String& message) {
    if (status != Acad::eOk) showWarning(dialString(fileTitle), message);
    return status == Acad::eOk;
}

}  // namespace

bool readCis2SectionNames(TwDlgCis2Data& data) {
    SectionTranslation names;
    Vor_String message;
    const bool isRead = told(readSectionTranslation(fileName, names, &message), message);
    if (isRead && !data.sectionName.isEmpty() && names.otherName(data.sectionName).isEmpty())
        names.set(data.sectionName, "");
    data.sectionNames = std::move(names);
    data.areSectionNamesKnown = isRead;
    return isRead;
}

void writeCis2SectionNames(const SectionTranslation& names) {
    Vor_String message;
    told(writeSectionTranslation(fileName, dialString(sectionTitle), dialString(otherTitle), names,
                                 &message),
         message);
}
