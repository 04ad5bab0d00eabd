// Property lists: whatever is accepted must come back the same from its own text.
#include "core_api/property_list.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Vor_PropertyList list;
    Vor_String message;
    if (!list.read(text, "fuzz", message)) return message.isEmpty() ? std::abort(), 1 : 0;
    Vor_PropertyList again;
    if (!again.read(list.write(), "again", message) || !(again == list)) std::abort();
    for (const Property& property : list) {
        if (property.type == Property::Type::number && !list.getDouble(property.key)) std::abort();
        if (property.type == Property::Type::whole && !list.getInt(property.key)) std::abort();
    }
    return 0;
}
