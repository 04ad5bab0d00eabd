// A sheet of the product and its slow twin. The twin is a plain map of cells. It moves lines by
// writing down which old line stands where, takes references apart into the lines that they hold,
// and calculates by filling a fresh sheet and calculating all of it. Random edits go to both; what
// they then hold must be the same, formulas letter for letter.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "spread/control/formula/lexer.h"
#include "spread/editor/sheet_editor.h"

namespace twin {

/// Gives a random number below its argument.
using Pick = std::function<int(int)>;

/// Lines that an edit leaves: at each place (from 1) the old number of the line, 0 for a new one.
using Lines = std::vector<int>;
inline constexpr int lineCount = 160;  // more than references ever reach

struct End {
    int at = 1;
    bool isFixed = false;  ///< "$"
};

struct Reference {
    enum class Kind { cell, area, cols, rows };
    Kind kind = Kind::cell;
    std::array<End, 2> col, row;
    bool isLost = false;

    static std::string part(char letter, const End& end, int host) {
        if (end.isFixed) return letter + std::to_string(end.at);
        if (end.at == host) return {letter};
        return letter + ("[" + std::to_string(end.at - host) + "]");
    }
    static std::string letters(const End& end) {
        return (end.isFixed ? "$" : "") + formula::columnLetters(end.at);
    }
    static std::string digits(const End& end) {
        return (end.isFixed ? "$" : "") + std::to_string(end.at);
    }
    std::string corner(int i, bool isR1C1, int hostCol, int hostRow) const {
        const auto n = static_cast<size_t>(i);
        std::string text;
        if (isR1C1 && kind != Kind::cols) text += part('R', row[n], hostRow);
        if (isR1C1 && kind != Kind::rows) text += part('C', col[n], hostCol);
        if (!isR1C1 && kind != Kind::rows) text += letters(col[n]);
        if (!isR1C1 && kind != Kind::cols) text += digits(row[n]);
        return text;
    }
    std::string text(bool isR1C1, int hostCol, int hostRow) const {
        if (isLost) return "#REF!";
        const std::string first = corner(0, isR1C1, hostCol, hostRow);
        const std::string last = corner(1, isR1C1, hostCol, hostRow);
        if (kind == Kind::cell || (isR1C1 && kind != Kind::area && first == last)) return first;
        return first + ":" + last;
    }
    /// As a rewritten reference is written: upper left to lower right.
    void order() {
        if (col[0].at > col[1].at) std::swap(col[0], col[1]);
        if (row[0].at > row[1].at) std::swap(row[0], row[1]);
    }
    /// An area that does not move whole holds what it held of the other lines.
    void follow(bool isRows, const Lines& lines, const std::function<bool(int)>& isMoved) {
        order();
        if (isLost || kind == (isRows ? Kind::cols : Kind::rows)) return;
        std::array<End, 2>& ends = isRows ? row : col;
        const int first = ends[0].at, last = ends[1].at;
        const bool movesWhole = isMoved(first) && isMoved(last);
        int low = 0, high = 0;
        for (size_t place = 1; place < lines.size(); ++place) {
            const int old = lines[place];
            if (old < first || old > last || (isMoved(old) && !movesWhole)) continue;
            if (low == 0) low = static_cast<int>(place);
            high = static_cast<int>(place);
        }
        isLost = low == 0;
        ends[0].at = low;
        ends[1].at = high;
    }
    void carry(int cols, int rows) {
        order();
        for (size_t i = 0; i < 2; ++i) {
            if (kind != Kind::rows && !col[i].isFixed) isLost |= (col[i].at += cols) < 1;
            if (kind != Kind::cols && !row[i].isFixed) isLost |= (row[i].at += rows) < 1;
        }
    }
};

struct Formula {
    std::string pattern;  ///< "@" stands for the next of the references
    std::vector<Reference> references;
    bool isArray = false;

