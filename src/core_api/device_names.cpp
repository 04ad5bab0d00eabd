#include "core_api/device_names.h"

#include <algorithm>
#include <iterator>

#include "platform/encodings.h"

bool isDeviceName(std::string_view name) {
    std::string_view base = name.substr(0, name.find('.'));
    while (base.ends_with(' ')) base.remove_suffix(1);
    constexpr std::string_view words[] = {"con", "prn", "aux", "nul"}, ports[] = {"com", "lpt"};
    const auto is = [&](std::string_view word) { return encodings::equalFolded(base, word); };
    if (std::any_of(std::begin(words), std::end(words), is)) return true;
    constexpr std::string_view digits = "123456789\xB9\xB2\xB3";
    if (base.size() != 4 || digits.find(base.back()) == std::string_view::npos) return false;
    base.remove_suffix(1);
    return std::any_of(std::begin(ports), std::end(ports), is);
}
