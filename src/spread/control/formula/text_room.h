// How much memory the texts of cells get.
#pragma once

#include <cstddef>

namespace control {

/// Bytes behind a TextBlock of `size` characters: allocators give so many anyway, and a text that
/// fits can take the place of another.
constexpr std::size_t roomFor(std::size_t size) {
    return size == 0 ? 0 : (size + 15) / 16 * 16;
}

}  // namespace control
