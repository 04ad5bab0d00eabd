#include "core_api/text/natural_order.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view takeDigits(std::string_view& text) {
    size_t count = 0;
    while (count < text.size() && isDigit(text[count])) ++count;
    std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

}  // namespace

// Digit runs compare as numbers of any length, so without converting them.
int compareNatural(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (isDigit(a[0]) && isDigit(b[0])) {
            const std::string_view x = takeDigits(a);
            const std::string_view y = takeDigits(b);
            if (x.size() != y.size()) return x.size() < y.size() ? -1 : 1;
            if (const int order = x.compare(y)) return order;
            continue;
        }
        if (const int order = encodings::compareFolded(a.substr(0, 1), b.substr(0, 1)))
            return order;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return static_cast<int>(b.empty()) - static_cast<int>(a.empty());
}

int compareNames(std::string_view a, std::string_view b) {
    const int order = compareNatural(a, b);
    return order != 0 ? order : encodings::compareFolded(a, b);
}

int ObjectExportAddToSorted(Vor_StringArray& sorted, const Vor_String& text) {
    const auto at = std::upper_bound(
        sorted.begin(), sorted.end(), text,
        [](const Vor_String& a, const Vor_String& b) { return compareNatural(a, b) < 0; });
    const auto index = static_cast<int>(at - sorted.begin());
    sorted.insertAt(index, text);
    return index;
}