    std::string text(bool isR1C1, int hostCol, int hostRow) const {
        std::string text;
        auto next = references.begin();
        for (const char c : pattern)
            if (c == '@')
                text += next++->text(isR1C1, hostCol, hostRow);
            else
                text += c;
        return text;
    }
    Formula carried(int cols, int rows) const {
        Formula other = *this;
        for (Reference& r : other.references) r.carry(cols, rows);
        return other;
    }
};

using Plain = std::variant<std::monostate, double, std::string, bool, formula::ErrorCode>;
using Content = std::variant<Plain, Formula>;
using Place = std::pair<int, int>;  // column, row

inline Plain plainOf(const formula::Value& value) {
    if (value.isNumber()) return value.number();
    if (value.isText()) return std::string(value.text());
    if (value.isBoolean()) return value.truth();
    if (value.isError()) return value.error();
    return std::monostate();
}

inline formula::Value valueOf(const Plain& plain) {
    if (const auto* number = std::get_if<double>(&plain)) return formula::Value(*number);
    if (const auto* text = std::get_if<std::string>(&plain))
        return formula::Value::borrowedText(*text);
    if (const auto* truth = std::get_if<bool>(&plain)) return formula::Value::boolean(*truth);
    if (const auto* error = std::get_if<formula::ErrorCode>(&plain)) return formula::Value(*error);
    return {};
}

inline std::string shown(const Plain& plain) {
    if (const auto* number = std::get_if<double>(&plain)) return std::to_string(*number);
    if (const auto* text = std::get_if<std::string>(&plain)) return '"' + *text + '"';
    if (const auto* truth = std::get_if<bool>(&plain)) return *truth ? "TRUE" : "FALSE";
    if (const auto* error = std::get_if<formula::ErrorCode>(&plain))
        return std::string(formula::errorText(*error));
    return "nothing";
}

struct Sheet {
    int cols = 0, rows = 0;
    std::map<Place, Content> cells;

    void set(int col, int row, Content content) {
        const auto* plain = std::get_if<Plain>(&content);
        if (plain && std::holds_alternative<std::monostate>(*plain))
            cells.erase({col, row});
        else
            cells[{col, row}] = std::move(content);
    }
    Content at(int col, int row) const {
        const auto found = cells.find({col, row});
        return found == cells.end() ? Content() : found->second;
    }
    void resize(int newCols, int newRows) {
        cols = newCols;
        rows = newRows;
        std::erase_if(cells, [&](const auto& cell) {
            return cell.first.first > cols || cell.first.second > rows;
        });
    }
    template <class Change>
    void eachReference(Change&& change) {
        for (auto& [place, content] : cells)
            if (auto* formula = std::get_if<Formula>(&content))
                for (Reference& r : formula->references) change(r);
    }
    void arrange(
        bool isRows, const Lines& lines,
        const std::function<bool(int)>& isMoved = [](int) { return false; }) {
        std::map<Place, Content> old;
        old.swap(cells);
        for (int place = 1; place < static_cast<int>(lines.size()); ++place)
            for (const auto& [from, content] : old)
                if ((isRows ? from.second : from.first) == lines[static_cast<size_t>(place)])
                    cells[isRows ? Place(from.first, place) : Place(place, from.second)] = content;
        eachReference([&](Reference& r) { r.follow(isRows, lines, isMoved); });
        resize(cols, rows);
    }
    /// Content of a block as it stands at another place.
    void put(const Sheet& from, const control::Block& block, int col, int row, bool carries) {
        const int cols = col - block.col1, rows = row - block.row1;
        for (int r = block.row1; r <= block.row2; ++r)
            for (int c = block.col1; c <= block.col2; ++c) {
                Content content = from.at(c, r);
                const auto* formula = std::get_if<Formula>(&content);
                if (formula && carries) content = formula->carried(cols, rows);
                set(c + cols, r + rows, std::move(content));
            }
    }
    void exchange(bool isRows, int first, int other, int count) {
        const Sheet old = *this;
        const auto band = [&](int at) {
            return isRows ? control::Block{1, at, cols, at + count - 1}
                          : control::Block{at, 1, at + count - 1, rows};
        };
        put(old, band(first), isRows ? 1 : other, isRows ? other : 1, true);
        put(old, band(other), isRows ? 1 : first, isRows ? first : 1, true);
    }
    /// All cells of a fresh sheet that is calculated whole.
    control::Sheet calculated(bool isR1C1) const {
        control::Sheet fresh;
        for (const auto& [place, content] : cells) {
            const auto [col, row] = place;
            if (const auto* formula = std::get_if<Formula>(&content))
                fresh.loadFormula(col, row, formula->text(false, col, row), {}, formula->isArray);
            else
                fresh.setValue(col, row, valueOf(std::get<Plain>(content)));
        }
        if (isR1C1) fresh.setReferenceStyle(formula::ReferenceStyle::r1c1);
        fresh.recalculate();
        return fresh;
    }
};

class Twins {
  public:
    /// Edits the grid itself, or as a user does, with undo and redo.
    Twins(Pick pick, bool asUser) : m_pick(std::move(pick)), m_asUser(asUser), m_editor(m_grid) {
        m_grid.setOption(control::Option::userFormulas, true);
        m_grid.setOption(control::Option::automaticRecalculation, true);
        m_grid.setCols(m_twin.cols = 5);
        m_grid.setRows(m_twin.rows = 9);
        m_saved = m_twin;
    }

