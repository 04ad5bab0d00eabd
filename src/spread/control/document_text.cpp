#include "spread/control/document_text.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace control {
namespace {

bool isPlain(char c) {
    return static_cast<unsigned char>(c) < 0x80 && c != '\\' && c != '\n' && c != '\t' &&
           c != '\r' && c != '"';
}

char* writeDigits(char* out, uint64_t number) {
    return std::to_chars(out, out + 20, number).ptr;
}

// A decimal of few places and at most 15 digits is the shortest text of its double: no shorter one
// can stand for the same double. Nothing when the number is none.
char* writeShortDecimal(char* out, double number) {
    constexpr int places = 6;
    constexpr double scale = 1e6;
    constexpr double largest = 1e15;
    const double magnitude = std::fabs(number);
    const double scaled = std::nearbyint(magnitude * scale);
    if (!(scaled < largest) || scaled / scale != magnitude) return nullptr;
    if (std::signbit(number)) *out++ = '-';
    const auto all = static_cast<uint64_t>(scaled);
    const auto whole = all / static_cast<uint64_t>(scale);
    auto fraction = all % static_cast<uint64_t>(scale);
    out = writeDigits(out, whole);
    if (fraction == 0) return out;
    int digits = places;
    for (; fraction % 10 == 0; --digits) fraction /= 10;
    *out = '.';
    for (int i = digits; i > 0; --i, fraction /= 10)
        out[i] = static_cast<char>('0' + fraction % 10);
    return out + 1 + digits;
}

// Up to 15 digits: number and power of ten are exact doubles, so that one division
// rounds correctly. Nothing for other writings.
std::optional<double> readShortDecimal(std::string_view text) {
    static constexpr double powers[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool isNegative = text.starts_with('-');
    uint64_t digits = 0;
    size_t count = 0, decimals = 0;
    bool hasPoint = false;
    for (size_t i = isNegative ? 1 : 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            digits = digits * 10 + static_cast<uint64_t>(c - '0');
            decimals += hasPoint ? 1 : 0;
            if (++count > 15) return std::nullopt;
        } else if (c == '.' && !hasPoint && count > 0) {
            hasPoint = true;
        } else {
            return std::nullopt;
        }
    }
    if (count == 0 || text.back() == '.') return std::nullopt;
    const double number = static_cast<double>(digits) / powers[decimals];
    return isNegative ? -number : number;
}

}  // namespace

DocumentOutput& DocumentOutput::operator<<(std::string_view text) {
    std::memcpy(room(text.size()), text.data(), text.size());
    m_used += text.size();
    return *this;
}

DocumentOutput& DocumentOutput::operator<<(char c) {
    *room(1) = c;
    ++m_used;
    return *this;
}

DocumentOutput& DocumentOutput::operator<<(int number) {
    char* at = room(12);
    advanceTo(std::to_chars(at, at + 12, number).ptr);
    return *this;
}

DocumentOutput& DocumentOutput::operator<<(double number) {
    char* at = room(40);
    char* end = writeShortDecimal(at, number);
    advanceTo(end ? end : std::to_chars(at, at + 40, number).ptr);
    return *this;
}

void DocumentOutput::escaped(std::string_view text, bool quotes) {
    size_t at = 0;
    while (at < text.size()) {
        size_t end = at;
        while (end < text.size() && isPlain(text[end])) ++end;
        *this << text.substr(at, end - at);
        if (end == text.size()) return;
        const char c = text[end];
        switch (c) {
            case '\\':
                *this << "\\\\";
                break;
            case '\n':
                *this << "\\n";
                break;
            case '\t':
                *this << "\\t";
                break;
            case '\r':
                *this << "\\r";
                break;
            case '"':
                *this << (quotes ? "\\\"" : "\"");
                break;
            default:
                *this << encodings::toUtf8(std::string_view(&c, 1));
                break;
        }
        at = end + 1;
    }
}

