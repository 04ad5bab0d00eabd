#include "spread/control/formula/calculation.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <ctime>
#include <new>
#include <random>

#include "platform/clock.h"
#include "spread/control/formula/coerce.h"
#include "spread/control/formula/lexer.h"

namespace formula {

namespace {

constexpr size_t firstChunk = 4096;
constexpr int maxArrayCells = 4'000'000;
constexpr int64_t arrayCellWork = 15;
constexpr size_t largestChunk = size_t{16} << 20;  // but for an array that needs more
constexpr size_t maxArena = size_t{256} << 20;

}  // namespace

int Calculation::rows(const Value& argument) {
    return argument.isArea()    ? argument.area().rows()
           : argument.isArray() ? argument.array().rows
                                : 1;
}

int Calculation::cols(const Value& argument) {
    return argument.isArea()    ? argument.area().cols()
           : argument.isArray() ? argument.array().cols
                                : 1;
}

Value Calculation::element(const Value& argument, int row, int col) const {
    if (argument.isSingle()) return argument;
    const int rowCount = rows(argument);
    const int colCount = cols(argument);
    // One row or column serves for all of them.
    if (rowCount == 1) row = 0;
    if (colCount == 1) col = 0;
    if (row >= rowCount || col >= colCount) return ErrorCode::na;
    if (argument.isArray()) return argument.array().valueAt(row, col);
    const Area area = argument.area();
    return cell(area.col1 + col, area.row1 + row);
}

Value Calculation::clipped(const Value& argument) const {
    if (!argument.isArea()) return argument;
    Area area = argument.area();
    // A look at the sheet's bounds costs a walk over its blocks; small areas are not worth it.
    if (area.rows() <= 1000 && area.cols() <= 100) return argument;
    area.row2 = std::max(area.row1, std::min(area.row2, m_cells->lastRow()));
    area.col2 =
        std::max(area.col1, static_cast<uint16_t>(std::min<int>(area.col2, m_cells->lastCol())));
    return Value::area(area);
}

Value Calculation::text(std::string_view text) {
    return this->text(text, {});
}

Value Calculation::text(std::string_view first, std::string_view second) {
    const size_t size = first.size() + second.size();
    // Numbers as texts always fit, so that their makers need not look.
    if (size > numberTextSize && !(spend(static_cast<int64_t>(size)) && hasRoom(size)))
        return ErrorCode::num;
    char* kept = allocate(size);
    if (!first.empty()) std::memcpy(kept, first.data(), first.size());
    if (!second.empty()) std::memcpy(kept + first.size(), second.data(), second.size());
    return Value::borrowedText({kept, size});
}

Calculation::Extent Calculation::extent(const Value& argument) const {
    if (argument.isArray()) return {argument.array().storedRows, argument.array().storedCols};
    const Value filled = clipped(argument);
    return {rows(filled), cols(filled)};
}

Array* Calculation::newArray(int rows, int cols, const Extent& stored) {
    if (rows < 1 || cols < 1 || rows > maxArrayCells / cols) return nullptr;
    const auto count = static_cast<size_t>(stored.rows) * static_cast<size_t>(stored.cols);
    if (!spend(arrayCellWork * static_cast<int64_t>(count))) return nullptr;
    if (!hasRoom(sizeof(Array) + count * sizeof(Value))) return nullptr;
    char* bytes = allocate(sizeof(Array) + count * sizeof(Value));
    auto* cells = reinterpret_cast<Value*>(bytes + sizeof(Array));
    std::uninitialized_value_construct_n(cells, count);
    return new (bytes) Array{rows, cols, stored.rows, stored.cols, cells, Value()};
}

// One formula of a few hundred characters can ask for a chain of arrays of whole columns.
bool Calculation::hasRoom(size_t size) const {
    if (m_chunk < m_chunks.size() && m_used + size <= m_chunks[m_chunk].size) return true;
    for (const Chunk& chunk : m_chunks) size += chunk.size;
    return size <= maxArena;
}

char* Calculation::allocate(size_t size) {
    size = (size + 15) & ~size_t{15};
    while (m_chunk < m_chunks.size() && m_used + size > m_chunks[m_chunk].size) {
        ++m_chunk;
        m_used = 0;
    }
    if (m_chunk == m_chunks.size()) {
        const size_t previous = m_chunks.empty() ? firstChunk / 2 : m_chunks.back().size;
        const size_t wanted = std::max(size, std::min(previous * 2, largestChunk));
        m_chunks.push_back({std::make_unique_for_overwrite<char[]>(wanted), wanted});
        m_used = 0;
    }
    char* place = m_chunks[m_chunk].bytes.get() + m_used;
    m_used += size;
    return place;
}

void Calculation::releaseArena() {
    constexpr size_t keptSize = 1 << 20;
    if (m_chunk > 0 && m_chunks.back().size > keptSize) m_chunks.resize(1);
    m_chunk = 0;
    m_used = 0;
}

void Calculation::noteDirty(int col, int row) const {
    m_dirtyAreas.push_back({row, row, static_cast<uint16_t>(col), static_cast<uint16_t>(col)});
}

bool Calculation::noteDirtyIn(const control::CellStore::Run& run) const {
    const size_t before = m_dirtyAreas.size();
    int row = run.row;
    for (const control::Cell* cell = run.first; cell != run.end; ++cell, ++row)
        if (mayBeOld(*cell)) noteDirty(run.col, row);
    return m_dirtyAreas.size() != before;
}

std::optional<std::string_view> Calculation::formulaText(int col, int row) const {
    return m_formulas ? m_formulas->formula(col, row) : std::nullopt;
}

std::optional<Area> Calculation::parseReference(std::string_view text, bool a1, int hostCol,
                                                int hostRow) {
    Lexer lexer(text, a1 ? ReferenceStyle::a1 : ReferenceStyle::r1c1);
    Token first, next;
    lexer.next(first);
    if (first.kind != TokenKind::reference) return std::nullopt;
    ReferenceToken r = first.reference;
    lexer.next(next);
    if (next.symbol == Symbol::colon) {
        lexer.next(next);
        if (next.kind != TokenKind::reference) return std::nullopt;
        r.last = next.reference.last;
        lexer.next(next);
    }
    if (next.kind != TokenKind::end) return std::nullopt;
    if (!a1)
        for (Corner* corner : {&r.first, &r.last}) {
            if (corner->rowRelative) corner->row += hostRow;
            if (corner->colRelative) corner->col += hostCol;
        }
    if (r.wholeCols) r.first.row = 1, r.last.row = maxRows;
    if (r.wholeRows) r.first.col = 1, r.last.col = maxCols;
    const auto [row1, row2] = std::minmax(r.first.row, r.last.row);
    const auto [col1, col2] = std::minmax(r.first.col, r.last.col);
    if (row1 < 1 || row2 > maxRows || col1 < 1 || col2 > maxCols) return std::nullopt;
    return Area{row1, row2, static_cast<uint16_t>(col1), static_cast<uint16_t>(col2)};
}

double Calculation::now() const {
    const auto now = platform::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const std::tm local = platform::calendarTime(seconds);
    const auto fraction = now - std::chrono::time_point_cast<std::chrono::seconds>(now);
    // Day 25569 is 1970-01-01.
    return 25569.0 + (static_cast<double>(seconds + local.tm_gmtoff) +
                      std::chrono::duration<double>(fraction).count()) /
                         86400.0;
}

double Calculation::random() {
    static std::mt19937_64 engine{std::random_device{}()};
    return std::uniform_real_distribution<double>(0.0, 1.0)(engine);
}

}  // namespace formula
