// Finds texts by their content, letter case aside, in constant time. The index borrows its texts:
// they must stay where they are as long as it is used.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/export.h"

class VORMANT_API TextIndex {
  public:
    /// `expected` texts will fit without growing.
    explicit TextIndex(int expected = 0);

    /// Takes `text` in under `number`. When an equal text is there already, nothing changes and
    /// that text's number comes back; else -1.
    int add(std::string_view text, int number);
    /// The number of the text equal to `text`, or -1.
    int find(std::string_view text) const;

  private:
    struct Slot {
        std::string_view text;
        std::uint32_t hash = 0;
        int number = -1;  // -1: free
    };

    size_t slotOf(std::string_view text, std::uint32_t hash) const;
    void grow();

    std::vector<Slot> m_slots;  // a power of two of them, at most half in use
    size_t m_used = 0;
};
