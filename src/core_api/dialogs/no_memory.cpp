#include "core_api/dialogs/no_memory.h"

#include <new>

#include "core_api/texts/texts.h"
#include "platform/host/host.h"

bool noMemoryForDialog() {
    constexpr int noMemoryText = 21006;
    try {
        acutPrintf("%s\n", dialString(noMemoryText).str().c_str());
    } catch (const std::bad_alloc&) {
        // There is not even enough to say so.
    }
    return false;
}
