// Cuts a formula's text into tokens. A reference is one token, whole columns and rows included;
// "A1:B2" is three, since ":" also joins references that functions give.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "spread/control/formula/cell_names.h"
#include "spread/control/formula/parser.h"

namespace formula {

enum class TokenKind : uint8_t {
    end,
    number,
    text,  ///< with its quotes
    error,
    reference,
    name,    ///< also function names, TRUE and FALSE
    symbol,  ///< one of + - * / ^ & % = < > ( ) { } , ; : @ and the pairs <= >= <>
    invalid,
};

enum class Symbol : uint8_t {
    none,
    plus,
    minus,
    times,
    divide,
    power,
    join,
    percent,
    equal,
    notEqual,
    less,
    lessEqual,
    greater,
    greaterEqual,
    open,
    close,
    openBrace,
    closeBrace,
    comma,
    semicolon,
    colon,
    at,
};

/// One corner of a reference as written. In A1 notation relative parts are given absolutely too;
/// in R1C1 notation a relative part is a distance.
struct Corner {
    int row = 0;
    int col = 0;
    bool rowRelative = false;
    bool colRelative = false;
};

struct ReferenceToken {
    Corner first;
    Corner last;  ///< of a whole column or row; else as first
    bool wholeCols = false;
    bool wholeRows = false;
};

struct Token {
    TokenKind kind = TokenKind::end;
    Symbol symbol = Symbol::none;
    ErrorCode error = ErrorCode::value;
    size_t position = 0;
    size_t length = 0;
    double number = 0;
    ReferenceToken reference;
};

class Lexer {
  public:
    /// With `names` a word that is one is a reference (A1), and whatever could hide one is invalid.
    Lexer(std::string_view text, ReferenceStyle style, const CellNames* names = nullptr)
        : m_start(text.data()),
          m_end(text.data() + text.size()),
          m_next(text.data()),
          m_style(style),
          m_names(names) {}
    /// The token after the one given before; `end` again and again at the end.
    void next(Token& token);
    std::string_view textOf(const Token& token) const {
        return {m_start + token.position, token.length};
    }

  private:
    /// A place in the text. Kept in a variable of its own while a token is read: members would be
    /// read anew after everything that is written into the token.
    struct Place {
        const char* at;
        const char* end;
        char here() const { return at == end ? '\0' : *at; }
        char after() const { return end - at < 2 ? '\0' : at[1]; }
        Place plus(ptrdiff_t count) const { return {at + count, end}; }
        ptrdiff_t operator-(const Place& start) const { return at - start.at; }
    };

    void takeOther(Token& token, const char* at);
    // Each reads the token that starts there. False when it is none of its kind.
    [[gnu::always_inline]] bool take(Token& token, const char* at) const;
    bool takeAmongNames(Token& token, const char* at) const;
    bool takeWord(Token& token, const char* at) const;
    bool holdsName(std::string_view text) const;
    bool takeReference(Token& token, Place start) const;
    static bool takeA1(Token& token, Place start);
    static bool takeRows(Token& token, Place start);
    static bool takeR1C1(Token& token, Place start);
    static bool takeR1C1Corner(Token& token, Place start);

    const char* m_start;
    const char* m_end;
    const char* m_next;
    ReferenceStyle m_style;
    const CellNames* m_names;
};

/// The doubled quotes of a text token resolved.
std::string unquote(std::string_view token);
/// "$B$7" and the like, from absolute numbers.
std::string cellText(int col, int row, bool colAbsolute, bool rowAbsolute);
/// "A" … "XFD".
std::string columnLetters(int col);

}  // namespace formula
