// Memory for very many small objects that are made together and live long, such as the programs of
// formulas. They are cut one behind the other from large chunks, for which the system is asked for
// large pages: fetching small pages one by one costs more than filling them. What is given back
// waits for the next object of that size and does not go back to the system. For one thread.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

class SmallBlocks {
  public:
    SmallBlocks() = default;
    /// Ends what was not given back too, but for large ones.
    ~SmallBlocks();
    SmallBlocks(const SmallBlocks&) = delete;
    SmallBlocks& operator=(const SmallBlocks&) = delete;

    /// Aligned for any object; throws as operator new does. Large ones come from there.
    void* take(std::size_t size);
    /// `size` as it was taken.
    void giveBack(void* block, std::size_t size);

  private:
    struct Free {
        Free* next;
    };
    static constexpr std::size_t unit = alignof(std::max_align_t);
    static constexpr std::size_t largest = 1024;
    static constexpr std::size_t chunkSize = std::size_t{2} << 20;  // a large page

    static std::size_t unitsOf(std::size_t size) { return (size + unit - 1) / unit; }
    void startChunk();

    std::array<Free*, largest / unit + 1> m_free{};  // by units
    std::vector<std::byte*> m_chunks;
    std::byte* m_next = nullptr;  // in the last of them
    std::byte* m_end = nullptr;
};
