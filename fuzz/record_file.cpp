// Record files: whatever is accepted must come back the same from its own text.
#include <cstdint>
#include <cstdlib>

#include "core_api/files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    RecordRows records;
    Vor_String message;
    if (!readRecords(text, "fuzz", records, message))
        return message.isEmpty() ? std::abort(), 1 : 0;
    RecordRows again;
    if (!readRecords(writeRecords(records), "again", again, message) || !(again == records))
        std::abort();
    return 0;
}
