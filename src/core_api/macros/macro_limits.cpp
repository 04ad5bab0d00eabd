#include "core_api/macros/macro_limits.h"

#include <cmath>

#include "core_api/text/text_helpers.h"

namespace {

bool isControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F;
}

/// Bytes that mapping files put between a variable, its group and its object.
bool isMappingSeparator(char character) {
    return character == '\x83' || character == '\x95' || character == '\xBF';
}

}  // namespace

bool isMacroText(std::string_view text) {
    if (text.size() > static_cast<size_t>(maxMacroNameLength)) return false;
    for (const char character : text) {
        if (isControl(character)) return false;
    }
    return true;
}

bool isMacroName(std::string_view text) {
    if (text.empty() || !isMacroText(text)) return false;
    if (text.front() == '.' || text.front() == ' ' || text.back() == ' ') return false;
    for (const char character : text) {
        if (isMappingSeparator(character)) return false;
    }
    return true;
}

bool isMacroNumber(double number) {
    return std::isfinite(number) && std::fabs(number) <= maxMacroNumber;
}

std::optional<double> macroNumber(std::string_view text) {
    if (!isNumber(text)) return std::nullopt;
    const double number = textToDouble(text);
    if (!isMacroNumber(number)) return std::nullopt;
    return number;
}

std::optional<int> macroBoltCount(std::string_view text) {
    const std::optional<double> number = macroNumber(text);
    if (!number || *number < 0 || *number > maxBoltCount) return std::nullopt;
    if (*number != std::floor(*number)) return std::nullopt;
    return static_cast<int>(*number);
}