    /// One edit of both. What differs afterwards, with all edits before it; nothing when they
    /// agree.
    std::optional<std::string> step() {
        m_log += edit();
        m_log += '\n';
        m_twin.resize(m_grid.cols(), m_grid.rows());
        if (!m_editor.canRedo()) m_undone.reset();
        return difference();
    }
    /// Everything up to date, whatever was left undone.
    std::optional<std::string> finish() {
        m_grid.setOption(control::Option::automaticRecalculation, true);
        m_log += "automatic\n";
        return difference();
    }

  private:
    using Block = control::Block;
    enum { insert, remove, move };

    bool chance(int n) { return m_pick(n) == 0; }
    int col() { return 1 + m_pick(m_twin.cols); }
    int row() { return 1 + m_pick(m_twin.rows); }
    Block block() {
        const auto [c1, c2] = std::minmax({col(), col()});
        const auto [r1, r2] = std::minmax({row(), row()});
        return {c1, r1, c2, r2};
    }
    bool isR1C1() const { return m_grid.referenceStyle() == 2; }
    std::string said(std::string_view edit, std::initializer_list<int> numbers, bool isDone) const {
        std::string text(edit);
        for (const int number : numbers) text += " " + std::to_string(number);
        return isDone ? text : text + " (refused)";
    }
    std::string said(std::string_view edit, const Block& b, int c, int r, bool isDone) const {
        return said(edit, {b.col1, b.row1, b.col2, b.row2, c, r}, isDone);
    }

    End end(int at) { return {at, chance(3)}; }
    Reference reference(bool isCell) {
        Reference r;
        r.kind =
            isCell ? Reference::Kind::cell
                   : std::array{Reference::Kind::area, Reference::Kind::area, Reference::Kind::cols,
                                Reference::Kind::rows}[static_cast<size_t>(m_pick(4))];
        r.col = {end(col()), end(col())};
        r.row = {end(row() + m_pick(2)), end(row() + m_pick(2))};
        if (r.kind == Reference::Kind::cell) r.col[1] = r.col[0], r.row[1] = r.row[0];
        if (r.kind == Reference::Kind::cols) r.row = {End{1, true}, End{lineCount, true}};
        if (r.kind == Reference::Kind::rows) r.col = {End{1, true}, End{lineCount, true}};
        return r;
    }
    Formula formula() {
        // "c" is a cell, "r" any reference.
        static constexpr std::array patterns{"SUM(r)",
                                             "SUM(r)",
                                             "c+1",
                                             "c-c*2",
                                             "IF(c>20,c,c)",
                                             "MAX(r,r)",
                                             "COUNT(r)&\"A1\"",
                                             "r",
                                             "r*2",
                                             "ROW(r)*100+COLUMN(r)",
                                             "ROWS(r)+COLUMNS(r)",
                                             "ROW()+COLUMN()/10",
                                             "INDEX(r,2,1)",
                                             "SUM(c:INDEX(r,2,1))",
                                             "SUM(CHOOSE(2,c,c):c)",
                                             "SUM(OFFSET(c,1,0,2,2))",
                                             "INDIRECT(\"B\"&3)+c",
                                             "SUM(INDIRECT(\"R[-1]C\",FALSE),c)",
                                             "SUMIF(r,\">10\")",
                                             "SUMPRODUCT((r>5)*1)",
                                             "MATCH(c,r,0)",
                                             "VLOOKUP(c,r,1,FALSE)",
                                             "IFERROR(c,c)",
                                             "c&\"x\"",
                                             "-c%",
                                             "FORMULATEXT(c)",
                                             "ISFORMULA(c)",
                                             "SUBTOTAL(9,r)",
                                             "AND(c,r)",
                                             "SUM(IF(c,r,c))",
                                             "COUNTBLANK(r)",
                                             "AREAS(r)",
                                             "COUNTA(r,#REF!)"};
        Formula made;
        for (const char* p = patterns[static_cast<size_t>(m_pick(patterns.size()))]; *p; ++p) {
            const bool isReference = *p == 'c' || *p == 'r';
            if (isReference) made.references.push_back(reference(*p == 'c'));
            made.pattern += isReference ? '@' : *p;
        }
        made.isArray = chance(12);
        return made;
    }
    Plain plain() {
        if (chance(6)) return std::string(1, static_cast<char>('a' + m_pick(4)));
        if (chance(10)) return chance(2);
        if (chance(8)) return std::monostate();
        return 1.0 + m_pick(40);
    }

