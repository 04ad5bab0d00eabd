#include "spread/control/formula/parser.h"

#include <array>

#include "spread/control/formula/lexer.h"

namespace formula {

namespace {

/// What the code emitted last leaves on the stack.
enum class Kind {
    single,     ///< one plain value for certain
    reference,  ///< the last instruction is Op::reference
    area,       ///< the last two instructions are an Op::area
    open,       ///< a value, an area or an array: only the calculation tells
};

/// How the surroundings will use a value; see FunctionSpec::params.
enum class Want { single, reference };

std::string upperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    return upper;
}

class Parser {
  public:
    Parser(std::string_view text, const ParseSettings& settings, ParseError& error)
        : m_lexer(text, settings.style),
          m_settings(settings),
          m_error(error),
          m_inArray(settings.arrayFormula) {
        m_code.reserve(32);
    }
    ~Parser() {
        for (const Instruction& i : m_code)
            if (i.op == Op::text)
                control::TextBlock::release(const_cast<control::TextBlock*>(i.text));
    }

    ProgramRef parse() {
        advance();
        if (isSymbol(Symbol::equal)) advance();
        Kind kind;
        if (!comparison(Want::single, kind)) return {};
        if (m_token.kind != TokenKind::end)
            return fail("unexpected '" + here() + "'"), ProgramRef();
        makeSingle(kind);
        if (kind == Kind::open || kind == Kind::area) emitSingle();
        ProgramRef program = intern(m_code, m_maxDepth, m_isVolatile);
        m_code.clear();  // the program owns the texts now
        return program;
    }

  private:
    struct Nested {
        explicit Nested(int& depth) : m_depth(depth) { ++m_depth; }
        ~Nested() { --m_depth; }
        int& m_depth;
    };

    // --- tokens
    void advance() { m_lexer.next(m_token); }
    bool isSymbol(Symbol symbol) const { return m_token.symbol == symbol; }
    std::string here() const {
        return m_token.kind == TokenKind::end ? "end of the formula"
                                              : std::string(m_lexer.textOf(m_token));
    }
    bool fail(std::string message) {
        m_error = {std::move(message), m_token.position};
        return false;
    }
    bool expect(Symbol symbol, const char* what) {
        if (!isSymbol(symbol)) return fail(std::string(what) + " expected at '" + here() + "'");
        advance();
        return true;
    }

    // --- code
    Instruction& emit(Op op, int depthChange) {
        Instruction& i = m_code.emplace_back();
        i.op = op;
        if (m_inArray) i.flags |= Instruction::inArray;
        m_depth += depthChange;
        m_maxDepth = std::max(m_maxDepth, m_depth);
        return i;
    }
    size_t position() const { return m_code.size(); }
    void jumpHere(size_t from) { m_code[from].a = static_cast<int32_t>(position()); }
    void emitSingle() {
        Instruction& i = emit(Op::single, 0);
        i.flags = 0;
    }
    /// Turns a reference into the value of its cell; areas become one value too, but in an array
    /// context they stay what they are.
    void makeSingle(Kind& kind) {
        if (kind == Kind::reference) {
            m_code.back().op = Op::cell;
            kind = Kind::single;
        } else if ((kind == Kind::area || kind == Kind::open) && !m_inArray) {
            emitSingle();
            kind = Kind::single;
        }
    }

    // --- grammar
    static int precedence(Symbol symbol) {
        switch (symbol) {
            case Symbol::equal:
            case Symbol::notEqual:
            case Symbol::less:
            case Symbol::lessEqual:
            case Symbol::greater:
            case Symbol::greaterEqual:
                return 1;
            case Symbol::join:
                return 2;
            case Symbol::plus:
            case Symbol::minus:
                return 3;
            case Symbol::times:
            case Symbol::divide:
                return 4;
            case Symbol::power:
                return 5;
            default:
                return 0;
        }
    }
    static Op operation(Symbol symbol) {
        switch (symbol) {
            case Symbol::equal:
                return Op::equal;
            case Symbol::notEqual:
                return Op::notEqual;
            case Symbol::less:
                return Op::less;
            case Symbol::lessEqual:
                return Op::lessEqual;
            case Symbol::greater:
                return Op::greater;
            case Symbol::greaterEqual:
                return Op::greaterEqual;
            case Symbol::join:
                return Op::concatenate;
            case Symbol::plus:
                return Op::add;
            case Symbol::minus:
                return Op::subtract;
            case Symbol::times:
                return Op::multiply;
            case Symbol::divide:
                return Op::divide;
            default:
                return Op::power;
        }
    }
    bool comparison(Want want, Kind& kind) { return binary(1, want, kind); }

