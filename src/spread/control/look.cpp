#include "spread/control/look.h"

#include <algorithm>
#include <functional>

namespace control {
namespace {

constexpr size_t mostLooks = 65536;

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

size_t hashOf(const Look& look) {
    const CellType& type = look.type;
    Hash hash;
    hash << static_cast<int>(type.kind) << type.decimals << type.editable << type.isIcon
         << type.maxLength << type.style << type.picture << type.otherPicture << type.least
         << type.most << type.text;
    hash << look.font.name << look.font.height << look.font.weight << look.font.italic
         << look.font.underlined;
    hash << look.textColour << look.background << look.borderColour << look.borderSides
         << look.borderStyle << look.alignment << look.locked;
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

LookTable::LookTable() : m_looks(2) {
    m_index.emplace(hashOf(m_looks[plainLook]), plainLook);
}

LookIndex LookTable::intern(const Look& look) {
    const size_t hash = hashOf(look);
    const auto [first, last] = m_index.equal_range(hash);
    for (auto found = first; found != last; ++found)
        if (m_looks[found->second] == look) return found->second;
    if (m_looks.size() == mostLooks) return plainLook;
    const auto index = static_cast<LookIndex>(m_looks.size());
    m_looks.push_back(look);
    m_index.emplace(hash, index);
    return index;
}

LookIndex LookTable::withType(LookIndex base, const CellType& type) {
    for (const Remembered& known : m_remembered)
        if (known.base == base && known.type == type) return known.result;
    Look look = m_looks[base];
    look.type = type;
    const LookIndex result = intern(look);
    m_remembered[m_nextRemembered] = {base, result, type};
    m_nextRemembered = (m_nextRemembered + 1) % m_remembered.size();
    return result;
}

}  // namespace control
