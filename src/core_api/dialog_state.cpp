#include "core_api/dialog_state.h"

#include <cstdlib>

#include "core_api/text/text_helpers.h"
#include "platform/host/host.h"
#include "platform/registry/registry.h"

namespace {

constexpr const char* placeName = "Place";
constexpr int largestSide = 32767;

std::string keyOf(std::string_view dialog) {
    return "Software\\Vormant\\Dialogs\\" + std::string(dialog);
}

void store(std::string_view dialog, std::string_view name, std::string_view value) {
    std::string error;
    if (!registry::write(registry::Root::user, keyOf(dialog), name, value, error))
        acutPrint(error + "\n");
}

}  // namespace

void WriteDlgSize(const CWnd& dialog, std::string_view name) {
    const CRect& place = dialog.rect();
    store(name, placeName,
          std::to_string(place.left) + " " + std::to_string(place.top) + " " +
              std::to_string(place.right) + " " + std::to_string(place.bottom));
}

bool ChangeDlgSize(CWnd& dialog, std::string_view name) {
    const auto stored = registry::read(registry::Root::user, keyOf(name), placeName);
    if (!stored) return false;
    const Vor_StringArray sides = strToArr(*stored, ' ');
    if (sides.length() != 4) return false;
    for (const Vor_String& side : sides) {
        if (!isNumber(side) || std::abs(textToDouble(side)) > 2 * largestSide) return false;
    }
    const CRect place{textToInt(sides[0]), textToInt(sides[1]), textToInt(sides[2]),
                      textToInt(sides[3])};
    const auto isSide = [](int length) { return length >= 1 && length <= largestSide; };
    if (!isSide(place.width()) || !isSide(place.height())) return false;
    dialog.move(place);
    return true;
}

bool readDlgRegBool(std::string_view dialog, std::string_view name, bool& value) {
    const auto stored = registry::read(registry::Root::user, keyOf(dialog), name);
    if (!stored || (*stored != "0" && *stored != "1")) return false;
    value = *stored == "1";
    return true;
}

void writeDlgRegBool(std::string_view dialog, std::string_view name, bool value) {
    store(dialog, name, value ? "1" : "0");
}
