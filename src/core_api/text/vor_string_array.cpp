#include "core_api/text/vor_string_array.h"

int Vor_StringArray::find(std::string_view text, bool caseMatters) const {
    for (int i = 0; i < length(); ++i) {
        if ((*this)[i].equal(text, caseMatters)) return i;
    }
    return -1;
}
