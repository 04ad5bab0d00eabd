#include "platform/terminal_text.h"

std::string terminalText(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const auto next = static_cast<unsigned char>(i + 1 < utf8.size() ? utf8[i + 1] : 0);
        const bool isTwoBytes = byte == 0xC2 && next >= 0x80 && next < 0xA0;
        const bool isControl =
            isTwoBytes || byte == 0x7F || (byte < 0x20 && byte != '\n' && byte != '\t');
        text += isControl ? '?' : utf8[i];
        if (isTwoBytes) ++i;
    }
    return text;
}
