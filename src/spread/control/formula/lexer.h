// Cuts a formula's text into tokens. A reference is one token, whole columns and rows included;
// "A1:B2" is three, since ":" also joins references that functions give.
#pragma once

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
        : m_text(text), m_style(style), m_names(names) {}
    /// The token after the one given before; `end` again and again at the end.
    void next(Token& token);
    std::string_view textOf(const Token& token) const {
        return m_text.substr(token.position, token.length);
    }

  private:
    char at(size_t position) const { return position < m_text.size() ? m_text[position] : '\0'; }
    bool take(Token& token);
    bool takeAmongNames(Token& token, char c);
    bool takeWord(Token& token);
    bool holdsName(std::string_view text) const;
    bool takeNumber(Token& token);
    bool takeText(Token& token);
    bool takeError(Token& token);
    bool takeReference(Token& token);
    bool takeR1C1(Token& token);
    bool takeName(Token& token);
    bool takeSymbol(Token& token, char c);
    bool finishReference(Token& token, size_t end);
    size_t columnAt(size_t position, Corner& corner) const;
    size_t rowAt(size_t position, Corner& corner) const;
    size_t distanceAt(size_t position, int& value, bool& relative) const;

    std::string_view m_text;
    size_t m_position = 0;
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
