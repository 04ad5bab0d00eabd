#include "spread/control/formula/lexer.h"

#include <array>
#include <charconv>

namespace formula {

namespace {

constexpr std::array<uint8_t, 256> makeClasses() {
    std::array<uint8_t, 256> classes{};
    for (int c = 'A'; c <= 'Z'; ++c) classes[static_cast<size_t>(c)] = 1;
    for (int c = 'a'; c <= 'z'; ++c) classes[static_cast<size_t>(c)] = 1;
    for (int c = '0'; c <= '9'; ++c) classes[static_cast<size_t>(c)] = 2;
    classes['_'] = 4 | 16;
    classes['\\'] = 4;
    classes['.'] = classes['?'] = 8;
    // Letters of Windows-1252 may stand in names.
    for (int c = 0xC0; c <= 0xFF; ++c) classes[static_cast<size_t>(c)] = 4;
    classes[0xD7] = classes[0xF7] = 0;
    classes['('] = classes['!'] = 64;
    for (const char c : std::string_view(" \t\n\r\xA0"))
        classes[static_cast<unsigned char>(c)] = 32;
    return classes;
}
constexpr auto classes = makeClasses();

constexpr std::array<Symbol, 256> makeSymbols() {
    std::array<Symbol, 256> symbols{};
    symbols['+'] = Symbol::plus;
    symbols['-'] = Symbol::minus;
    symbols['*'] = Symbol::times;
    symbols['/'] = Symbol::divide;
    symbols['^'] = Symbol::power;
    symbols['&'] = Symbol::join;
    symbols['%'] = Symbol::percent;
    symbols['='] = Symbol::equal;
    symbols['<'] = Symbol::less;
    symbols['>'] = Symbol::greater;
    symbols['('] = Symbol::open;
    symbols[')'] = Symbol::close;
    symbols['{'] = Symbol::openBrace;
    symbols['}'] = Symbol::closeBrace;
    symbols[','] = Symbol::comma;
    symbols[';'] = Symbol::semicolon;
    symbols[':'] = Symbol::colon;
    symbols['@'] = Symbol::at;
    return symbols;
}
constexpr auto symbols = makeSymbols();

Symbol symbolOf(char c) {
    return symbols[static_cast<unsigned char>(c)];
}
uint8_t classOf(char c) {
    return classes[static_cast<unsigned char>(c)];
}
/// As far as a double holds every whole number.
constexpr double powersOfTen[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

bool isLetter(char c) {
    return static_cast<unsigned char>((c | 0x20) - 'a') < 26;
}
bool isDigit(char c) {
    return static_cast<unsigned char>(c - '0') < 10;
}
bool startsName(char c) {
    return (classOf(c) & 5) != 0;
}
bool isInName(char c) {
    return (classOf(c) & (1 | 2 | 4 | 8)) != 0;
}
/// A letter, a digit or "_".
bool isInWord(char c) {
    return (classOf(c) & (1 | 2 | 16)) != 0;
}
/// What stands behind "A1" when that is no reference.
bool continuesReference(char c) {
    return (classOf(c) & (1 | 2 | 4 | 8 | 64)) != 0;
}
bool isBlank(char c) {
    return classOf(c) == 32;
}
char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

template <class Place>
void finish(Token& token, TokenKind kind, const Place& start, const Place& end) {
    token.kind = kind;
    token.length = static_cast<size_t>(end - start);
}

template <class Place>
bool finishReference(Token& token, const Place& start, const Place& end) {
    if (continuesReference(end.here())) return false;
    finish(token, TokenKind::reference, start, end);
    return true;
}

template <class Place>
bool takeName(Token& token, const Place& start) {
    if (!startsName(start.here())) return false;
    Place end = start.plus(1);
    while (isInName(end.here())) ++end.at;
    finish(token, TokenKind::name, start, end);
    return true;
}

/// The pairs are told by their second character.
template <class Place>
void finishSymbol(Token& token, const Place& start) {
    token.kind = TokenKind::symbol;
    token.length = 1;
    const char c = *start.at;
    if (c != '<' && c != '>') return;
    const char second = start.after();
    const bool isPair = second == '=' || (c == '<' && second == '>');
    if (!isPair) return;
    token.length = 2;
    token.symbol = second == '>' ? Symbol::notEqual
                   : c == '<'    ? Symbol::lessEqual
                                 : Symbol::greaterEqual;
}

template <class Place>
bool takeNumber(Token& token, const Place& start) {
    Place end = start;
    uint64_t digits = 0;  // of the number without its point
    const auto takeDigits = [&] {
        const Place first = end;
        for (; isDigit(end.here()); ++end.at)
            digits = digits * 10 + static_cast<uint64_t>(*end.at - '0');
        return static_cast<size_t>(end - first);
    };
    size_t places = 0;
    takeDigits();
    if (end.here() == '.') {
        ++end.at;
        places = takeDigits();
    }
    if (end - start == 1 && *start.at == '.') return false;
    finish(token, TokenKind::number, start, end);
    // Fifteen digits and a power of ten are exact as doubles: one division rounds correctly.
    const bool hasExponent = upper(end.here()) == 'E';
    if (token.length <= 16 && !hasExponent) {
        token.number = static_cast<double>(digits);
        if (places != 0) token.number /= powersOfTen[places];
        return true;
    }
    if (hasExponent) {
        Place exponent = end.plus(1);
        if (exponent.here() == '+' || exponent.here() == '-') ++exponent.at;
        if (isDigit(exponent.here()))
            for (end = exponent; isDigit(end.here());) ++end.at;
    }
    const auto [stop, failure] = std::from_chars(start.at, end.at, token.number);
    if (failure == std::errc::result_out_of_range) return false;
    token.length = static_cast<size_t>(end - start);
    return stop == end.at;
}

template <class Place>
bool takeText(Token& token, const Place& start) {
    Place end = start.plus(1);
    while (end.at != end.end) {
        if (*end.at != '"') {
            ++end.at;
        } else if (end.after() == '"') {
            end.at += 2;
        } else {
            finish(token, TokenKind::text, start, end.plus(1));
            return true;
        }
    }
    return false;
}

template <class Place>
bool takeError(Token& token, const Place& start) {
    Place end = start.plus(1);
    const auto isInside = [](char c) { return isLetter(c) || isDigit(c) || c == '/' || c == '_'; };
    while (isInside(end.here())) ++end.at;
    if (end.here() == '!' || end.here() == '?') ++end.at;
    const auto code = errorFromText({start.at, static_cast<size_t>(end - start)});
    if (!code) return false;
    token.error = *code;
    finish(token, TokenKind::error, start, end);
    return true;
}

/// Half of a corner in A1 notation; the number is 0 when there is none.
struct Part {
    int number;
    bool isRelative;
};

/// Moves `place` past a column ("$AB"), or anywhere when there is none.
template <class Place>
Part takeColumn(Place& place) {
    const bool isRelative = place.here() != '$';
    if (!isRelative) ++place.at;
    const Place start = place;
    int col = 0;
    while (isLetter(place.here()) && place - start < 4)
        col = col * 26 + (upper(*place.at++) - 'A' + 1);
    return {col <= maxCols ? col : 0, isRelative};
}

/// The same for a row.
template <class Place>
Part takeRow(Place& place) {
    const bool isRelative = place.here() != '$';
    if (!isRelative) ++place.at;
    const Place start = place;
    int row = 0;
    while (isDigit(place.here()) && place - start < 8) row = row * 10 + (*place.at++ - '0');
    return {row <= maxRows ? row : 0, isRelative};
}

// Field by field: copying a whole corner right after its parts were written would wait for them to
// reach the cache.
void setCorner(Corner& corner, Part col, Part row) {
    corner.row = row.number;
    corner.col = col.number;
    corner.rowRelative = row.isRelative;
    corner.colRelative = col.isRelative;
}

constexpr Part everyRow{0, true};

/// After an R or C: nothing (distance 0), a number, or a distance in brackets.
template <class Place>
void takeDistance(Place& place, int& value, bool& relative) {
    const Place start = place;
    const bool inBrackets = place.here() == '[';
    if (inBrackets) ++place.at;
    const Place number = place;
    if (inBrackets && place.here() == '-') ++place.at;
    while (isDigit(place.here()) && place - number < 9) ++place.at;
    relative = inBrackets || place - number == 0;
    value = 0;
    if (place - number != 0) std::from_chars(number.at, place.at, value);
    if (!inBrackets) return;
    if (place.here() == ']')
        ++place.at;
    else
        place = start;
}

}  // namespace

// Half of all tokens are symbols: they are told by one look into a table, all else in a function of
// its own.
void Lexer::next(Token& token) {
    const char* const at = m_next;
    const Symbol symbol = at == m_end ? Symbol::none : symbolOf(*at);
    token.symbol = symbol;
    if (symbol == Symbol::none) return takeOther(token, at);
    token.position = static_cast<size_t>(at - m_start);
    finishSymbol(token, Place{at, m_end});
    m_next = at + token.length;
}

void Lexer::takeOther(Token& token, const char* at) {
    if (at != m_end && isBlank(*at)) {
        while (at != m_end && isBlank(*at)) ++at;
        m_next = at;
        return next(token);
    }
    token.position = static_cast<size_t>(at - m_start);
    if (at == m_end) {
        token.kind = TokenKind::end;
        token.length = 0;
        return;
    }
    if (!(m_names ? takeAmongNames(token, at) : take(token, at))) {
        token.kind = TokenKind::invalid;
        token.length = 1;
    }
    m_next = at + token.length;
}

inline bool Lexer::take(Token& token, const char* at) const {
    const char c = *at;
    const Place start{at, m_end};
    if (isLetter(c) || c == '$') return takeReference(token, start) || takeName(token, start);
    if (isDigit(c)) {
        const bool isNumber = takeNumber(token, start);
        if (isNumber && start.plus(static_cast<ptrdiff_t>(token.length)).here() != ':') return true;
        return takeReference(token, start) || isNumber;  // whole rows: "1:3"
    }
    if (c == '.') return takeNumber(token, start);
    if (c == '"') return takeText(token, start);
    if (c == '#') return takeError(token, start);
    return takeName(token, start);
}

/// Names count wherever their word stands, be it in a text, in "#N/A" or behind the point of a
/// number. Only words that are whole tokens are looked up here.
inline bool Lexer::takeAmongNames(Token& token, const char* at) const {
    const char c = *at;
    if (isLetter(c) || c == '_') return takeWord(token, at);
    if (startsName(c) || c == '$' || c == '#') return false;
    return take(token, at) && !holdsName(textOf(token));
}

inline bool Lexer::takeWord(Token& token, const char* at) const {
    const Place start{at, m_end};
    Place end = start.plus(1);
    while (isInWord(end.here())) ++end.at;
    if (isInName(end.here())) return false;  // a longer name with a word of its own inside
    finish(token, TokenKind::name, start, end);
    const bool mayBeName = m_names->mayStartWith(*at);
    const control::CellAddress* cell = mayBeName ? m_names->cellOf(textOf(token)) : nullptr;
    if (cell) {
        for (Corner* corner : {&token.reference.first, &token.reference.last})
            setCorner(*corner, {cell->col, true}, {cell->row, true});
        token.reference.wholeCols = token.reference.wholeRows = false;
        return finishReference(token, start, end);
    }
    if (end.here() == '(') return true;
    return take(token, at) && token.length == static_cast<size_t>(end - start);
}

bool Lexer::holdsName(std::string_view text) const {
    for (size_t at = 0; at < text.size();) {
        const size_t start = at;
        while (at < text.size() && isInWord(text[at])) ++at;
        if (at > start && m_names->mayStartWith(text[start]) &&
            m_names->cellOf(text.substr(start, at - start)))
            return true;
        if (at == start) ++at;
    }
    return false;
}

inline bool Lexer::takeReference(Token& token, Place start) const {
    return m_style == ReferenceStyle::a1 ? takeA1(token, start) : takeR1C1(token, start);
}

inline bool Lexer::takeA1(Token& token, Place start) {
    Place end = start;
    const Part col = takeColumn(end);
    if (col.number == 0) return takeRows(token, start);
    const Place afterCol = end;
    const Part row = takeRow(end);
    ReferenceToken& reference = token.reference;
    reference.wholeCols = row.number == 0;
    reference.wholeRows = false;
    if (row.number != 0) {
        setCorner(reference.first, col, row);
        setCorner(reference.last, col, row);
        return finishReference(token, start, end);
    }
    if (afterCol.here() != ':') return false;
    end = afterCol.plus(1);
    const Part lastCol = takeColumn(end);
    setCorner(reference.first, col, everyRow);
    setCorner(reference.last, lastCol, everyRow);
    return lastCol.number != 0 && finishReference(token, start, end);
}

bool Lexer::takeRows(Token& token, Place start) {
    Place end = start;
    const Part row = takeRow(end);
    if (row.number == 0 || end.here() != ':') return false;
    ++end.at;
    const Part lastRow = takeRow(end);
    ReferenceToken& reference = token.reference;
    const Part everyCol{0, row.isRelative};
    reference.wholeCols = false;
    reference.wholeRows = true;
    setCorner(reference.first, everyCol, row);
    setCorner(reference.last, everyCol, lastRow);
    return lastRow.number != 0 && finishReference(token, start, end);
}

bool Lexer::takeR1C1(Token& token, Place start) {
    if (!takeR1C1Corner(token, start)) return false;
    ReferenceToken& reference = token.reference;
    const Place end = start.plus(static_cast<ptrdiff_t>(token.length));
    if ((!reference.wholeCols && !reference.wholeRows) || end.here() != ':') return true;
    // "C1:C3" is one reference, as "A:C" is.
    Token second;
    if (!takeR1C1Corner(second, end.plus(1)) || second.reference.wholeCols != reference.wholeCols ||
        second.reference.wholeRows != reference.wholeRows)
        return true;
    reference.last = second.reference.first;
    token.length += 1 + second.length;
    return true;
}

bool Lexer::takeR1C1Corner(Token& token, Place start) {
    Corner corner;
    Place end = start;
    const auto take = [&end](char letter, int& value, bool& relative) {
        if (upper(end.here()) != letter) return false;
        ++end.at;
        takeDistance(end, value, relative);
        return true;
    };
    const bool hasRow = take('R', corner.row, corner.rowRelative);
    const bool hasCol = take('C', corner.col, corner.colRelative);
    if (!hasRow && !hasCol) return false;
    if (!corner.rowRelative && hasRow && (corner.row < 1 || corner.row > maxRows)) return false;
    if (!corner.colRelative && hasCol && (corner.col < 1 || corner.col > maxCols)) return false;
    token.reference = {corner, corner, !hasRow, !hasCol};
    return finishReference(token, start, end);
}

std::string unquote(std::string_view token) {
    std::string text;
    text.reserve(token.size());
    for (size_t i = 1; i + 1 < token.size(); ++i) {
        text += token[i];
        if (token[i] == '"') ++i;
    }
    return text;
}

std::string columnLetters(int col) {
    std::string letters;
    for (; col > 0; col = (col - 1) / 26)
        letters.insert(letters.begin(), static_cast<char>('A' + (col - 1) % 26));
    return letters;
}

std::string cellText(int col, int row, bool colAbsolute, bool rowAbsolute) {
    std::string text = columnLetters(col);
    if (colAbsolute) text.insert(text.begin(), '$');
    if (rowAbsolute) text += '$';
    return text.append(std::to_string(row));
}

}  // namespace formula
