#include "spread/picture_size.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

constexpr int mostPixels = 32767;

uint32_t byteAt(std::string_view bytes, size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

int32_t littleEndian(std::string_view bytes, size_t at) {
    return static_cast<int32_t>(byteAt(bytes, at) | byteAt(bytes, at + 1) << 8 |
                                byteAt(bytes, at + 2) << 16 | byteAt(bytes, at + 3) << 24);
}

int32_t bigEndian(std::string_view bytes, size_t at) {
    return static_cast<int32_t>(byteAt(bytes, at) << 24 | byteAt(bytes, at + 1) << 16 |
                                byteAt(bytes, at + 2) << 8 | byteAt(bytes, at + 3));
}

std::optional<PictureSize> checked(int64_t width, int64_t height) {
    // A bitmap that is stored from the top down has a negative height.
    height = std::abs(height);
    if (width < 1 || width > mostPixels || height < 1 || height > mostPixels) return std::nullopt;
    return PictureSize{static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace

std::optional<PictureSize> pictureSizeOf(std::string_view bytes) {
    if (bytes.starts_with("BM") && bytes.size() >= 26)
        return checked(littleEndian(bytes, 18), littleEndian(bytes, 22));
    if (bytes.starts_with("\x89PNG\r\n\x1A\n") && bytes.size() >= 24)
        return checked(bigEndian(bytes, 16), bigEndian(bytes, 20));
    return std::nullopt;
}
