// Pictures: whatever is accepted must come back the same from its own bytes; what is refused has a
// reason.
#include <cstdint>
#include <cstdlib>

#include "platform/window/bitmap.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::string error;
    const auto picture = decodeBitmap(bytes, error);
    if (!picture) return error.empty() ? std::abort(), 1 : 0;
    if (decodeBitmap(encodeBitmap(*picture), error) != picture) std::abort();
    return 0;
}
