// A ZIP archive made in memory, for the packages that office programs read. The same parts give the
// same bytes: times are the format's first day.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

class ZipArchive {
  public:
    /// Adds a part, compressed. Sizes are 32 bits in the format; `fits` tells when they are not
    /// enough. Throws std::bad_alloc when memory runs out, as everything here.
    void add(std::string_view name, std::string_view content);
    /// False when an archive of this many and this large parts cannot be written.
    bool fits() const { return m_fits; }
    /// The whole archive.
    std::string finish() &&;

  private:
    struct Entry {
        std::string name;
        std::uint32_t crc = 0;
        std::size_t packed = 0;
        std::size_t size = 0;
        std::size_t offset = 0;
    };
    void appendHeader(const Entry& entry, bool isCentral);

    std::string m_bytes;
    std::vector<Entry> m_entries;
    bool m_fits = true;
};

}  // namespace exchange
