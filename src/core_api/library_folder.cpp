#include "core_api/library_folder.h"

#include "core_api/settings.h"

bool hasLibraryFolder(Vor_String* message) {
    const bool isChosen = !gSettings.libDir().isEmpty();
    if (!isChosen && message) *message = "no library folder is set; choose the library first";
    return isChosen;
}
