// Settings lists as they stand in a sheet's corner tag: what is read comes back from its own text.
#include <cstdint>
#include <cstdlib>

#include "spread/tw_sheet_settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TwPropList list;
    list.read({reinterpret_cast<const char*>(data), size});
    TwPropList again;
    again.read(list.write());
    // Numbers are written with ten decimals, so that only the second text has to be the same.
    if (again.write() != list.write()) std::abort();
    TwSheetSettings settings, same;
    settings.fromList(list);
    same.fromList(settings.toList());
    if (settings.varNames.length() < same.varNames.length()) std::abort();
    return 0;
}