void DocumentOutput::column(int col) {
    char letters[8];
    char* at = letters + sizeof letters;
    for (; col > 0; col = (col - 1) / 26) *--at = static_cast<char>('A' + (col - 1) % 26);
    if (at == letters + sizeof letters) *--at = '-';
    *this << std::string_view(at, static_cast<size_t>(letters + sizeof letters - at));
}

void DocumentOutput::address(int col, int row) {
    column(col);
    *this << row;
}

int takeColumn(std::string_view& text) {
    int col = 0;
    size_t i = 0;
    for (; i < text.size() && i < 4 && text[i] >= 'A' && text[i] <= 'Z'; ++i)
        col = col * 26 + (text[i] - 'A' + 1);
    if (col > formula::maxCols) return 0;
    text.remove_prefix(i);
    return col;
}

std::optional<CellAddress> takeAddress(std::string_view& text) {
    std::string_view rest = text;
    CellAddress address;
    if (rest.starts_with('-'))
        rest.remove_prefix(1);
    else if ((address.col = takeColumn(rest)) == 0)
        return std::nullopt;
    size_t digits = 0;
    for (; digits < rest.size() && digits < 8 && rest[digits] >= '0' && rest[digits] <= '9';
         ++digits)
        address.row = address.row * 10 + (rest[digits] - '0');
    if (digits == 0 || address.row > formula::maxRows) return std::nullopt;
    text = rest.substr(digits);
    return address;
}

std::optional<double> readNumber(std::string_view text) {
    if (const auto number = readShortDecimal(text)) return number;
    double number = 0;
    const char* end = text.data() + text.size();
    const auto [next, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || next != end || !std::isfinite(number)) return std::nullopt;
    return number;
}

std::optional<int> readWhole(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [next, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || next != end) return std::nullopt;
    return number;
}

namespace {

struct Bytes {
    bool areAscii = true;
    bool haveBackslash = false;
};

/// Eight bytes at a time: every text of a document passes here.
Bytes bytesOf(std::string_view text) {
    constexpr uint64_t ones = 0x0101010101010101U, highBits = ones * 0x80;
    uint64_t notAscii = 0, backslashes = 0;
    const auto format = [&](uint64_t bytes) {
        const uint64_t difference = bytes ^ ones * '\\';  // a byte of it is 0
        notAscii |= bytes;
        backslashes |= (difference - ones) & ~difference;
    };
    size_t at = 0;
    for (; at + sizeof(uint64_t) <= text.size(); at += sizeof(uint64_t)) {
        uint64_t bytes = 0;
        std::memcpy(&bytes, text.data() + at, sizeof bytes);
        format(bytes);
    }
    for (; at < text.size(); ++at) format(static_cast<unsigned char>(text[at]));
    return {(notAscii & highBits) == 0, (backslashes & highBits) != 0};
}

}  // namespace

std::optional<std::string_view> unescaped(std::string_view text, std::string& buffer,
                                          std::string& error) {
    const auto [isAscii, hasEscapes] = bytesOf(text);
    const bool isPlainText = !hasEscapes;
    if (!isAscii) {
        encodings::Utf8Error reason;
        const auto converted = encodings::fromUtf8(text, reason);
        if (!converted) {
            error = reason.message(text);
            return std::nullopt;
        }
        buffer = *converted;
    } else if (!isPlainText) {
        buffer = text;
    }
    if (isPlainText) return isAscii ? text : std::string_view(buffer);
    size_t out = 0;
    for (size_t i = 0; i < buffer.size(); ++i) {
        if (buffer[i] != '\\') {
            buffer[out++] = buffer[i];
            continue;
        }
        const size_t which = i + 1 < buffer.size() ? std::string_view("\\ntr\"").find(buffer[i + 1])
                                                   : std::string_view::npos;
        if (which == std::string_view::npos) {
            error = "a backslash is followed by none of \\ n t r \"";
            return std::nullopt;
        }
        buffer[out++] = "\\\n\t\r\""[which];
        ++i;
    }
    buffer.resize(out);
    return buffer;
}

}  // namespace control
