#include "spread/editor/block_statistics.h"

#include <algorithm>

namespace editor {

BlockStatistics blockStatistics(const control::Grid& grid, const control::Block& given) {
    BlockStatistics statistics;
    const auto block = grid.resolved(given);
    if (!block) return statistics;
    long double sum = 0;
    const auto take = [&](const control::Cell& cell) {
        if (cell.type == control::ValueType::empty) return;
        ++statistics.filled;
        if (cell.type != control::ValueType::number) return;
        const bool isFirst = ++statistics.numbers == 1;
        statistics.least = isFirst ? cell.number : std::min(statistics.least, cell.number);
        statistics.most = isFirst ? cell.number : std::max(statistics.most, cell.number);
        sum += cell.number;
    };
    const formula::Area area{block->row1, block->row2, static_cast<uint16_t>(block->col1),
                             static_cast<uint16_t>(block->col2)};
    grid.sheet().cells().eachRun(
        area, [&](const control::CellStore::Run& run) { std::for_each(run.first, run.end, take); });
    statistics.sum = static_cast<double>(sum);
    return statistics;
}

}  // namespace editor
