#include "spread/control/span_table.h"

namespace control {

const Span* SpanTable::at(int col, int row) const {
    for (const auto& [anchor, column] : m_columns) {
        if (anchor > col) break;
        // Spans of one anchor column lie below each other: only the last one at or above `row`.
        auto next = column.upper_bound(row);
        if (next == column.begin()) continue;
        const Span& span = std::prev(next)->second;
        if (span.contains(col, row)) return &span;
    }
    return nullptr;
}

void SpanTable::add(const Span& span) {
    for (auto column = m_columns.begin(); column != m_columns.end();) {
        if (column->first >= span.col + span.cols) break;
        auto other = column->second.upper_bound(span.row);
        if (other != column->second.begin()) --other;
        while (other != column->second.end() && other->first < span.row + span.rows) {
            const Span& o = other->second;
            const bool overlaps = o.col + o.cols > span.col && o.row + o.rows > span.row;
            other = overlaps ? column->second.erase(other) : std::next(other);
        }
        column = column->second.empty() ? m_columns.erase(column) : std::next(column);
    }
    if (span.cols > 1 || span.rows > 1) m_columns[span.col][span.row] = span;
}

bool SpanTable::removeAt(int col, int row) {
    const Span* span = at(col, row);
    if (!span) return false;
    const auto column = m_columns.find(span->col);
    column->second.erase(span->row);
    if (column->second.empty()) m_columns.erase(column);
    return true;
}

std::vector<Span> SpanTable::all() const {
    std::vector<Span> spans;
    for (const auto& [col, column] : m_columns)
        for (const auto& [row, span] : column) spans.push_back(span);
    return spans;
}

void SpanTable::assign(const std::vector<Span>& spans) {
    m_columns.clear();
    for (const Span& span : spans) add(span);
}

}  // namespace control
