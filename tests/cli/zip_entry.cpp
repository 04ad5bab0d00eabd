#include "cli/zip_entry.h"

#include <gtest/gtest.h>
#include <zlib.h>

namespace {

size_t numberAt(std::string_view bytes, size_t at, int size) {
    size_t number = 0;
    for (int i = size - 1; i >= 0; --i)
        number = number << 8 | static_cast<unsigned char>(bytes[at + static_cast<size_t>(i)]);
    return number;
}

std::string inflated(std::string_view packed, size_t size) {
    std::string text(size, '\0');
    z_stream stream{};
    inflateInit2(&stream, -MAX_WBITS);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(text.data());
    stream.avail_out = static_cast<uInt>(size);
    EXPECT_EQ(inflate(&stream, Z_FINISH), Z_STREAM_END);
    inflateEnd(&stream);
    return text;
}

}  // namespace

std::string zipEntry(std::string_view archive, std::string_view name) {
    const std::string_view mark("PK\x01\x02", 4);  // an entry of the central directory
    for (size_t at = archive.find(mark); at != archive.npos; at = archive.find(mark, at + 4)) {
        if (archive.substr(at + 46, numberAt(archive, at + 28, 2)) != name) continue;
        const size_t packed = numberAt(archive, at + 20, 4), size = numberAt(archive, at + 24, 4);
        const size_t local = numberAt(archive, at + 42, 4);
        const size_t start =
            local + 30 + numberAt(archive, local + 26, 2) + numberAt(archive, local + 28, 2);
        const bool isStored = numberAt(archive, at + 10, 2) == 0;
        std::string text = isStored ? std::string(archive.substr(start, size))
                                    : inflated(archive.substr(start, packed), size);
        EXPECT_EQ(numberAt(archive, at + 16, 4),
                  ::crc32(0, reinterpret_cast<const Bytef*>(text.data()),
                          static_cast<uInt>(text.size())));
        return text;
    }
    ADD_FAILURE() << "no entry " << name;
    return {};
}
