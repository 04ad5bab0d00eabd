#include "sections/section_pictures.h"

#include <set>
#include <utility>

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "platform/files.h"
#include "platform/host/host.h"
#include "platform/window/controls.h"
#include "sections/section_names.h"
#include "sections/section_types.h"

namespace {

constexpr int wordNotKept = 26951;

/// What the picture files of a section begin with.
Vor_String pictureName(const Vor_String& drawnAs, const Vor_String& section) {
    if (drawnAs.isEmpty()) return userSectionName(section);
    if (isDrawnTemplate(drawnAs)) return removeExtension(drawnAs);
    return sectionTypePicture(sectionTypeNumber(drawnAs));
}

/// Names come out of drawings: one that leads out of its folder must not be written to.
bool staysInFolder(const Vor_String& name) {
    return !splitStringAtSymbol(name, '\\', false).contains("..");
}

bool isOutOfDate(const Vor_String& copy, std::int64_t sourceTime) {
    std::int64_t time = 0;
    return ObjectExportGetFileTime(copy, time) != Acad::eOk || time < sourceTime;
}

bool copyFile(const Vor_String& from, const Vor_String& to, std::string& error) {
    const auto bytes = files::readWhole(from, error);
    return bytes && files::createFolder(getPath(to), error) && files::writeWhole(to, *bytes, error);
}

/// Once for each section: its picture is wanted whenever a dialog shows it.
void reportNotKept(const Vor_String& source, const std::string& why) {
    static std::set<std::string> told;
    if (!told.insert(source.str()).second) return;
    Vor_String message = dialString(wordNotKept);
    message.replaceSubString("%1", source);
    message.replaceSubString("%2", why);
    acutPrint((message + "\n").view());
}

}  // namespace

Vor_String iconPath(const Vor_String& file) {
    return gSettings.vorDir() + "icons\\" + file;
}

Vor_String sectionPicture(const Vor_String& drawnAs, const Vor_String& section, PictureSize size) {
    const char* const ending = size == PictureSize::big ? "-big.bmp" : "-small.bmp";
    const Vor_String name = pictureName(drawnAs, section);
    Vor_String file = name + ending;
    if (ObjectExportFileExists(iconPath(file))) return file;
    const bool mayBeMade = drawnAs.isEmpty() && size == PictureSize::small;
    if (mayBeMade && makeUserSectionPicture(name, file)) return file;
    return Vor_String("Unknown") + ending;
}

bool makeUserSectionPicture(const Vor_String& name, Vor_String& file) {
    const Vor_String source = gSettings.libDir() + userSectionsFolder + name + ".bmp";
    const Vor_String made = name + "-automated.bmp";
    std::int64_t sourceTime = 0;
    if (!staysInFolder(name) || ObjectExportGetFileTime(source, sourceTime) != Acad::eOk)
        return false;
    std::string error;
    if (isOutOfDate(iconPath(made), sourceTime) && !copyFile(source, iconPath(made), error)) {
        reportNotKept(source, error);
        return false;
    }
    file = made;
    return true;
}

bool showIcon(CButton& button, const Vor_String& file, CBitmap::Pixel without) {
    return showPictureFile(button, iconPath(file), without);
}

bool showPictureFile(CButton& button, const Vor_String& path, CBitmap::Pixel without) {
    std::string error;
    auto picture = readBitmap(path, error);
    if (!picture) return false;
    button.setPicture(std::move(*picture), without);
    return true;
}
