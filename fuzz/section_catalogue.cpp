// The catalogue of section groups and types: the first byte chooses which, the rest is the file.
// Whatever is accepted must come back the same from its own records.
#include <cstdint>
#include <cstdlib>

#include "core_api/sections/section_catalogue.h"

namespace {

template <class List>
void check(const RecordRows& records,
           bool (*read)(const RecordRows&, std::string_view, List&, Vor_String&),
           RecordRows (*write)(const List&)) {
    List list, again;
    Vor_String message;
    if (!read(records, "fuzz", list, message)) {
        if (message.isEmpty()) std::abort();
        return;
    }
    if (!read(write(list), "again", again, message) || !(again == list)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    RecordRows records;
    Vor_String message;
    if (!readRecords(text.substr(1), "fuzz", records, message)) return 0;
    if (text[0] == 'g')
        check(records, readGroupRecords, groupRecords);
    else
        check(records, readTypeRecords, typeRecords);
    return 0;
}
