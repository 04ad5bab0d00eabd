// Objects of every size have a place of their own, and what is given back serves again.
#include "platform/small_blocks.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

struct Taken {
    void* place;
    std::size_t size;
    int mark;
};

bool holdsItsMark(const Taken& taken) {
    const auto* bytes = static_cast<const unsigned char*>(taken.place);
    for (std::size_t i = 0; i < taken.size; ++i)
        if (bytes[i] != taken.mark) return false;
    return true;
}

TEST(SmallBlocks, KeepsObjectsApartOverSeveralChunks) {
    SmallBlocks blocks;
    std::vector<Taken> all;
    for (int i = 0; i < 20'000; ++i) {
        const std::size_t size = i % 500 == 0 ? 5000 : 1 + static_cast<std::size_t>(i) * 37 % 1024;
        all.push_back({blocks.take(size), size, i % 251});
        std::memset(all.back().place, all.back().mark, size);
    }
    for (const Taken& taken : all) {
        ASSERT_TRUE(holdsItsMark(taken)) << taken.size << " bytes";
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(taken.place) % alignof(std::max_align_t), 0u);
        blocks.giveBack(taken.place, taken.size);
    }
}

TEST(SmallBlocks, GivesOutAgainWhatFits) {
    SmallBlocks blocks;
    void* const first = blocks.take(100);
    void* const second = blocks.take(100);
    blocks.giveBack(first, 100);
    EXPECT_NE(blocks.take(200), first) << "too small for it";
    EXPECT_EQ(blocks.take(97), first) << "the same number of units";
    EXPECT_NE(blocks.take(100), second) << "still in use";
}

}  // namespace
