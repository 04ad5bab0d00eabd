#include "spread/control/side_tables.h"

#include <algorithm>
#include <utility>

#include "spread/control/reference_moves.h"

namespace control {
namespace {

constexpr int gone = 0;

// Where an index (from 1) goes when rows or columns change: its new index, or `gone`.
struct Insertion {
    int at, count;
    int operator()(int index) const { return index < at ? index : index + count; }
};

struct Deletion {
    int at, count;
    int operator()(int index) const {
        if (index < at) return index;
        return index < at + count ? gone : index - count;
    }
};

struct Exchange {
    int first, other, count;
    int operator()(int index) const {
        if (index >= first && index < first + count) return index - first + other;
        if (index >= other && index < other + count) return index - other + first;
        return index;
    }
};

struct Relocation {
    int from, count, to;
    int operator()(int index) const { return movedLine(index, from, count, to); }
};

struct Cut {
    int last;
    int operator()(int index) const { return index <= last ? index : gone; }
};

template <class T, class Move>
void moveKeys(std::map<int, T>& map, Move move) {
    if (map.empty()) return;
    std::map<int, T> moved;
    while (!map.empty()) {
        auto node = map.extract(map.begin());
        if (const int index = move(node.key()); index != gone) {
            node.key() = index;
            moved.insert(moved.end(), std::move(node));
        }
    }
    map = std::move(moved);
}

template <class Move>
void moveKeys(std::set<int>& set, Move move) {
    std::set<int> moved;
    for (const int index : set)
        if (const int to = move(index); to != gone) moved.insert(to);
    set = std::move(moved);
}

template <class Move>
void moveBand(Band& band, Move move) {
    moveKeys(band.texts, move);
    moveKeys(band.formats, move);
    moveKeys(band.sizes, move);
    moveKeys(band.hidden, move);
}

// Header cells have 0 in a direction and stay there.
template <class Move>
void moveCells(CellTexts& texts, bool rows, Move move) {
    if (texts.empty()) return;
    CellTexts moved;
    for (auto& [key, text] : texts) {
        int col = keyCol(key), row = keyRow(key);
        int& index = rows ? row : col;
        if (index != 0 && (index = move(index)) == gone) continue;
        moved.emplace(cellKey(col, row), std::move(text));
    }
    texts = std::move(moved);
}

template <class Move>
void moveColumnFormats(std::vector<FormatIndex>& formats, Move move) {
    std::vector<FormatIndex> moved;
    for (size_t col = 1; col < formats.size(); ++col) {
        const auto to = static_cast<size_t>(move(static_cast<int>(col)));
        if (formats[col] == inheritedFormat || to == gone) continue;
        if (to >= moved.size()) moved.resize(to + 1, inheritedFormat);
        moved[to] = formats[col];
    }
    formats = std::move(moved);
}

// One direction of a span: its first index and its extent, from 1. Header spans (0) stay.
void grow(int& first, int& extent, const Insertion& by) {
    if (first == 0) return;
    if (by.at <= first)
        first += by.count;
    else if (by.at < first + extent)
        extent += by.count;
}

void shrink(int& first, int& extent, const Deletion& by) {
    if (first == 0) return;
    const int end = first + extent;
    const int cutFrom = std::clamp(by.at, first, end);
    const int cutTo = std::clamp(by.at + by.count, first, end);
    extent -= cutTo - cutFrom;
    if (by.at < first) first = std::max(by.at, first - by.count);
}

template <class Move>
void carrySpan(int& first, int extent, const Move& by) {
    if (first == 0) return;
    // A span moves with its lines; one that they would tear apart stays.
    const int to = by(first);
    if (by(first + extent - 1) == to + extent - 1) first = to;
}

void limit(int first, int& extent, int last) {
    if (first + extent - 1 > last) extent = last - first + 1;
}

template <class Change>
void changeSpans(SpanTable& table, Change&& change) {
    if (table.isEmpty()) return;
    std::vector<Span> spans = table.all();
    for (Span& span : spans) change(span);
    std::erase_if(spans, [](const Span& span) { return span.cols < 1 || span.rows < 1; });
    table.assign(spans);
}

template <class Move>
void moveRowsOf(SideTables& tables, Move move) {
    moveBand(tables.rows, move);
    moveCells(tables.tags, true, move);
    moveCells(tables.notes, true, move);
}

template <class Move>
void moveColsOf(SideTables& tables, Move move) {
    moveBand(tables.cols, move);
    moveCells(tables.tags, false, move);
    moveCells(tables.notes, false, move);
    moveColumnFormats(tables.columnFormats, move);
}

}  // namespace

SideTables::SideTables() {
    cols.defaultSize = 64;
    cols.headerSize = 20;
    rows.defaultSize = 20;
    rows.headerSize = 40;
}

void SideTables::insertRows(int at, int count) {
    const Insertion move{at, count};
    moveRowsOf(*this, move);
    changeSpans(spans, [&](Span& span) { grow(span.row, span.rows, move); });
}

void SideTables::deleteRows(int at, int count) {
    const Deletion move{at, count};
    moveRowsOf(*this, move);
    changeSpans(spans, [&](Span& span) { shrink(span.row, span.rows, move); });
}

void SideTables::insertCols(int at, int count) {
    const Insertion move{at, count};
    moveColsOf(*this, move);
    changeSpans(spans, [&](Span& span) { grow(span.col, span.cols, move); });
}

void SideTables::deleteCols(int at, int count) {
    const Deletion move{at, count};
    moveColsOf(*this, move);
    changeSpans(spans, [&](Span& span) { shrink(span.col, span.cols, move); });
}

void SideTables::swapRows(int first, int other, int count) {
    const Exchange move{first, other, count};
    moveRowsOf(*this, move);
    changeSpans(spans, [&](Span& span) { carrySpan(span.row, span.rows, move); });
}

void SideTables::swapCols(int first, int other, int count) {
    const Exchange move{first, other, count};
    moveColsOf(*this, move);
    changeSpans(spans, [&](Span& span) { carrySpan(span.col, span.cols, move); });
}

void SideTables::moveRows(int from, int count, int to) {
    const Relocation move{from, count, to};
    moveRowsOf(*this, move);
    changeSpans(spans, [&](Span& span) { carrySpan(span.row, span.rows, move); });
}

void SideTables::moveCols(int from, int count, int to) {
    const Relocation move{from, count, to};
    moveColsOf(*this, move);
    changeSpans(spans, [&](Span& span) { carrySpan(span.col, span.cols, move); });
}

void SideTables::cut(int lastCol, int lastRow) {
    moveColsOf(*this, Cut{lastCol});
    moveRowsOf(*this, Cut{lastRow});
    changeSpans(spans, [&](Span& span) {
        limit(span.col, span.cols, lastCol);
        limit(span.row, span.rows, lastRow);
    });
}

}  // namespace control
