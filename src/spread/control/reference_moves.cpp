#include "spread/control/reference_moves.h"

#include <algorithm>

namespace control {

using formula::MovedReference;

namespace {

// One end of a span under an insertion: what lies at or behind `at` moves.
void shift(int& first, int& last, int at, int count, int limit, bool& isGood) {
    if (first >= at) first += count;
    if (last >= at) last += count;
    if (first > limit) isGood = false;
    if (last > limit) last = limit;
}

// A span under a deletion: it shrinks, and is gone when nothing is left.
void shrink(int& first, int& last, int at, int count, bool& isGood) {
    const int end = at + count;  // the first one that stays
    if (first >= at && last < end) {
        isGood = false;
        return;
    }
    if (first >= end)
        first -= count;
    else if (first >= at)
        first = at;
    if (last >= end)
        last -= count;
    else if (last >= at)
        last = at - 1;
}

// A span when lines from..from+count-1 move: it goes along when it lies inside them, and otherwise
// holds what it held of the others.
void relocate(int& first, int& last, int from, int count, int to) {
    const int end = from + count;
    const bool isInside = first >= from && last < end;
    if (!isInside) {
        if (first >= from && first < end) first = end;
        if (last >= from && last < end) last = from - 1;
    }
    first = movedLine(first, from, count, to);
    last = movedLine(last, from, count, to);
}

template <class Change>
bool changeRows(MovedReference& r, Change&& change) {
    if (r.wholeCols) return true;
    int first = r.area.row1, last = r.area.row2;
    bool isGood = true;
    change(first, last, isGood);
    r.area.row1 = first;
    r.area.row2 = last;
    return isGood;
}

template <class Change>
bool changeCols(MovedReference& r, Change&& change) {
    if (r.wholeRows) return true;
    int first = r.area.col1, last = r.area.col2;
    bool isGood = true;
    change(first, last, isGood);
    r.area.col1 = static_cast<uint16_t>(first);
    r.area.col2 = static_cast<uint16_t>(last);
    return isGood;
}

}  // namespace

formula::MoveReference rowsInserted(int at, int count) {
    return [=](MovedReference& r) {
        return changeRows(r, [=](int& first, int& last, bool& isGood) {
            shift(first, last, at, count, formula::maxRows, isGood);
        });
    };
}

formula::MoveReference rowsDeleted(int at, int count) {
    return [=](MovedReference& r) {
        return changeRows(r, [=](int& first, int& last, bool& isGood) {
            shrink(first, last, at, count, isGood);
        });
    };
}

formula::MoveReference colsInserted(int at, int count) {
    return [=](MovedReference& r) {
        return changeCols(r, [=](int& first, int& last, bool& isGood) {
            shift(first, last, at, count, formula::maxCols, isGood);
        });
    };
}

formula::MoveReference colsDeleted(int at, int count) {
    return [=](MovedReference& r) {
        return changeCols(r, [=](int& first, int& last, bool& isGood) {
            shrink(first, last, at, count, isGood);
        });
    };
}

formula::MoveReference rowsMoved(int from, int count, int to) {
    return [=](MovedReference& r) {
        return changeRows(
            r, [=](int& first, int& last, bool&) { relocate(first, last, from, count, to); });
    };
}

formula::MoveReference colsMoved(int from, int count, int to) {
    return [=](MovedReference& r) {
        return changeCols(
            r, [=](int& first, int& last, bool&) { relocate(first, last, from, count, to); });
    };
}

std::string carriedFormula(std::string_view text, int cols, int rows) {
    const auto moved = formula::rewriteReferences(text, [=](MovedReference& r) {
        if (!r.wholeCols) {
            if (!r.rowsAbsolute[0]) r.area.row1 += rows;
            if (!r.rowsAbsolute[1]) r.area.row2 += rows;
        }
        int col1 = r.area.col1, col2 = r.area.col2;
        if (!r.wholeRows) {
            if (!r.colsAbsolute[0]) col1 += cols;
            if (!r.colsAbsolute[1]) col2 += cols;
        }
        if (col1 < 1 || col2 < 1 || col1 > formula::maxCols || col2 > formula::maxCols ||
            r.area.row1 < 1 || r.area.row2 < 1 || r.area.row1 > formula::maxRows ||
            r.area.row2 > formula::maxRows)
            return false;
        r.area.col1 = static_cast<uint16_t>(col1);
        r.area.col2 = static_cast<uint16_t>(col2);
        return true;
    });
    return moved ? *moved : std::string(text);
}

}  // namespace control