    bool binary(int least, Want want, Kind& kind) {
        if (m_nesting >= maxNesting) return fail("nested deeper than 256");
        const Nested nested(m_nesting);
        if (!unary(want, kind)) return false;
        for (;;) {
            const Symbol symbol = m_token.symbol;
            const int level = precedence(symbol);
            if (level < least || level == 0) return true;
            makeSingle(kind);
            advance();
            Kind right;
            if (!binary(level + 1, Want::single, right)) return false;
            makeSingle(right);
            emit(operation(symbol), -1);
            kind = m_inArray ? Kind::open : Kind::single;
        }
    }

    bool unary(Want want, Kind& kind) {
        std::array<Op, maxNesting> signs;
        size_t count = 0;
        while (isSymbol(Symbol::plus) || isSymbol(Symbol::minus) || isSymbol(Symbol::at)) {
            if (count == signs.size()) return fail("nested deeper than 256");
            signs[count++] = isSymbol(Symbol::minus)  ? Op::negate
                             : isSymbol(Symbol::plus) ? Op::plus
                                                      : Op::single;
            advance();
        }
        if (!postfix(count ? Want::single : want, kind)) return false;
        while (count > 0) {
            makeSingle(kind);
            const Op sign = signs[--count];
            if (sign == Op::negate || (sign == Op::single && kind != Kind::single)) emit(sign, 0);
        }
        return true;
    }

    bool postfix(Want want, Kind& kind) {
        if (!range(want, kind)) return false;
        while (isSymbol(Symbol::percent)) {
            makeSingle(kind);
            emit(Op::percent, 0);
            advance();
        }
        return true;
    }

    bool range(Want want, Kind& kind) {
        const size_t start = position();
        if (!primary(want, kind)) return false;
        while (isSymbol(Symbol::colon)) {
            advance();
            const size_t second = position();
            Kind right;
            if (!primary(Want::reference, right)) return false;
            if (kind == Kind::reference && right == Kind::reference && second == start + 1 &&
                position() == second + 1) {
                m_code[start].op = Op::area;
                m_code[second].op = Op::corner;
                --m_depth;
                kind = Kind::area;
                continue;
            }
            if (kind == Kind::single || right == Kind::single)
                return fail("':' joins references only");
            emit(Op::range, -1);
            kind = Kind::open;
        }
        return true;
    }

