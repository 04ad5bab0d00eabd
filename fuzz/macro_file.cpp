// Macro files: whatever is read can be written and read again as the same macro, and its dialog
// data can be taken and written back without changing it. Nothing else is ever taken.
#include <cstdlib>
#include <string_view>

#include "core_api/macros/macro_data.h"
#include "core_api/macros/macro_file.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    Vor_PropertyList properties;
    Vor_DbMacro macro;
    Vor_String message;
    if (!properties.read(input, "f", message) ||
        readMacro(properties, "f", macro, message) != Acad::eOk) {
        require(!message.isEmpty() && !macro.macroRead());
        return 0;
    }
    Vor_PropertyList written;
    Vor_DbMacro again;
    require(writeMacro(macro, written, message) == Acad::eOk);
    require(properties.read(written.write(), "g", message));
    require(readMacro(properties, "g", again, message) == Acad::eOk);
    require(again == macro);

    require(makeMacroData(again).setAllToMacro(&again) == Acad::eOk);
    require(again == macro);
    return 0;
}
