// The parser's grammar as methods, one a rule; parser.h shows it. Each gives false with the error
// filled when the text does not follow it, and says in `kind` what its code leaves on the stack.
#pragma once

#include "spread/control/formula/code_builder.h"
#include "spread/control/formula/lexer.h"
#include "spread/control/formula/parser.h"

namespace formula {

/// How the surroundings will use a value; see FunctionSpec::params.
enum class Want { single, reference };

class Parser {
  public:
    Parser(std::string_view text, const ParseSettings& settings, ParseError& error,
           const CellNames* names = nullptr)
        : m_lexer(text, settings.style, names), m_settings(settings), m_error(error) {
        m_code.inArray = settings.arrayFormula;
    }
    ProgramRef parse();

  private:
    struct Nested {
        explicit Nested(int& depth) : m_depth(depth) { ++m_depth; }
        ~Nested() { --m_depth; }
        int& m_depth;
    };

    void advance() { m_lexer.next(m_token); }
    bool isSymbol(Symbol symbol) const { return m_token.symbol == symbol; }
    bool isSign() const {
        return isSymbol(Symbol::plus) || isSymbol(Symbol::minus) || isSymbol(Symbol::at);
    }
    std::string here() const;
    // Out of the way of what succeeds.
    [[gnu::cold]] bool fail(std::string message);
    [[gnu::cold]] bool failAt(size_t position, std::string message);
    [[gnu::cold]] bool failNested() { return fail("nested deeper than 256"); }
    [[gnu::cold]] bool failExpected(const char* what);
    bool expect(Symbol symbol, const char* what) {
        if (!isSymbol(symbol)) [[unlikely]]
            return failExpected(what);
        advance();
        return true;
    }

    // Expressions (parser.cpp).
    bool comparison(Want want, Kind& kind) { return binary(1, want, kind); }
    bool binary(int least, Want want, Kind& kind);
    bool unary(Want want, Kind& kind);
    bool signedValue(Kind& kind);
    bool postfix(Want want, Kind& kind);
    bool range(Want want, Kind& kind);
    bool primary(Want want, Kind& kind);
    bool otherPrimary(Want want, Kind& kind);
    void setPlace(Instruction& i, const Corner& corner) const;
    bool reference(Kind& kind);
    bool wholeRange(Kind& kind);
    bool parenthesis(Want want, Kind& kind);
    bool matrix(Kind& kind);
    bool name(Want want, Kind& kind);

    // Function calls (parser_calls.cpp).
    bool call(std::string_view name, size_t position, Want want, Kind& kind);
    bool emitCall(const FunctionSpec& spec, int count, size_t position, Kind& kind);
    bool emitCall(const CustomFunction& custom, int count, size_t position, Kind& kind);
    template <class Function>
    bool checkCount(const Function& function, int count, size_t position) {
        if (count >= function.least && count <= function.most) [[likely]]
            return true;
        return failCount(function.name, count, function.least, function.most, position);
    }
    [[gnu::cold]] bool failCount(std::string_view name, int count, int least, int most,
                                 size_t position);
    template <class ParameterOf>
    bool arguments(int& count, ParameterOf&& parameterOf);
    bool argument(char parameter);
    void placeOnly(size_t start);
    /// Calls whose unused parts are not calculated. In an array context they are ordinary calls
    /// when the first argument, which decides, may be an array.
    bool lazyCall(const FunctionSpec& spec, size_t position, Want want, Kind& kind);
    bool branch(Want want, Kind& kind);
    bool ifBranches(Want want, Kind& kind);
    bool ifErrorBranches(Want want, Kind& kind, bool onlyMissing);
    bool chooseBranches(Want want, Kind& kind);
    size_t countBranches() const;

    Lexer m_lexer;
    Token m_token;
    const ParseSettings& m_settings;
    ParseError& m_error;
    CodeBuilder m_code;
    int m_nesting = 0;
};

}  // namespace formula
