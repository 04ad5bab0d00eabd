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
    return classOf(c) == 1;
}
bool isDigit(char c) {
    return classOf(c) == 2;
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
bool isBlank(char c) {
    return classOf(c) == 32;
}
char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

}  // namespace

inline bool Lexer::takeSymbol(Token& token, char c) {
    const Symbol symbol = symbolOf(c);
    if (symbol == Symbol::none) return false;
    token.kind = TokenKind::symbol;
    token.symbol = symbol;
    token.length = 1;
    if (c != '<' && c != '>') return true;
    const char second = at(m_position + 1);
    const bool isPair = second == '=' || (c == '<' && second == '>');
    if (!isPair) return true;
    token.length = 2;
    token.symbol = second == '>' ? Symbol::notEqual
                   : c == '<'    ? Symbol::lessEqual
                                 : Symbol::greaterEqual;
    return true;
}

void Lexer::next(Token& token) {
    size_t position = m_position;
    while (position < m_text.size() && isBlank(m_text[position])) ++position;
    m_position = token.position = position;
    if (position == m_text.size()) {
        token.symbol = Symbol::none;
        token.kind = TokenKind::end;
        token.length = 0;
        return;
    }
    const char c = m_text[position];
    if (!takeSymbol(token, c)) {
        token.symbol = Symbol::none;
        if (!(m_names ? takeAmongNames(token, c) : take(token))) {
            token.kind = TokenKind::invalid;
            token.length = 1;
        }
    }
    m_position = position + token.length;
}

bool Lexer::take(Token& token) {
    const char c = m_text[m_position];
    if (isLetter(c) || c == '$') return takeReference(token) || takeName(token);
    if (isDigit(c)) {
        const bool isNumber = takeNumber(token);
        if (isNumber && at(m_position + token.length) != ':') return true;
        return takeReference(token) || isNumber;  // whole rows: "1:3"
    }
    if (c == '.') return takeNumber(token);
    if (c == '"') return takeText(token);
    if (c == '#') return takeError(token);
    return takeName(token);
}

/// Names count wherever their word stands, be it in a text, in "#N/A" or behind the point of a
/// number. Only words that are whole tokens are looked up here.
inline bool Lexer::takeAmongNames(Token& token, char c) {
    if (isLetter(c) || c == '_') return takeWord(token);
    if (startsName(c) || c == '$' || c == '#') return false;
    return take(token) && !holdsName(textOf(token));
}

