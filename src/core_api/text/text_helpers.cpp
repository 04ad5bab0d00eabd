#include "core_api/text/text_helpers.h"

#include <algorithm>
#include <limits>
#include <random>

#include "core_api/text/number_text.h"
#include "core_api/text/text_index.h"
#include "platform/encodings.h"

namespace {

constexpr std::string_view blanks = " \t\r\n\v\f";

std::string_view withoutLeadingBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
    const size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool splitString(std::string_view text, std::string_view separator, Vor_String& before,
                 Vor_String& after) {
    const size_t found = separator.empty() ? std::string_view::npos : text.find(separator);
    if (found == std::string_view::npos) return false;
    // Both parts are made before either output is written: `text` may be a view of one of them.
    Vor_String head(text.substr(0, found));
    Vor_String tail(text.substr(found + separator.size()));
    before = std::move(head);
    after = std::move(tail);
    return true;
}

bool splitStringAtSymbol(std::string_view text, char symbol, Vor_String& before, Vor_String& after,
                         bool trimBlanks) {
    const size_t found = text.find(symbol);
    if (found == std::string_view::npos) return false;
    const std::string_view first = text.substr(0, found);
    const std::string_view second = text.substr(found + 1);
    Vor_String head(trimBlanks ? trimmed(first) : first);
    Vor_String tail(trimBlanks ? trimmed(second) : second);
    before = std::move(head);
    after = std::move(tail);
    return true;
}

Vor_StringArray splitStringAtSymbol(std::string_view text, char symbol, bool trimBlanks) {
    Vor_StringArray parts;
    for (;;) {
        const size_t end = std::min(text.find(symbol), text.size());
        const std::string_view part = text.substr(0, end);
        parts.append(trimBlanks ? trimmed(part) : part);
        if (end == text.size()) return parts;
        text.remove_prefix(end + 1);
    }
}

Vor_StringArray strToArr(std::string_view text, char separator) {
    return text.empty() ? Vor_StringArray() : splitStringAtSymbol(text, separator, false);
}

Vor_String arrToStr(const Vor_StringArray& items, std::string_view separator) {
    Vor_String joined;
    for (int i = 0; i < items.length(); ++i) {
        if (i > 0) joined += separator;
        joined += items[i];
    }
    return joined;
}

Vor_Array<Vor_StringArray> arrToArrArr(const Vor_StringArray& lines, char separator) {
    Vor_Array<Vor_StringArray> rows;
    rows.reserve(lines.length());
    for (const Vor_String& line : lines) {
        rows.append(splitStringAtSymbol(line, separator, false));
    }
    return rows;
}

Vor_StringArray arrArrToArr(const Vor_Array<Vor_StringArray>& rows, char separator) {
    Vor_StringArray lines;
    lines.reserve(rows.length());
    for (const Vor_StringArray& row : rows) lines.append(arrToStr(row, {&separator, 1}));
    return lines;
}

Vor_String stripSymbols(std::string_view text, char symbol, bool ends, bool inside) {
    const size_t first = std::min(text.find_first_not_of(symbol), text.size());
    const size_t last = first == text.size() ? first : text.find_last_not_of(symbol) + 1;
    std::string result(text.substr(first, last - first));
    if (inside) std::erase(result, symbol);
    if (ends) return result;
    return std::string(text.substr(0, first)) + result + std::string(text.substr(last));
}

Vor_String getSubstrBefore(std::string_view text, std::string_view separator, bool wholeIfAbsent) {
    const size_t found = text.find(separator);
    if (found == std::string_view::npos) return wholeIfAbsent ? text : std::string_view();
    return text.substr(0, found);
}

Vor_String getSubstrAfter(std::string_view text, std::string_view separator, bool wholeIfAbsent) {
    const size_t found = text.find(separator);
    if (found == std::string_view::npos) return wholeIfAbsent ? text : std::string_view();
    return text.substr(found + separator.size());
}

bool isNumber(std::string_view text) {
    text = trimmed(text);
    return takeNumber(text) && text.empty();
}

double textToDouble(std::string_view text) {
    text = withoutLeadingBlanks(text);
    return takeNumber(text).value_or(0.0);
}

int textToInt(std::string_view text) {
    text = withoutLeadingBlanks(text);
    const bool negative = !text.empty() && text[0] == '-';
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
    long long number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') break;
        number = std::min(number * 10 + (c - '0'), 1LL << 40);
    }
    return static_cast<int>(std::clamp<long long>(negative ? -number : number,
                                                  std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

bool hasDuplicates(const Vor_StringArray& texts) {
    TextIndex seen(texts.length());
    for (int i = 0; i < texts.length(); ++i) {
        if (seen.add(texts[i], i) >= 0) return true;
    }
    return false;
}

Vor_Array<int> getDuplicateIndexes(const Vor_StringArray& texts) {
    Vor_Array<int> indexes;
    TextIndex seen(texts.length());
    for (int i = 0; i < texts.length(); ++i) {
        if (seen.add(texts[i], i) >= 0) indexes.append(i);
    }
    return indexes;
}

Vor_StringArray getDuplicates(const Vor_StringArray& texts) {
    Vor_StringArray duplicates;
    for (const int i : getDuplicateIndexes(texts)) duplicates.append(texts[i]);
    return duplicates;
}

Vor_String getAlfabet(int column) {
    std::string letters;
    for (; column > 0; column = (column - 1) / 26) {
        letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
    }
    return letters;
}

bool hasASubstr(std::string_view text, const Vor_StringArray& names, Vor_String& found,
                bool caseMatters) {
    const Vor_String whole(text);
    for (const Vor_String& name : names) {
        if (!whole.hasSubString(name, caseMatters)) continue;
        found = name;
        return true;
    }
    return false;
}

Vor_String findNonExistingString(const Vor_StringArray& taken, std::string_view candidate) {
    TextIndex index(taken.length());
    for (int i = 0; i < taken.length(); ++i) index.add(taken[i], i);
    Vor_String name(candidate);
    for (int number = 1; index.find(name) >= 0; ++number) {
        name = Vor_String(candidate) + "_" + std::to_string(number);
    }
    return name;
}

Vor_String removeComments(std::string_view text, std::string_view open, std::string_view close) {
    Vor_String result;
    for (;;) {
        const size_t start = text.find(open);
        result += text.substr(0, start);
        if (start == std::string_view::npos) return result;
        const size_t end = text.find(close, start + open.size());
        if (end == std::string_view::npos) return result;
        text.remove_prefix(end + close.size());
    }
}

Vor_String removeLineComment(std::string_view text, std::string_view mark) {
    const size_t start = text.find(mark);
    if (start == std::string_view::npos) return text;
    text = text.substr(0, start);
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool hasInvalidFileNameChars(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    });
}

bool generateRandomString(int length, Vor_String& text, bool avoidSame) {
    constexpr std::string_view symbols =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    if (length < 1) return false;
    try {
        std::random_device source;  // throws when the system has no source
        std::uniform_int_distribution<size_t> pick(0, symbols.size() - 1);
        std::string drawn(static_cast<size_t>(length), ' ');
        do {
            for (char& c : drawn) c = symbols[pick(source)];
        } while (avoidSame && drawn == text.str());
        text = std::move(drawn);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