    std::string setFormula(int c, int r, Formula made) {
        const std::string text = made.text(isR1C1(), c, r);
        bool isDone;
        if (m_asUser) {
            made.isArray = false;
            isDone = m_editor.type(c, r, "=" + text);
        } else if (made.isArray) {
            control::Cell cell;
            control::TextBlock* kept = control::TextBlock::make(made.text(false, c, r));
            const int style = m_grid.referenceStyle();
            m_grid.setReferenceStyle(0);
            m_grid.putCell(c, r, cell, kept, true);
            m_grid.setReferenceStyle(style);
            control::TextBlock::release(kept);
            isDone = true;
        } else {
            isDone = m_grid.setFormula(c, r, text);
        }
        if (isDone && !made.isArray) m_calculated.insert({c, r});
        if (isDone) m_twin.set(c, r, std::move(made));
        return said("formula", {c, r}, isDone) + " =" + text;
    }
    std::string setPlain(int c, int r) {
        const Plain value = plain();
        if (m_asUser) {
            const auto* number = std::get_if<double>(&value);
            const auto* text = std::get_if<std::string>(&value);
            if (!number && !text) return "nothing";
            m_editor.type(c, r, text ? *text : std::to_string(static_cast<int>(*number)));
        } else {
            m_grid.writeValue(c, r, valueOf(value));
        }
        m_twin.set(c, r, value);
        return said("value", {c, r}, true) + " " + shown(value);
    }

    // Rows or columns that come, go or move.
    std::string changeLines(bool isRows, int kind) {
        const int now = isRows ? m_twin.rows : m_twin.cols;
        const int at = isRows ? row() : col();
        int count = 1 + m_pick(3);
        const int to = isRows ? row() : col();
        Lines lines(lineCount);
        for (int i = 1; i < lineCount; ++i) lines[static_cast<size_t>(i)] = i;
        const auto first = lines.begin() + at;
        std::function<bool(int)> isMoved = [](int) { return false; };
        bool isDone = false;
        if (kind == move) {
            if (at + count - 1 > now || to + count - 1 > now) return "nothing";
            if (to > at)
                std::rotate(first, first + count, lines.begin() + to + count);
            else
                std::rotate(lines.begin() + to, first, first + count);
            isMoved = [=](int line) { return line >= at && line < at + count; };
            if (m_asUser) {
                const int before = to > at ? to + count : to;
                isDone = isRows ? m_editor.moveRows(at, count, before)
                                : m_editor.moveCols(at, count, before);
            } else {
                isDone = isRows ? m_grid.moveRows(at, count, to) : m_grid.moveCols(at, count, to);
            }
            if (at == to && m_asUser) return "nothing";
        } else if (kind == insert) {
            if (!m_asUser) count = std::min(count, now - at + 1);
            lines.insert(first, static_cast<size_t>(count), 0);
            lines.resize(lineCount);
            if (m_asUser && now + count > 14) return "nothing";
            if (m_asUser)
                isDone = isRows ? m_editor.insertRows(at, count) : m_editor.insertCols(at, count);
            else
                isDone = isRows ? m_grid.insertRows(at, count) : m_grid.insertCols(at, count);
        } else {
            count = std::min(count, now - at + 1);
            lines.erase(first, first + count);
            if (m_asUser)
                isDone = isRows ? m_editor.deleteRows(at, count) : m_editor.deleteCols(at, count);
            else
                isDone = isRows ? m_grid.deleteRows(at, count) : m_grid.deleteCols(at, count);
        }
        if (isDone) {
            m_twin.cols = m_grid.cols();
            m_twin.rows = m_grid.rows();
            m_twin.arrange(isRows, lines, isMoved);
        }
        const char* names[] = {"insert", "delete", "move"};
        return said(std::string(names[kind]) + (isRows ? " rows" : " cols"), {at, count, to},
                    isDone);
    }

