#include "exchange/zip_archive.h"

#include <zlib.h>

#include <limits>
#include <new>
#include <stdexcept>

namespace exchange {

namespace {

constexpr std::size_t most32 = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t mostEntries = std::numeric_limits<std::uint16_t>::max();

void appendNumber(std::string& bytes, std::size_t number, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8 * i & 0xFF);
}

/// The raw stream, without a header of its own.
class Deflater {
  public:
    Deflater() {
        constexpr int memory = 8;
        const int result = ::deflateInit2(&m_stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS,
                                          memory, Z_DEFAULT_STRATEGY);
        if (result != Z_OK) throw std::bad_alloc();
    }
    ~Deflater() { ::deflateEnd(&m_stream); }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;

    void append(std::string& bytes, std::string_view content) {
        const auto size = static_cast<uLong>(content.size());
        const std::size_t start = bytes.size();
        const auto bound = static_cast<std::size_t>(::deflateBound(&m_stream, size));
        bytes.resize(start + bound);
        m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.data()));
        m_stream.avail_in = static_cast<uInt>(size);
        m_stream.next_out = reinterpret_cast<Bytef*>(bytes.data() + start);
        m_stream.avail_out = static_cast<uInt>(bound);
        if (::deflate(&m_stream, Z_FINISH) != Z_STREAM_END)
            throw std::logic_error("a part of an archive was not compressed");
        bytes.resize(start + bound - m_stream.avail_out);
    }

  private:
    z_stream m_stream{};
};

}  // namespace

void ZipArchive::appendHeader(const Entry& entry, bool isCentral) {
    constexpr int version = 20, deflated = 8, firstDay = 1 << 5 | 1;  // 1 January 1980
    appendNumber(m_bytes, isCentral ? 0x02014b50 : 0x04034b50, 4);
    if (isCentral) appendNumber(m_bytes, version, 2);
    appendNumber(m_bytes, version, 2);
    appendNumber(m_bytes, 0, 2);
    appendNumber(m_bytes, deflated, 2);
    appendNumber(m_bytes, 0, 2);
    appendNumber(m_bytes, firstDay, 2);
    appendNumber(m_bytes, entry.crc, 4);
    appendNumber(m_bytes, entry.packed, 4);
    appendNumber(m_bytes, entry.size, 4);
    appendNumber(m_bytes, entry.name.size(), 2);
    appendNumber(m_bytes, 0, 2);
    if (isCentral) {
        m_bytes.append(10, '\0');  // no comment, first disk, no attributes
        appendNumber(m_bytes, entry.offset, 4);
    }
    m_bytes += entry.name;
}

void ZipArchive::add(std::string_view name, std::string_view content) {
    constexpr std::size_t largestPart = most32 / 2;  // so that its packed form fits as well
    if (content.size() > largestPart || m_entries.size() >= mostEntries) m_fits = false;
    if (!m_fits) return;
    const auto* bytes = reinterpret_cast<const Bytef*>(content.data());
    Entry entry{.name = std::string(name),
                .crc = static_cast<std::uint32_t>(
                    ::crc32_z(::crc32_z(0, nullptr, 0), bytes, content.size())),
                .packed = 0,
                .size = content.size(),
                .offset = m_bytes.size()};
    std::string packed;
    Deflater().append(packed, content);
    entry.packed = packed.size();
    appendHeader(entry, false);
    m_bytes += packed;
    m_entries.push_back(std::move(entry));
    if (m_bytes.size() > most32) m_fits = false;
}

std::string ZipArchive::finish() && {
    const std::size_t start = m_bytes.size();
    for (const Entry& entry : m_entries) appendHeader(entry, true);
    const std::size_t size = m_bytes.size() - start;
    appendNumber(m_bytes, 0x06054b50, 4);
    appendNumber(m_bytes, 0, 4);
    appendNumber(m_bytes, m_entries.size(), 2);
    appendNumber(m_bytes, m_entries.size(), 2);
    appendNumber(m_bytes, size, 4);
    appendNumber(m_bytes, start, 4);
    appendNumber(m_bytes, 0, 2);
    return std::move(m_bytes);
}

}  // namespace exchange
