#include "core_api/text/text_index.h"

#include <bit>

#include "platform/encodings.h"
#include "platform/short_text.h"

TextIndex::TextIndex(int expected)
    : m_slots(std::bit_ceil(static_cast<size_t>(expected > 4 ? expected : 4) * 2)) {}

namespace {

inline bool isSame(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    const bool isShort = a.size() <= encodings::longestShortText;
    return (isShort && encodings::endsOf(a) == encodings::endsOf(b)) ||
           encodings::equalFolded(a, b);
}

}  // namespace

// The slot that holds an equal text, or the free one where it belongs.
// Inline: it is asked for every word of a formula.
inline size_t TextIndex::slotOf(std::string_view text, std::uint32_t hash) const {
    const size_t mask = m_slots.size() - 1;
    size_t at = hash & mask;
    const Slot* const slots = m_slots.data();
    while (slots[at].number >= 0 && (slots[at].hash != hash || !isSame(slots[at].text, text)))
        at = (at + 1) & mask;
    return at;
}

int TextIndex::add(std::string_view text, int number) {
    const std::uint32_t hash = encodings::hashFolded(text);
    size_t at = slotOf(text, hash);
    if (m_slots[at].number >= 0) return m_slots[at].number;
    if ((m_used + 1) * 2 > m_slots.size()) {
        grow();
        at = slotOf(text, hash);
    }
    m_slots[at] = {text, hash, number};
    ++m_used;
    return -1;
}

int TextIndex::find(std::string_view text) const {
    return m_slots[slotOf(text, encodings::hashFolded(text))].number;
}

void TextIndex::grow() {
    std::vector<Slot> old(m_slots.size() * 2);
    old.swap(m_slots);
    for (const Slot& slot : old) {
        if (slot.number >= 0) m_slots[slotOf(slot.text, slot.hash)] = slot;
    }
}
