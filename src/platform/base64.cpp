#include "platform/base64.h"

#include <array>
#include <cstdint>

namespace {

constexpr std::string_view letters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr uint8_t noLetter = 64;

constexpr std::array<uint8_t, 256> makeValues() {
    std::array<uint8_t, 256> values{};
    values.fill(noLetter);
    for (size_t i = 0; i < letters.size(); ++i)
        values[static_cast<unsigned char>(letters[i])] = static_cast<uint8_t>(i);
    return values;
}
constexpr std::array<uint8_t, 256> values = makeValues();

uint32_t byteOf(std::string_view bytes, size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

}  // namespace

std::string toBase64(std::string_view bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (size_t at = 0; at < bytes.size(); at += 3) {
        const uint32_t group =
            byteOf(bytes, at) << 16 | byteOf(bytes, at + 1) << 8 | byteOf(bytes, at + 2);
        const size_t used = bytes.size() - at + 1;  // letters that say something
        for (size_t i = 0; i < 4; ++i) text += i < used ? letters[group >> (18 - 6 * i) & 63] : '=';
    }
    return text;
}

std::optional<std::string> fromBase64(std::string_view text) {
    if (text.size() % 4 != 0) return std::nullopt;
    const size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    const std::string_view coded = text.substr(0, text.size() - padding);
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    uint32_t group = 0;
    int bits = 0;
    for (const char letter : coded) {
        const uint8_t value = values[static_cast<unsigned char>(letter)];
        if (value == noLetter) return std::nullopt;
        group = (group << 6 | value) & 0xFFFFFF;
        bits += 6;
        if (bits < 8) continue;
        bits -= 8;
        bytes += static_cast<char>(group >> bits & 0xFF);
    }
    const uint32_t left = group & ((1U << bits) - 1);
    if (left != 0) return std::nullopt;
    return bytes;
}