    bool primary(Want want, Kind& kind) {
        kind = Kind::single;
        switch (m_token.kind) {
            case TokenKind::number:
                emit(Op::number, 1).number = m_token.number;
                break;
            case TokenKind::text:
                emit(Op::text, 1).text = control::TextBlock::make(unquote(m_lexer.textOf(m_token)));
                break;
            case TokenKind::error:
                emit(Op::error, 1).a = static_cast<int>(m_token.error);
                break;
            case TokenKind::reference:
                return reference(kind);
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

    void setPlace(Instruction& i, const Corner& corner) const {
        const bool a1 = m_settings.style == ReferenceStyle::a1;
        i.place = {corner.row, corner.col};
        if (corner.rowRelative) {
            i.flags |= Instruction::relativeRow;
            if (a1) i.place.row -= m_settings.hostRow;
        }
        if (corner.colRelative) {
            i.flags |= Instruction::relativeCol;
            if (a1) i.place.col -= m_settings.hostCol;
        }
    }

    bool reference(Kind& kind) {
        const ReferenceToken r = m_token.reference;
        advance();
        if (!r.wholeCols && !r.wholeRows) {
            setPlace(emit(Op::reference, 1), r.first);
            kind = Kind::reference;
            return true;
        }
        const uint8_t whole = r.wholeCols ? Instruction::wholeCol : Instruction::wholeRow;
        for (const bool isFirst : {true, false}) {
            Instruction& i = emit(isFirst ? Op::area : Op::corner, isFirst ? 1 : 0);
            setPlace(i, isFirst ? r.first : r.last);
            i.flags |= whole;
        }
        kind = Kind::area;
        return true;
    }

    bool parenthesis(Want want, Kind& kind) {
        advance();
        return comparison(want, kind) && expect(Symbol::close, "')'");
    }

    bool matrix(Kind& kind) {
        advance();
        int rows = 1, count = 0;
        for (;;) {
            Kind element;
            const bool negative = isSymbol(Symbol::minus);
            if (negative || isSymbol(Symbol::plus)) advance();
            if (m_token.kind == TokenKind::reference || m_token.symbol != Symbol::none)
                return fail("an array in braces holds plain values only");
            if (!primary(Want::single, element)) return false;
            if (negative) emit(Op::negate, 0).flags = 0;
            ++count;
            if (isSymbol(Symbol::semicolon))
                ++rows;
            else if (!isSymbol(Symbol::comma))
                break;
            advance();
        }
        if (count % rows != 0) return fail("the rows of an array in braces differ in length");
        if (!expect(Symbol::closeBrace, "'}'")) return false;
        Instruction& i = emit(Op::matrix, 1 - count);
        i.a = rows;
        i.place = {count / rows, 0};
        kind = Kind::open;
        return true;
    }

    bool name(Want want, Kind& kind) {
        std::string upper = upperCase(m_lexer.textOf(m_token));
        const Token nameToken = m_token;
        advance();
        if (isSymbol(Symbol::open) && m_token.position == nameToken.position + nameToken.length) {
            // Workbooks prefix newer functions when they are saved.
            if (upper.starts_with("_XLFN.")) upper.erase(0, 6);
            return call(upper, nameToken, want, kind);
        }
        if (upper == "TRUE" || upper == "FALSE") {
            emit(Op::boolean, 1).a = upper == "TRUE";
            kind = Kind::single;
            return true;
        }
        m_token = nameToken;
        return fail("unknown name '" + std::string(m_lexer.textOf(nameToken)) + "'");
    }

    bool call(const std::string& upper, const Token& nameToken, Want want, Kind& kind) {
        if (m_nesting >= maxNesting) return fail("nested deeper than 256");
        const Nested nested(m_nesting);
        const CustomFunction* custom =
            m_settings.findCustom ? m_settings.findCustom(m_settings.registry, upper) : nullptr;
        const FunctionSpec* spec = custom ? nullptr : findFunction(upper);
        if (!custom && !spec) {
            m_token = nameToken;
            return fail("unknown function '" + std::string(m_lexer.textOf(nameToken)) + "'");
        }
        advance();  // the parenthesis
        if (spec && !m_inArray) {
            if (upper == "IF") return ifCall(want, kind);
            if (upper == "IFERROR") return ifErrorCall(want, kind, 0);
            if (upper == "IFNA") return ifErrorCall(want, kind, 1);
            if (upper == "CHOOSE") return chooseCall(want, kind);
        }
        int count = 0;
        if (!arguments(spec, custom, count)) return false;
        const int least = spec ? spec->least : custom->least;
        const int most = spec ? spec->most : custom->most;
        if (count < least || count > most) {
            m_token = nameToken;
            return fail(
                upper +
                (count < least ? " needs at least " + std::to_string(least)
                               : " takes at most " + std::to_string(most)) +
                (std::max(count < least ? least : most, 0) == 1 ? " argument" : " arguments"));
        }
        Instruction& i = emit(spec ? Op::call : Op::callCustom, 1 - count);
        i.argc = static_cast<uint8_t>(count);
        if (spec) {
            i.function = spec;
            m_isVolatile |= (spec->flags & formula::isVolatile) != 0;
        } else {
            i.custom = custom;
        }
        kind = custom ? Kind::single : Kind::open;
        if (spec && spec->params.find_first_not_of('v') == std::string_view::npos && !m_inArray)
            kind = Kind::single;
        if (spec && returnsSingle(*spec) && !m_inArray) kind = Kind::single;
        return true;
    }

    /// Aggregates and tests give one value whatever they are given; the others might give areas.
    static bool returnsSingle(const FunctionSpec& spec) {
        return spec.name == "SUM" || spec.name == "MIN" || spec.name == "MAX" ||
               spec.name == "AND" || spec.name == "OR" || spec.name == "COUNT" ||
               spec.name == "AVERAGE";
    }

    bool arguments(const FunctionSpec* spec, const CustomFunction* custom, int& count) {
        if (isSymbol(Symbol::close)) {
            advance();
            return true;
        }
        for (;;) {
            if (count == anyCount) return fail("more than 255 arguments");
            const char parameter = custom
                                       ? (custom->cellArguments ? 'r' : 'v')
                                       : parameterClass(spec->params, static_cast<size_t>(count));
            if (!argument(parameter)) return false;
            ++count;
            if (isSymbol(Symbol::close)) {
                advance();
                return true;
            }
            if (!expect(Symbol::comma, "',' or ')'")) return false;
        }
    }

    bool argument(char parameter) {
        if (isSymbol(Symbol::comma) || isSymbol(Symbol::close)) {
            emit(Op::missing, 1);
            return true;
        }
        const bool wasInArray = m_inArray;
        if (parameter == 'a') m_inArray = true;
        Kind kind;
        const size_t start = position();
        const bool isGood = comparison(parameter == 'v' ? Want::single : Want::reference, kind);
        m_inArray = wasInArray;
        if (!isGood) return false;
        if (parameter == 'v') {
            makeSingle(kind);
        } else if (parameter == 'p') {
            if (kind == Kind::reference) placeOnly(start, position() - start == 1);
            if (kind == Kind::area) m_code[start].op = Op::place;
        }
        return true;
    }
    /// A lone reference whose cell is not read: ROW(A1) in A1 is no circle.
    void placeOnly(size_t start, bool isAlone) {
        if (!isAlone) return;
        m_code[start].op = Op::place;
        Instruction corner = m_code[start];
        corner.op = Op::corner;
        m_code.push_back(corner);
    }

    /// A branch of IF, IFERROR or CHOOSE, and what it leaves.
    bool branch(Want want, Kind& kind) {
        if (isSymbol(Symbol::comma) || isSymbol(Symbol::close)) {
            emit(Op::number, 1).number = 0;
            kind = Kind::single;
            return true;
        }
        if (!comparison(want, kind)) return false;
        if (want == Want::single) makeSingle(kind);
        return true;
    }
    static Kind joined(Kind a, Kind b) {
        return a == Kind::single && b == Kind::single ? Kind::single : Kind::open;
    }

    bool ifCall(Want want, Kind& kind) {
        Kind condition;
        if (!branch(Want::single, condition)) return false;
        if (!expect(Symbol::comma, "','")) return false;
        const size_t test = position();
        emit(Op::jumpIfNot, -1);
        if (!branch(want, kind)) return false;
        const size_t skip = position();
        emit(Op::jump, -1);
        jumpHere(test);
        Kind other = Kind::single;
        if (isSymbol(Symbol::comma)) {
            advance();
            if (!branch(want, other)) return false;
        } else {
            emit(Op::boolean, 1).a = 0;
        }
        jumpHere(skip);
        m_code[test].place = {static_cast<int32_t>(position()), 0};
        kind = joined(kind, other);
        return expect(Symbol::close, "')'");
    }

    bool ifErrorCall(Want want, Kind& kind, uint8_t onlyMissing) {
        // Errors are looked for in a plain value, so the first part is always one.
        if (!branch(Want::single, kind)) return false;
        if (!expect(Symbol::comma, "','")) return false;
        const size_t test = position();
        Instruction& i = emit(Op::jumpUnlessError, -1);
        i.b = onlyMissing;
        Kind other;
        if (!branch(want, other)) return false;
        jumpHere(test);
        kind = joined(kind, other);
        return expect(Symbol::close, "')'");
    }

    bool chooseCall(Want want, Kind& kind) {
        Kind index;
        if (!branch(Want::single, index)) return false;
        const size_t choose = position();
        emit(Op::choose, -1);
        const size_t tableSize = countBranches();
        if (tableSize == 0) return fail("CHOOSE needs at least 2 arguments");
        if (tableSize > 254) return fail("more than 255 arguments");
        m_code[choose].argc = static_cast<uint8_t>(tableSize);
        for (size_t n = 0; n < tableSize; ++n) emit(Op::jump, 0);
        std::vector<size_t> skips;
        kind = Kind::single;
        for (size_t n = 0; n < tableSize; ++n) {
            if (!expect(Symbol::comma, "','")) return false;
            jumpHere(choose + 1 + n);
            Kind one;
            if (!branch(want, one)) return false;
            kind = joined(kind, one);
            skips.push_back(position());
            emit(Op::jump, -1);
        }
        m_depth += 1;
        for (const size_t skip : skips) jumpHere(skip);
        jumpHere(choose);
        return expect(Symbol::close, "')'");
    }
    /// Counts the arguments that follow at this level, without taking them.
    size_t countBranches() const {
        Lexer ahead = m_lexer;
        Token token = m_token;
        size_t count = 0;
        int depth = 0;
        while (token.kind != TokenKind::end && token.kind != TokenKind::invalid) {
            if (token.symbol == Symbol::open || token.symbol == Symbol::openBrace) ++depth;
            if (token.symbol == Symbol::close || token.symbol == Symbol::closeBrace)
                if (depth-- == 0) break;
            if (token.symbol == Symbol::comma && depth == 0) ++count;
            ahead.next(token);
        }
        return count;
    }

    Lexer m_lexer;
    Token m_token;
    const ParseSettings& m_settings;
    ParseError& m_error;
    std::vector<Instruction> m_code;
    int m_nesting = 0;
    int m_depth = 0;
    int m_maxDepth = 0;
    bool m_inArray;
    bool m_isVolatile = false;
};

}  // namespace

char parameterClass(std::string_view params, size_t index) {
    if (params.empty()) return 'v';
    const size_t open = params.find('(');
    if (open == std::string_view::npos) return params[std::min(index, params.size() - 1)];
    if (index < open) return params[index];
    const std::string_view group = params.substr(open + 1, params.size() - open - 2);
    return group[(index - open) % group.size()];
}

ProgramRef parse(std::string_view text, const ParseSettings& settings, ParseError& error) {
    if (text.size() > maxFormulaLength) {
        error = {"the formula is longer than 32768 characters", maxFormulaLength};
        return {};
    }
    return Parser(text, settings, error).parse();
}

}  // namespace formula