bool Lexer::takeWord(Token& token) {
    size_t end = m_position + 1;
    while (isInWord(at(end))) ++end;
    if (isInName(at(end))) return false;  // a longer name with a word of its own inside
    token.length = end - m_position;
    const bool mayBeName = m_names->mayStartWith(m_text[m_position]);
    const control::CellAddress* cell = mayBeName ? m_names->cellOf(textOf(token)) : nullptr;
    if (cell) {
        token.reference.first = {cell->row, cell->col, true, true};
        token.reference.last = token.reference.first;
        token.reference.wholeCols = token.reference.wholeRows = false;
        return finishReference(token, end);
    }
    token.kind = TokenKind::name;
    if (at(end) == '(') return true;
    return take(token) && token.length == end - m_position;
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

bool Lexer::takeNumber(Token& token) {
    size_t end = m_position;
    uint64_t digits = 0;  // of the number without its point
    size_t places = 0;
    const auto takeDigits = [&] {
        const size_t start = end;
        for (; isDigit(at(end)); ++end)
            digits = digits * 10 + static_cast<uint64_t>(m_text[end] - '0');
        return end - start;
    };
    takeDigits();
    if (at(end) == '.') {
        ++end;
        places = takeDigits();
    }
    if (end == m_position + 1 && m_text[m_position] == '.') return false;
    token.kind = TokenKind::number;
    token.length = end - m_position;
    // Fifteen digits and a power of ten are exact as doubles: one division rounds correctly.
    if (token.length <= 16 && upper(at(end)) != 'E') {
        token.number = static_cast<double>(digits) / powersOfTen[places];
        return true;
    }
    if (upper(at(end)) == 'E') {
        size_t exponent = end + 1;
        if (at(exponent) == '+' || at(exponent) == '-') ++exponent;
        if (isDigit(at(exponent)))
            for (end = exponent; isDigit(at(end));) ++end;
    }
    const char* first = m_text.data() + m_position;
    const auto [stop, failure] = std::from_chars(first, m_text.data() + end, token.number);
    if (failure == std::errc::result_out_of_range) return false;
    token.length = end - m_position;
    return stop == m_text.data() + end;
}

bool Lexer::takeText(Token& token) {
    size_t end = m_position + 1;
    while (end < m_text.size()) {
        if (m_text[end] != '"') {
            ++end;
        } else if (at(end + 1) == '"') {
            end += 2;
        } else {
            token.kind = TokenKind::text;
            token.length = end + 1 - m_position;
            return true;
        }
    }
    return false;
}

bool Lexer::takeError(Token& token) {
    size_t end = m_position + 1;
    while (isLetter(at(end)) || isDigit(at(end)) || at(end) == '/' || at(end) == '_') ++end;
    if (at(end) == '!' || at(end) == '?') ++end;
    const auto code = errorFromText(m_text.substr(m_position, end - m_position));
    if (!code) return false;
    token.kind = TokenKind::error;
    token.error = *code;
    token.length = end - m_position;
    return true;
}

// The column at `position` ("$AB"), its end; 0 when there is none.
size_t Lexer::columnAt(size_t position, Corner& corner) const {
    corner.col = 0;
    corner.colRelative = at(position) != '$';
    if (!corner.colRelative) ++position;
    const size_t start = position;
    int col = 0;
    while (isLetter(at(position)) && position - start < 4)
        col = col * 26 + (upper(m_text[position++]) - 'A' + 1);
    if (position == start || col > maxCols) return 0;
    corner.col = col;
    return position;
}

size_t Lexer::rowAt(size_t position, Corner& corner) const {
    corner.row = 0;
    corner.rowRelative = at(position) != '$';
    if (!corner.rowRelative) ++position;
    const size_t start = position;
    int row = 0;
    while (isDigit(at(position)) && position - start < 8)
        row = row * 10 + (m_text[position++] - '0');
    if (position == start || row < 1 || row > maxRows) return 0;
    corner.row = row;
    return position;
}

bool Lexer::finishReference(Token& token, size_t end) {
    if (isInName(at(end)) || at(end) == '(' || at(end) == '!') return false;
    token.kind = TokenKind::reference;
    token.length = end - m_position;
    return true;
}

bool Lexer::takeReference(Token& token) {
    if (m_style == ReferenceStyle::r1c1) return takeR1C1(token);
    ReferenceToken& reference = token.reference;
    reference.wholeCols = reference.wholeRows = false;
    const size_t afterCol = columnAt(m_position, reference.first);
    if (afterCol != 0) {
        const size_t afterRow = rowAt(afterCol, reference.first);
        if (afterRow != 0) {
            reference.last = reference.first;
            return finishReference(token, afterRow);
        }
        if (at(afterCol) != ':') return false;
        reference.last = reference.first;
        const size_t end = columnAt(afterCol + 1, reference.last);
        reference.wholeCols = end != 0;
        return end != 0 && finishReference(token, end);
    }
    const size_t afterRow = rowAt(m_position, reference.first);
    if (afterRow == 0 || at(afterRow) != ':') return false;
    reference.last = reference.first;
    const size_t end = rowAt(afterRow + 1, reference.last);
    reference.wholeRows = end != 0;
    return end != 0 && finishReference(token, end);
}

// After an R or C: nothing (distance 0), a number, or a distance in brackets.
size_t Lexer::distanceAt(size_t position, int& value, bool& relative) const {
    const bool inBrackets = at(position) == '[';
    size_t start = position + (inBrackets ? 1 : 0);
    size_t end = start;
    if (inBrackets && at(end) == '-') ++end;
    while (isDigit(at(end)) && end - start < 9) ++end;
    relative = inBrackets || end == start;
    value = 0;
    if (end != start) std::from_chars(m_text.data() + start, m_text.data() + end, value);
    if (!inBrackets) return end;
    return at(end) == ']' ? end + 1 : position;
}

bool Lexer::takeR1C1(Token& token) {
    Corner& corner = token.reference.first;
    token.reference.wholeCols = token.reference.wholeRows = false;
    size_t end = m_position;
    const bool hasRow = upper(at(end)) == 'R';
    if (hasRow) end = distanceAt(end + 1, corner.row, corner.rowRelative);
    const bool hasCol = upper(at(end)) == 'C';
    if (hasCol) end = distanceAt(end + 1, corner.col, corner.colRelative);
    if (!hasRow && !hasCol) return false;
    if (!corner.rowRelative && hasRow && (corner.row < 1 || corner.row > maxRows)) return false;
    if (!corner.colRelative && hasCol && (corner.col < 1 || corner.col > maxCols)) return false;
    token.reference.wholeRows = !hasCol;
    token.reference.wholeCols = !hasRow;
    token.reference.last = corner;
    return finishReference(token, end);
}

bool Lexer::takeName(Token& token) {
    size_t end = m_position;
    if (!startsName(at(end))) return false;
    while (isInName(at(end))) ++end;
    token.kind = TokenKind::name;
    token.length = end - m_position;
    return true;
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
