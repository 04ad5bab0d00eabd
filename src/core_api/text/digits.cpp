#include "core_api/text/digits.h"

int findFirstNumbers(std::string_view text) {
    const size_t found = text.find_first_of("0123456789");
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}
