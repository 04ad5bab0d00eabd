// What a status line tells of the selected cells.
#pragma once

#include "platform/export.h"
#include "spread/control/grid.h"

namespace editor {

struct BlockStatistics {
    long long filled = 0;   ///< cells that are not empty
    long long numbers = 0;  ///< of these the numbers; the rest is about them
    double sum = 0;
    double least = 0;
    double most = 0;
    double average() const { return numbers == 0 ? 0 : sum / static_cast<double>(numbers); }
};

/// Costs what is stored, not what the block spans. The ends of the block may be -1.
VORMANT_API BlockStatistics blockStatistics(const control::Grid& grid, const control::Block& block);

}  // namespace editor