    std::string edit() {
        const int c = col(), r = row(), kind = m_pick(24);
        if (kind < 3) return setPlain(c, r);
        if (kind < 7) return setFormula(c, r, formula());
        if (kind < 13) return changeLines(kind < 10, (kind - 7) % 3);
        if (kind == 16) return clear(block());
        return m_asUser ? editAsUser(kind, c, r) : editGrid(kind, c, r);
    }

    std::string clear(const Block& cleared) {
        if (m_asUser)
            m_editor.clearContents(cleared);
        else
            m_grid.clearCells(cleared);
        m_twin.put({}, cleared, cleared.col1, cleared.row1, false);
        return said("clear", cleared, 0, 0, true);
    }

    std::string editGrid(int kind, int c, int r) {
        switch (kind) {
            case 13:
            case 14: {
                const bool isRows = kind == 13;
                const int first = isRows ? r : c, other = isRows ? row() : col();
                const int count = 1 + m_pick(2);
                const bool isDone = isRows ? m_grid.swapRows(first, other, count)
                                           : m_grid.swapCols(first, other, count);
                if (isDone) m_twin.exchange(isRows, first, other, count);
                return said(isRows ? "swap rows" : "swap cols", {first, other, count}, isDone);
            }
            case 15: {
                Block from = block();
                m_grid.copyBlock(from, c, r);
                from.col2 = std::min(from.col2, m_twin.cols - c + from.col1);
                from.row2 = std::min(from.row2, m_twin.rows - r + from.row1);
                m_twin.put(Sheet(m_twin), from, c, r, true);
                return said("copy", from, c, r, true);
            }
            case 17: {
                m_twin.resize(3 + m_pick(6), m_twin.rows);
                m_grid.setCols(m_twin.cols);
                return said("cols", {m_twin.cols}, true);
            }
            case 18: {
                m_twin.resize(m_twin.cols, 4 + m_pick(10));
                m_grid.setRows(m_twin.rows);
                return said("rows", {m_twin.rows}, true);
            }
            case 19: {
                if (!std::holds_alternative<Formula>(m_twin.at(c, r))) return "nothing";
                m_grid.setFormula(c, r, "");
                m_twin.set(c, r, plainOf(m_grid.sheet().value(c, r)));
                return said("keep value", {c, r}, true);
            }
            default:
                return changeSettings(c, r);
        }
    }

    std::string changeSettings(int c, int r) {
        const int automatic = static_cast<int>(control::Option::automaticRecalculation);
        switch (m_pick(4)) {
            case 0:
                m_grid.setReferenceStyle(isR1C1() ? 0 : 2);
                return said("style", {m_grid.referenceStyle()}, true);
            case 1:
                m_grid.setOption(automatic, !m_grid.option(automatic));
                return said("automatic", {m_grid.option(automatic)}, true);
            case 2:
                m_grid.recalculate();
                return "recalculate";
            default:
                m_calculated.insert({c, r});
                m_grid.recalculateCell(c, r);
                return said("recalculate", {c, r}, true);
        }
    }

    std::string editAsUser(int kind, int c, int r) {
        switch (kind) {
            case 13:
                return sort(block(), chance(2));
            case 14: {
                const Block from = block();
                const bool isDone = m_editor.moveBlock(from, c, r);
                if (isDone) moveBlock(from, c, r);
                return said("move", from, c, r, isDone);
            }
            case 15: {
                const Block from = block();
                const bool isDone = m_editor.paste(*m_editor.copy(from), {c, r, c, r});
                m_twin.cols = m_grid.cols(), m_twin.rows = m_grid.rows();
                if (isDone) m_twin.put(Sheet(m_twin), from, c, r, true);
                if (isDone) noteCalculated(from, c, r);
                return said("copy", from, c, r, isDone);
            }
            case 17: {
                const Block filled = block();
                m_editor.fillDown(filled);
                const Sheet old = m_twin;
                for (int to = filled.row1 + 1; to <= filled.row2; ++to)
                    m_twin.put(old, {filled.col1, filled.row1, filled.col2, filled.row1},
                               filled.col1, to, true);
                noteCalculated({filled.col1, filled.row1 + 1, filled.col2, filled.row2},
                               filled.col1, filled.row1 + 1);
                return said("fill", filled, 0, 0, true);
            }
            case 18:
                m_editor.clearHistory();
                m_saved = m_twin;
                return "begin history";
            case 19:
            case 20:
                if (m_undone) {
                    while (m_editor.redo()) {
                    }
                    m_twin = *m_undone;
                    m_undone.reset();
                    return "redo all";
                }
                m_undone = m_twin;
                while (m_editor.undo()) {
                }
                m_twin = m_saved;
                return "undo all";
            default:
                return changeSettings(c, r);
        }
    }

