#include "spread/control/embedded_images.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace control {

std::string pictureName(std::string_view bytes) {
    // FNV-1a, 64 bits.
    uint64_t hash = 0xCBF29CE484222325U;
    for (const char c : bytes) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 0x100000001B3U;
    }
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash, 16).ptr;
    return "#" + std::string(digits.data(), end);
}

bool isPictureName(std::string_view text) {
    constexpr size_t longest = 32;
    return text.size() > 1 && text.size() <= longest && text[0] == '#' &&
           std::all_of(text.begin() + 1, text.end(), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || c == '-';
           });
}

std::string keepPicture(EmbeddedImages& pictures, std::string bytes) {
    const std::string base = pictureName(bytes);
    std::string name = base;
    for (int number = 2;; ++number) {
        const auto found = pictures.find(name);
        if (found == pictures.end()) break;
        if (*found->second.bytes == bytes) return name;
        name = base + "-" + std::to_string(number);
    }
    pictures[name] = {std::make_shared<const std::string>(std::move(bytes))};
    return name;
}

}  // namespace control
