// Changing the references in a formula's text while leaving everything else as typed.
#include <utility>

#include "spread/control/formula/lexer.h"
#include "spread/control/formula/parser.h"

namespace formula {

namespace {

std::string referenceText(const MovedReference& r) {
    const Area& a = r.area;
    const auto col = [](int number, bool absolute) {
        return (absolute ? "$" : "") + columnLetters(number);
    };
    const auto row = [](int number, bool absolute) {
        return (absolute ? "$" : "") + std::to_string(number);
    };
    if (r.wholeCols) return col(a.col1, r.colsAbsolute[0]) + ":" + col(a.col2, r.colsAbsolute[1]);
    if (r.wholeRows) return row(a.row1, r.rowsAbsolute[0]) + ":" + row(a.row2, r.rowsAbsolute[1]);
    return cellText(a.col1, a.row1, r.colsAbsolute[0], r.rowsAbsolute[0]);
}

void setRows(MovedReference& r, const Corner& first, const Corner& last) {
    r.area.row1 = first.row;
    r.area.row2 = last.row;
    r.rowsAbsolute[0] = !first.rowRelative;
    r.rowsAbsolute[1] = !last.rowRelative;
    if (r.area.row1 > r.area.row2) {
        std::swap(r.area.row1, r.area.row2);
        std::swap(r.rowsAbsolute[0], r.rowsAbsolute[1]);
    }
}

void setCols(MovedReference& r, const Corner& first, const Corner& last) {
    r.area.col1 = static_cast<uint16_t>(first.col);
    r.area.col2 = static_cast<uint16_t>(last.col);
    r.colsAbsolute[0] = !first.colRelative;
    r.colsAbsolute[1] = !last.colRelative;
    if (r.area.col1 > r.area.col2) {
        std::swap(r.area.col1, r.area.col2);
        std::swap(r.colsAbsolute[0], r.colsAbsolute[1]);
    }
}

MovedReference movable(const ReferenceToken& first, const Corner& last) {
    MovedReference r;
    r.wholeCols = first.wholeCols;
    r.wholeRows = first.wholeRows;
    setRows(r, first.first, last);
    setCols(r, first.first, last);
    if (r.wholeCols) {
        r.area.row1 = 1;
        r.area.row2 = maxRows;
    }
    if (r.wholeRows) {
        r.area.col1 = 1;
        r.area.col2 = maxCols;
    }
    return r;
}

// The text of a moved area of two corners; one of one cell keeps its two corners as typed.
std::string areaText(const MovedReference& r) {
    if (r.wholeCols || r.wholeRows) return referenceText(r);
    return cellText(r.area.col1, r.area.row1, r.colsAbsolute[0], r.rowsAbsolute[0]) + ":" +
           cellText(r.area.col2, r.area.row2, r.colsAbsolute[1], r.rowsAbsolute[1]);
}

std::string r1c1Part(char letter, int number, bool absolute, int host) {
    std::string text(1, letter);
    if (absolute) return text + std::to_string(number);
    if (number != host) text += "[" + std::to_string(number - host) + "]";
    return text;
}

std::string cornerText(const ReferenceToken& r, ReferenceStyle style, int hostCol, int hostRow,
                       const Corner& corner) {
    if (style == ReferenceStyle::a1) {
        if (r.wholeCols) return (corner.colRelative ? "" : "$") + columnLetters(corner.col);
        if (r.wholeRows) return (corner.rowRelative ? "" : "$") + std::to_string(corner.row);
        return cellText(corner.col, corner.row, !corner.colRelative, !corner.rowRelative);
    }
    std::string text;
    if (!r.wholeCols) text += r1c1Part('R', corner.row, !corner.rowRelative, hostRow);
    if (!r.wholeRows) text += r1c1Part('C', corner.col, !corner.colRelative, hostCol);
    return text;
}

}  // namespace

std::optional<std::string> rewriteReferences(std::string_view text, const MoveReference& move) {
    Lexer lexer(text, ReferenceStyle::a1);
    std::string result;
    size_t copied = 0;
    Token token;
    for (lexer.next(token); token.kind != TokenKind::end;) {
        if (token.kind == TokenKind::invalid) return std::nullopt;
        if (token.kind != TokenKind::reference) {
            lexer.next(token);
            continue;
        }
        const Token first = token;
        size_t end = first.position + first.length;
        Corner last = first.reference.last;
        bool isArea = false;
        lexer.next(token);
        if (token.symbol == Symbol::colon && !first.reference.wholeCols &&
            !first.reference.wholeRows) {
            Lexer ahead = lexer;
            Token second;
            ahead.next(second);
            if (second.kind == TokenKind::reference && !second.reference.wholeCols &&
                !second.reference.wholeRows) {
                last = second.reference.first;
                end = second.position + second.length;
                isArea = true;
                lexer = ahead;
                lexer.next(token);
            }
        }
        MovedReference moved = movable(first.reference, last);
        result += text.substr(copied, first.position - copied);
        if (move(moved))
            result += isArea ? areaText(moved) : referenceText(moved);
        else
            result += "#REF!";
        copied = end;
    }
    result += text.substr(copied);
    return result;
}

std::optional<std::string> convertStyle(std::string_view text, ReferenceStyle from,
                                        ReferenceStyle to, int hostCol, int hostRow) {
    if (from == to) return std::string(text);
    Lexer lexer(text, from);
    std::string result;
    size_t copied = 0;
    Token token;
    for (lexer.next(token); token.kind != TokenKind::end; lexer.next(token)) {
        if (token.kind == TokenKind::invalid) return std::nullopt;
        if (token.kind != TokenKind::reference) continue;
        ReferenceToken r = token.reference;
        if (from == ReferenceStyle::r1c1)
            for (Corner* corner : {&r.first, &r.last}) {
                if (corner->rowRelative) corner->row += hostRow;
                if (corner->colRelative) corner->col += hostCol;
                const bool rowIsGood = r.wholeCols || (corner->row >= 1 && corner->row <= maxRows);
                const bool colIsGood = r.wholeRows || (corner->col >= 1 && corner->col <= maxCols);
                if (!rowIsGood || !colIsGood) return std::nullopt;
            }
        result += text.substr(copied, token.position - copied);
        result += cornerText(r, to, hostCol, hostRow, r.first);
        // A whole column is "A:A" in one notation and "C1" in the other.
        if (to == ReferenceStyle::a1 ? (r.wholeCols || r.wholeRows)
                                     : cornerText(r, to, hostCol, hostRow, r.last) !=
                                           cornerText(r, to, hostCol, hostRow, r.first))
            result += ":" + cornerText(r, to, hostCol, hostRow, r.last);
        copied = token.position + token.length;
    }
    result += text.substr(copied);
    return result;
}

}  // namespace formula
