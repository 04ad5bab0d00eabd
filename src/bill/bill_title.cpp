#include "bill/bill_title.h"

#include "core_api/text/text_helpers.h"

Vor_String billTitle(const Vor_String& file) {
    const Vor_String name = removeExtension(getFileName(file));
    const size_t mark = name.view().rfind('\xBF');
    return mark == std::string_view::npos ? name : Vor_String(name.view().substr(mark + 1));
}