    /// What a user puts somewhere is calculated there once.
    void noteCalculated(const Block& from, int c, int r) {
        for (int row = 0; row <= from.row2 - from.row1; ++row)
            for (int col = 0; col <= from.col2 - from.col1; ++col)
                m_calculated.insert({c + col, r + row});
    }
    void moveBlock(const Block& from, int c, int r) {
        m_twin.cols = m_grid.cols(), m_twin.rows = m_grid.rows();
        const Sheet old = m_twin;
        m_twin.put({}, from, from.col1, from.row1, false);
        m_twin.put(old, from, c, r, false);
        if (c == from.col1 && r == from.row1) return;
        noteCalculated(from, c, r);
        m_twin.eachReference([&](Reference& ref) {
            ref.order();
            if (ref.kind == Reference::Kind::cols || ref.kind == Reference::Kind::rows) return;
            if (ref.col[0].at < from.col1 || ref.col[1].at > from.col2 ||
                ref.row[0].at < from.row1 || ref.row[1].at > from.row2)
                return;
            for (End& end : ref.col) end.at += c - from.col1;
            for (End& end : ref.row) end.at += r - from.row1;
        });
    }

    std::string sort(const Block& b, bool ascending) {
        const auto keyOf = [&](int row) { return plainOf(m_grid.sheet().value(b.col1, row)); };
        const auto rank = [](const Plain& p) { return std::array{4, 0, 1, 2, 3}[p.index()]; };
        std::vector<std::pair<Plain, int>> order;
        for (int row = b.row1; row <= b.row2; ++row) order.emplace_back(keyOf(row), row);
        std::stable_sort(order.begin(), order.end(), [&](const auto& x, const auto& y) {
            const int a = rank(x.first), z = rank(y.first);
            if (a == 4 || z == 4) return a < z;
            const auto& [low, high] = ascending ? std::pair(x, y) : std::pair(y, x);
            if (a != z) return ascending ? a < z : z < a;
            return a != 3 && low.first < high.first;
        });
        const bool isDone = m_editor.sort(b, {{b.col1, ascending}}, false);
        const Sheet old = m_twin;
        for (size_t i = 0; i < order.size() && isDone; ++i) {
            const int from = order[i].second, to = b.row1 + static_cast<int>(i);
            if (from == to) continue;
            const Block line{b.col1, from, b.col2, from};
            m_twin.put(old, line, b.col1, to, true);
            noteCalculated(line, b.col1, to);
        }
        return said(ascending ? "sort" : "sort down", b, 0, 0, isDone);
    }

    std::optional<std::string> difference() {
        std::string found;
        const bool isCalculated = m_grid.option(control::Option::automaticRecalculation);
        const control::Sheet fresh = m_twin.calculated(isR1C1());
        const control::Sheet& now = m_grid.sheet();
        for (int c = 1; c <= m_twin.cols; ++c)
            for (int r = 1; r <= m_twin.rows; ++r) {
                const Content content = m_twin.at(c, r);
                const auto* formula = std::get_if<Formula>(&content);
                const std::string expected = formula ? formula->text(isR1C1(), c, r) : "";
                const std::string text(now.formula(c, r).value_or(""));
                const Plain should = plainOf(fresh.value(c, r)), is = plainOf(now.value(c, r));
                const bool compares = isCalculated || !formula || m_calculated.contains({c, r});
                if (text == expected && (!compares || is == should)) continue;
                found += "column " + std::to_string(c) + ", row " + std::to_string(r) +
                         ": =" + text + " is " + shown(is) + "; should be =" + expected + " with " +
                         shown(should) + "\n";
            }
        m_calculated.clear();
        if (found.empty()) return std::nullopt;
        return m_log + found;
    }

    Pick m_pick;
    bool m_asUser;
    control::Grid m_grid;
    editor::SheetEditor m_editor;
    Sheet m_twin;
    Sheet m_saved;                  // at the beginning of the history
    std::optional<Sheet> m_undone;  // what redoing everything gives
    std::set<Place> m_calculated;   // up to date even without automatic recalculation
    std::string m_log;
};

}  // namespace twin
