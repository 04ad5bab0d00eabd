#include "spread/control/formula/parser.h"

#include <array>

#include "platform/encodings.h"
#include "spread/control/formula/parser_grammar.h"

namespace formula {

namespace {

/// What a symbol does between two values; level 0 when it does nothing there.
struct BinaryOperator {
    int level = 0;
    Op op = Op::missing;
};
constexpr BinaryOperator binaryOperator(Symbol symbol) {
    switch (symbol) {
        case Symbol::equal:
            return {1, Op::equal};
        case Symbol::notEqual:
            return {1, Op::notEqual};
        case Symbol::less:
            return {1, Op::less};
        case Symbol::lessEqual:
            return {1, Op::lessEqual};
        case Symbol::greater:
            return {1, Op::greater};
        case Symbol::greaterEqual:
            return {1, Op::greaterEqual};
        case Symbol::join:
            return {2, Op::concatenate};
        case Symbol::plus:
            return {3, Op::add};
        case Symbol::minus:
            return {3, Op::subtract};
        case Symbol::times:
            return {4, Op::multiply};
        case Symbol::divide:
            return {4, Op::divide};
        case Symbol::power:
            return {5, Op::power};
        default:
            return {};
    }
}
/// As a table: every token of a formula is asked.
constexpr auto binaryOperators = [] {
    std::array<BinaryOperator, static_cast<size_t>(Symbol::at) + 1> table{};
    for (size_t i = 0; i < table.size(); ++i) table[i] = binaryOperator(static_cast<Symbol>(i));
    return table;
}();

}  // namespace

std::string Parser::here() const {
    return m_token.kind == TokenKind::end ? "the end" : std::string(m_lexer.textOf(m_token));
}

bool Parser::fail(std::string message) {
    return failAt(m_token.position, std::move(message));
}

bool Parser::failAt(size_t position, std::string message) {
    m_error = {std::move(message), position};
    return false;
}

bool Parser::failExpected(const char* what) {
    return fail(std::string(what) + " expected at '" + here() + "'");
}

ProgramRef Parser::parse() {
    advance();
    if (isSymbol(Symbol::equal)) advance();
    Kind kind;
    if (!comparison(Want::single, kind)) return {};
    if (m_token.kind != TokenKind::end) {
        fail("unexpected '" + here() + "'");
        return {};
    }
    m_code.makeSingle(kind);
    if (kind != Kind::single) m_code.emitSingle();
    return m_code.finish(m_settings.isShared);
}

inline void Parser::setPlace(Instruction& i, const Corner& corner) const {
    const bool a1 = m_settings.style == ReferenceStyle::a1;
    int row = corner.row;
    int col = corner.col;
    if (corner.rowRelative) {
        i.flags |= Instruction::relativeRow;
        if (a1) row -= m_settings.hostRow;
    }
    if (corner.colRelative) {
        i.flags |= Instruction::relativeCol;
        if (a1) col -= m_settings.hostCol;
    }
    // Further to the side is outside every sheet too.
    i.a = row;
    i.b = static_cast<int16_t>(std::clamp(col, -2 * maxCols + 1, 2 * maxCols - 1));
}

inline bool Parser::reference(Kind& kind) {
    const ReferenceToken& r = m_token.reference;
    if (r.wholeCols || r.wholeRows) return wholeRange(kind);
    setPlace(m_code.emit(Op::reference, 1), r.first);
    kind = Kind::reference;
    advance();
    return true;
}

/// Most values of a formula are references and numbers.
inline bool Parser::primary(Want want, Kind& kind) {
    if (m_token.kind == TokenKind::reference) return reference(kind);
    if (m_token.kind != TokenKind::number) return otherPrimary(want, kind);
    m_code.emit(Op::number, 1, {.number = m_token.number});
    kind = Kind::single;
    advance();
    return true;
}

bool Parser::binary(int least, Want want, Kind& kind) {
    if (m_nesting >= maxNesting) return failNested();
    const Nested nested(m_nesting);
    if (!unary(want, kind)) return false;
    for (;;) {
        const auto [level, op] = binaryOperators[static_cast<size_t>(m_token.symbol)];
        if (level < least) return true;
        m_code.makeSingle(kind);
        const bool isPlain = kind == Kind::single;
        advance();
        Kind right;
        if (!binary(level + 1, Want::single, right)) return false;
        m_code.makeSingle(right);
        m_code.emit(op, -1);
        kind = isPlain && right == Kind::single ? Kind::single : Kind::open;
    }
}

inline bool Parser::unary(Want want, Kind& kind) {
    return isSign() ? signedValue(kind) : postfix(want, kind);
}

bool Parser::signedValue(Kind& kind) {
    std::array<Op, maxNesting> signs;
    size_t count = 0;
    while (isSign()) {
        if (count == signs.size()) return failNested();
        signs[count++] = isSymbol(Symbol::minus)  ? Op::negate
                         : isSymbol(Symbol::plus) ? Op::plus
                                                  : Op::single;
        advance();
    }
    if (!postfix(Want::single, kind)) return false;
    while (count > 0) {
        m_code.makeSingle(kind);
        const Op sign = signs[--count];
        if (sign == Op::negate || (sign == Op::single && kind != Kind::single))
            m_code.emit(sign, 0);
    }
    return true;
}

inline bool Parser::postfix(Want want, Kind& kind) {
    if (!range(want, kind)) return false;
    while (isSymbol(Symbol::percent)) {
        m_code.makeSingle(kind);
        m_code.emit(Op::percent, 0);
        advance();
    }
    return true;
}

inline bool Parser::range(Want want, Kind& kind) {
    const size_t start = m_code.position();
    if (!primary(want, kind)) return false;
    while (isSymbol(Symbol::colon)) {
        advance();
        const size_t second = m_code.position();
        Kind right;
        if (!primary(Want::reference, right)) return false;
        if (kind == Kind::reference && right == Kind::reference && second == start + 1 &&
            m_code.position() == second + 1) {
            m_code[start].op = Op::area;
            m_code[second].op = Op::corner;
            m_code.adjustDepth(-1);
            kind = Kind::area;
            continue;
        }
        if (kind == Kind::single || right == Kind::single) return fail("':' joins references only");
        m_code.emit(Op::range, -1);
        m_code.isVolatile = true;  // what lies between its ends is known when it is calculated
        kind = Kind::open;
    }
    return true;
}

bool Parser::otherPrimary(Want want, Kind& kind) {
    kind = Kind::single;
    switch (m_token.kind) {
        case TokenKind::text:
            m_code.emit(Op::text, 1,
                        {.text = control::TextBlock::make(unquote(m_lexer.textOf(m_token)))});
            break;
        case TokenKind::error:
            m_code.emit(Op::error, 1).a = static_cast<int>(m_token.error);
            break;
        case TokenKind::name:
            return name(want, kind);
        case TokenKind::symbol:
            if (isSymbol(Symbol::open)) return parenthesis(want, kind);
            if (isSymbol(Symbol::openBrace)) return matrix(kind);
            [[fallthrough]];
        default:
            return fail(m_token.kind == TokenKind::end ? "a value is missing at the end"
                                                       : "unexpected '" + here() + "'");
    }
    advance();
    return true;
}

bool Parser::wholeRange(Kind& kind) {
    const ReferenceToken& r = m_token.reference;
    const uint8_t whole = r.wholeCols ? Instruction::wholeCol : Instruction::wholeRow;
    for (const bool isFirst : {true, false}) {
        Instruction& i = m_code.emit(isFirst ? Op::area : Op::corner, isFirst ? 1 : 0);
        setPlace(i, isFirst ? r.first : r.last);
        i.flags |= whole;
    }
    kind = Kind::area;
    advance();
    return true;
}

bool Parser::parenthesis(Want want, Kind& kind) {
    advance();
    return comparison(want, kind) && expect(Symbol::close, "')'");
}

bool Parser::matrix(Kind& kind) {
    advance();
    int rows = 1, count = 0;
    for (;;) {
        Kind element;
        const bool negative = isSymbol(Symbol::minus);
        if (negative || isSymbol(Symbol::plus)) advance();
        if (m_token.kind == TokenKind::reference || m_token.symbol != Symbol::none)
            return fail("an array in braces holds plain values only");
        if (!primary(Want::single, element)) return false;
        if (negative) m_code.emit(Op::negate, 0).flags = 0;
        ++count;
        if (isSymbol(Symbol::semicolon))
            ++rows;
        else if (!isSymbol(Symbol::comma))
            break;
        advance();
    }
    if (count % rows != 0) return fail("the rows of an array in braces differ in length");
    if (!expect(Symbol::closeBrace, "'}'")) return false;
    Instruction& i = m_code.emit(Op::matrix, 1 - count);
    i.a = rows;
    i.b = static_cast<int16_t>(count / rows);
    kind = Kind::open;
    return true;
}

bool Parser::name(Want want, Kind& kind) {
    const std::string_view name = m_lexer.textOf(m_token);
    const size_t position = m_token.position;
    advance();
    if (isSymbol(Symbol::open) && m_token.position == position + name.size())
        return call(name, position, want, kind);
    const bool isTrue = encodings::equalFolded(name, "TRUE");
    if (!isTrue && !encodings::equalFolded(name, "FALSE"))
        return failAt(position, "unknown name '" + std::string(name) + "'");
    m_code.emit(Op::boolean, 1).a = isTrue;
    kind = Kind::single;
    return true;
}

ProgramRef parse(std::string_view text, const ParseSettings& settings, ParseError& error) {
    if (text.size() > maxFormulaLength) {
        error = {"the formula is longer than 32768 characters", maxFormulaLength};
        return {};
    }
    return Parser(text, settings, error).parse();
}

ProgramRef parseWithNames(std::string_view text, const ParseSettings& settings,
                          const CellNames& names) {
    // References may be longer than their names; this far the limit is not reached.
    constexpr size_t longest = maxFormulaLength / 8;
    if (text.size() > longest || settings.style != ReferenceStyle::a1) return {};
    ParseError unused;
    return Parser(text, settings, unused, &names).parse();
}

}  // namespace formula
