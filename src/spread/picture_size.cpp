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

int32_t littleEndian16(std::string_view bytes, size_t at) {
    return static_cast<int32_t>(byteAt(bytes, at) | byteAt(bytes, at + 1) << 8);
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

/// The sides stand in the frame's header, behind segments of any length.
std::optional<PictureSize> jpegSize(std::string_view bytes) {
    const auto isFrame = [](uint32_t marker) {
        return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 &&
               marker != 0xCC;
    };
    for (size_t at = 2; at + 9 <= bytes.size();) {
        if (byteAt(bytes, at) != 0xFF) return std::nullopt;
        const uint32_t marker = byteAt(bytes, at + 1);
        if (marker == 0xFF) {  // any number of these may stand before a marker
            ++at;
            continue;
        }
        const auto twoBytes = [&](size_t place) {
            return static_cast<int>(byteAt(bytes, place) << 8 | byteAt(bytes, place + 1));
        };
        if (isFrame(marker)) return checked(twoBytes(at + 7), twoBytes(at + 5));
        const bool isAlone = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7);
        if (marker == 0xD9 || marker == 0xDA) return std::nullopt;
        at += isAlone ? 2 : 2 + static_cast<size_t>(twoBytes(at + 2));
    }
    return std::nullopt;
}

}  // namespace

std::optional<PictureSize> pictureSizeOf(std::string_view bytes) {
    if (bytes.starts_with("BM") && bytes.size() >= 26)
        return checked(littleEndian(bytes, 18), littleEndian(bytes, 22));
    if (bytes.starts_with("\x89PNG\r\n\x1A\n") && bytes.size() >= 24)
        return checked(bigEndian(bytes, 16), bigEndian(bytes, 20));
    if (bytes.starts_with("\xFF\xD8\xFF")) return jpegSize(bytes);
    if ((bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) && bytes.size() >= 10)
        return checked(littleEndian16(bytes, 6), littleEndian16(bytes, 8));
    return std::nullopt;
}
