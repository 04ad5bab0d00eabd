#include "core_api/text/text_index.h"

#include <bit>

#include "platform/encodings.h"

TextIndex::TextIndex(int expected)
    : m_slots(std::bit_ceil(static_cast<size_t>(expected > 4 ? expected : 4) * 2)) {}

// The slot that holds an equal text, or the free one where it belongs.
size_t TextIndex::slotOf(std::string_view text, std::uint32_t hash) const {
    const size_t mask = m_slots.size() - 1;
    size_t at = hash & mask;
    while (m_slots[at].number >= 0 &&
           (m_slots[at].hash != hash ||
            (m_slots[at].text != text && !encodings::equalFolded(m_slots[at].text, text)))) {
        at = (at + 1) & mask;
    }
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
