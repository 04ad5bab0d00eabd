// Function calls: how arguments arrive, and the calls whose branches are chosen while calculating.
#include "platform/encodings.h"
#include "spread/control/formula/parser_grammar.h"

namespace formula {

namespace {

Kind joined(Kind a, Kind b) {
    return a == Kind::single && b == Kind::single ? Kind::single : Kind::open;
}

}  // namespace

char parameterClass(std::string_view params, size_t index) {
    if (params.empty()) return 'v';
    if (params.size() == 1) return params[0];
    const size_t open = params.find('(');
    if (open == std::string_view::npos) return params[std::min(index, params.size() - 1)];
    if (index < open) return params[index];
    const std::string_view group = params.substr(open + 1, params.size() - open - 2);
    return group[(index - open) % group.size()];
}

bool Parser::call(std::string_view name, size_t position, Want want, Kind& kind) {
    if (m_nesting >= maxNesting) return failNested();
    const Nested nested(m_nesting);
    // Workbooks prefix newer functions when they are saved.
    constexpr std::string_view prefix = "_xlfn.";
    const bool isPrefixed =
        name.starts_with('_') && encodings::equalFolded(name.substr(0, prefix.size()), prefix);
    const std::string_view plainName = isPrefixed ? name.substr(prefix.size()) : name;
    const FunctionSpec* spec = findFunction(plainName);
    const CustomFunction* custom = nullptr;
    if (m_settings.findCustom && (!spec || m_settings.customReplaces)) {
        custom = m_settings.findCustom(m_settings.registry, plainName);
        if (custom) spec = nullptr;
    }
    if (!custom && !spec) return failAt(position, "unknown function '" + std::string(name) + "'");
    advance();  // the parenthesis
    if (spec && (spec->flags & isLazy)) return lazyCall(*spec, position, want, kind);
    int count = 0;
    if (isSymbol(Symbol::close))
        advance();
    else if (!arguments(count, [&](int index) {
                 if (custom) return custom->cellArguments ? 'r' : 'v';
                 if (spec->params.size() == 1) return spec->params[0];
                 return parameterClass(spec->params, static_cast<size_t>(index));
             }))
        return false;
    return spec ? emitCall(*spec, count, position, kind) : emitCall(*custom, count, position, kind);
}

bool Parser::failCount(std::string_view name, int count, int least, int most, size_t position) {
    const int limit = count < least ? least : most;
    return failAt(position, std::string(name) +
                                (count < least ? " needs at least " : " takes at most ") +
                                std::to_string(limit) + (limit == 1 ? " argument" : " arguments"));
}

bool Parser::emitCall(const FunctionSpec& spec, int count, size_t position, Kind& kind) {
    if (!checkCount(spec, count, position)) return false;
    m_code.emit(Op::call, 1 - count, {.function = &spec}).b = static_cast<int16_t>(count);
    m_code.isVolatile |= (spec.flags & formula::isVolatile) != 0;
    const auto takesPlain = [&] {
        return spec.params.find_first_not_of('v') == std::string_view::npos;
    };
    kind = (spec.flags & givesOne) || (!m_code.inArray && takesPlain()) ? Kind::single : Kind::open;
    return true;
}

bool Parser::emitCall(const CustomFunction& custom, int count, size_t position, Kind& kind) {
    if (!checkCount(custom, count, position)) return false;
    m_code.emit(Op::callCustom, 1 - count, {.custom = &custom}).b = static_cast<int16_t>(count);
    kind = Kind::single;
    return true;
}

/// The arguments up to the closing parenthesis; `count` goes on from where it stands.
template <class ParameterOf>
bool Parser::arguments(int& count, ParameterOf&& parameterOf) {
    for (;;) {
        if (count == anyCount) return fail("more than 255 arguments");
        if (!argument(parameterOf(count))) return false;
        ++count;
        if (isSymbol(Symbol::close)) {
            advance();
            return true;
        }
        if (!expect(Symbol::comma, "',' or ')'")) return false;
    }
}

bool Parser::argument(char parameter) {
    if (isSymbol(Symbol::comma) || isSymbol(Symbol::close)) {
        m_code.emit(Op::missing, 1);
        return true;
    }
    const bool wasInArray = m_code.inArray;
    if (parameter == 'a') m_code.inArray = true;
    Kind kind;
    const size_t start = m_code.position();
    const bool isGood = comparison(parameter == 'v' ? Want::single : Want::reference, kind);
    m_code.inArray = wasInArray;
    if (!isGood) return false;
    if (parameter == 'v') {
        m_code.makeSingle(kind);
    } else if (parameter == 'p') {
        if (kind == Kind::reference && m_code.position() - start == 1) placeOnly(start);
        if (kind == Kind::area) m_code[start].op = Op::place;
    }
    return true;
}

/// A lone reference whose cell is not read: ROW(A1) in A1 is no circle.
void Parser::placeOnly(size_t start) {
    m_code[start].op = Op::place;
    Instruction corner = m_code[start];
    corner.op = Op::corner;
    m_code.append(corner);
}

bool Parser::lazyCall(const FunctionSpec& spec, size_t position, Want want, Kind& kind) {
    Kind first;
    if (!branch(Want::single, first)) return false;
    if (first != Kind::single) {
        int count = 1;
        if (!expect(Symbol::comma, "','")) return false;
        return arguments(count, [](int) { return 'v'; }) && emitCall(spec, count, position, kind);
    }
    if (spec.name == "CHOOSE") return chooseBranches(want, kind);
    if (!expect(Symbol::comma, "','")) return false;
    if (spec.name == "IF") return ifBranches(want, kind);
    return ifErrorBranches(want, kind, spec.name == "IFNA");
}

/// A branch of IF, IFERROR or CHOOSE, and what it leaves.
bool Parser::branch(Want want, Kind& kind) {
    if (isSymbol(Symbol::comma) || isSymbol(Symbol::close)) {
        m_code.emit(Op::number, 1, {.number = 0});
        kind = Kind::single;
        return true;
    }
    if (!comparison(want, kind)) return false;
    if (want == Want::single) m_code.makeSingle(kind);
    return true;
}

bool Parser::ifBranches(Want want, Kind& kind) {
    const size_t test = m_code.position();
    m_code.emit(Op::jumpIfNot, -1);
    if (!branch(want, kind)) return false;
    const size_t skip = m_code.position();
    m_code.emit(Op::jump, -1);
    m_code.jumpHere(test);
    Kind other = Kind::single;
    if (isSymbol(Symbol::comma)) {
        advance();
        if (!branch(want, other)) return false;
    } else {
        m_code.emit(Op::boolean, 1).a = 0;
    }
    m_code.jumpHere(skip);
    kind = joined(kind, other);
    return expect(Symbol::close, "')'");
}

bool Parser::ifErrorBranches(Want want, Kind& kind, bool onlyMissing) {
    const size_t test = m_code.position();
    Instruction& i = m_code.emit(Op::jumpUnlessError, -1);
    i.b = onlyMissing;
    Kind other;
    if (!branch(want, other)) return false;
    m_code.jumpHere(test);
    kind = joined(Kind::single, other);
    return expect(Symbol::close, "')'");
}

bool Parser::chooseBranches(Want want, Kind& kind) {
    const size_t choose = m_code.position();
    m_code.emit(Op::choose, -1);
    const size_t tableSize = countBranches();
    if (tableSize == 0) return fail("CHOOSE needs at least 2 arguments");
    if (tableSize > 254) return fail("more than 255 arguments");
    m_code[choose].b = static_cast<int16_t>(tableSize);
    for (size_t n = 0; n < tableSize; ++n) m_code.emit(Op::jump, 0);
    std::vector<size_t> skips;
    kind = Kind::single;
    for (size_t n = 0; n < tableSize; ++n) {
        if (!expect(Symbol::comma, "','")) return false;
        m_code.jumpHere(choose + 1 + n);
        Kind one;
        if (!branch(want, one)) return false;
        kind = joined(kind, one);
        skips.push_back(m_code.position());
        m_code.emit(Op::jump, -1);
    }
    m_code.adjustDepth(1);
    for (const size_t skip : skips) m_code.jumpHere(skip);
    m_code.jumpHere(choose);
    return expect(Symbol::close, "')'");
}

/// Counts the arguments that follow at this level, without taking them.
size_t Parser::countBranches() const {
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

}  // namespace formula
