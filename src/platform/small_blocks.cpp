#include "platform/small_blocks.h"

#include <sys/mman.h>

#include <new>
#include <utility>

SmallBlocks::~SmallBlocks() {
    for (std::byte* chunk : m_chunks) ::operator delete (chunk, std::align_val_t{chunkSize});
}

void* SmallBlocks::take(std::size_t size) {
    if (size > largest) return ::operator new(size);
    const std::size_t units = unitsOf(size);
    if (Free* block = m_free[units]) {
        m_free[units] = block->next;
        return block;
    }
    const std::size_t bytes = units * unit;
    if (static_cast<std::size_t>(m_end - m_next) < bytes) startChunk();
    return std::exchange(m_next, m_next + bytes);
}

void SmallBlocks::giveBack(void* block, std::size_t size) {
    if (size > largest)
        ::operator delete(block);
    else
        m_free[unitsOf(size)] = new (block) Free{m_free[unitsOf(size)]};
}

// The little that was left of the chunk before is given up.
void SmallBlocks::startChunk() {
    void* chunk = ::operator new (chunkSize, std::align_val_t{chunkSize});
    m_chunks.push_back(static_cast<std::byte*>(chunk));
    m_next = m_chunks.back();
    m_end = m_next + chunkSize;
    (void)::madvise(chunk, chunkSize, MADV_HUGEPAGE);  // where the system has none, small ones do
}
