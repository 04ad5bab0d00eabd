#include "spread/control/cell_format.h"

#include <algorithm>
#include <functional>

namespace control {
namespace {

constexpr size_t mostFormats = 65536;

class Hash {
  public:
    template <class T>
    Hash& operator<<(const T& field) {
        m_hash = (m_hash ^ std::hash<T>()(field)) * 0x9E3779B97F4A7C15U;
        m_hash ^= m_hash >> 29;
        return *this;
    }
    size_t value() const { return m_hash; }

  private:
    size_t m_hash = 0;
};

size_t hashOf(const CellFormat& format) {
    const CellType& type = format.type;
    Hash hash;
    hash << static_cast<int>(type.kind) << type.decimals << type.editable << type.isIcon
         << type.maxLength << type.style << type.picture << type.otherPicture << type.least
         << type.most << type.text;
    hash << format.font.name << format.font.height << format.font.weight << format.font.italic
         << format.font.underlined;
    hash << format.textColour << format.background << format.borderColour << format.borderSides
         << format.borderStyle << format.alignment << format.locked;
    return hash.value();
}

}  // namespace

CellType numberType(int decimals, uint32_t style, double least, double most) {
    CellType type;
    type.kind = CellKind::number;
    type.decimals = static_cast<uint8_t>(std::clamp(decimals, 0, 15));
    type.style = style;
    type.least = least;
    type.most = most;
    return type;
}

CellType editType(int maxLength, uint32_t style) {
    CellType type;
    type.kind = CellKind::edit;
    type.maxLength = std::max(maxLength, 0);
    type.style = style;
    return type;
}

FormatTable::FormatTable() : m_formats(2) {
    m_index.emplace(hashOf(m_formats[plainFormat]), plainFormat);
}

FormatIndex FormatTable::intern(const CellFormat& format) {
    const size_t hash = hashOf(format);
    const auto [first, last] = m_index.equal_range(hash);
    for (auto found = first; found != last; ++found)
        if (m_formats[found->second] == format) return found->second;
    if (m_formats.size() == mostFormats) return plainFormat;
    const auto index = static_cast<FormatIndex>(m_formats.size());
    m_formats.push_back(format);
    m_index.emplace(hash, index);
    return index;
}

FormatIndex FormatTable::withType(FormatIndex base, const CellType& type) {
    for (const Remembered& known : m_remembered)
        if (known.base == base && known.type == type) return known.result;
    CellFormat format = m_formats[base];
    format.type = type;
    const FormatIndex result = intern(format);
    m_remembered[m_nextRemembered] = {base, result, type};
    m_nextRemembered = (m_nextRemembered + 1) % m_remembered.size();
    return result;
}

}  // namespace control
