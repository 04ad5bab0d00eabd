#include "spread/editor/csv_import.h"

#include <algorithm>

#include "core_api/text/delimited_text.h"
#include "core_api/text/number_text.h"
#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "platform/encodings.h"
#include "spread/editor/cell_snapshot.h"

namespace editor {

namespace {

// --- bytes --------------------------------------------------------------------------------------

void appendUtf8(std::string& text, char32_t c) {
    const auto tail = [&](unsigned shift) {
        text += static_cast<char>(0x80 | ((c >> shift) & 0x3F));
    };
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        tail(0);
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0 | (c >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0 | (c >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// UTF-16 without its mark as UTF-8. Nothing when it ends inside a character.
std::optional<std::string> utf8FromUtf16(std::string_view bytes, bool bigEndian) {
    if (bytes.size() % 2 != 0) return std::nullopt;
    const auto unit = [&](size_t at) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return static_cast<char32_t>(bigEndian ? first << 8 | second : second << 8 | first);
    };
    std::string text;
    text.reserve(bytes.size() / 2);
    for (size_t at = 0; at < bytes.size(); at += 2) {
        char32_t c = unit(at);
        if (c >= 0xD800 && c < 0xDC00) {
            if (at + 2 >= bytes.size()) return std::nullopt;
            c = 0x10000 + ((c - 0xD800) << 10) + ((unit(at += 2) - 0xDC00) & 0x3FF);
        }
        appendUtf8(text, c);
    }
    return text;
}

std::string message(int number, int line = 0, std::string_view what = {}) {
    Vor_String text = dialString(number);
    text.replaceSubString("%1", std::to_string(line));
    text.replaceSubString("%2", what);
    return text.str();
}

int lineAt(std::string_view text, size_t position) {
    return 1 + static_cast<int>(std::count(
                   text.begin(), text.begin() + static_cast<std::ptrdiff_t>(position), '\n'));
}

std::optional<std::string> inside(std::string_view utf8, std::string& error) {
    encodings::Utf8Error problem;
    auto text = encodings::fromUtf8(utf8, problem);
    if (!text)
        error = message(texts::csvCharacter, lineAt(utf8, problem.position), problem.message(utf8));
    return text;
}

// --- numbers ------------------------------------------------------------------------------------

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// "-1.234,5" as "-1234.5"; nothing when it is no number with a decimal comma.
std::optional<std::string> withDecimalPoint(std::string_view field) {
    std::string number;
    if (field.starts_with('-')) {
        number += '-';
        field.remove_prefix(1);
    }
    const size_t comma = std::min(field.find(','), field.size());
    const std::string_view whole = field.substr(0, comma);
    const bool isGrouped = whole.find('.') != std::string_view::npos;
    if (whole.empty()) return std::nullopt;
    for (size_t i = 0; i < whole.size(); ++i) {
        // Groups have three digits, the first one to three.
        const bool isMark = isGrouped && (whole.size() - i) % 4 == 0 && i > 0;
        if (isMark ? whole[i] != '.' : !isDigit(whole[i])) return std::nullopt;
        if (!isMark) number += whole[i];
    }
    if (comma == field.size()) return number;
    const std::string_view fraction = field.substr(comma + 1);
    if (fraction.empty() || !std::all_of(fraction.begin(), fraction.end(), isDigit))
        return std::nullopt;
    return number + "." + std::string(fraction);
}

bool hasDecimalComma(std::string_view field) {
    return field.find(',') != std::string_view::npos && withDecimalPoint(field).has_value();
}

/// A number whose text can be made from it again, trailing zeros of its fraction aside.
std::optional<double> numberOf(std::string_view field, bool decimalComma) {
    std::string converted(field);
    if (decimalComma) {
        const auto number = withDecimalPoint(field);
        if (!number) return std::nullopt;
        converted = *number;
    }
    const std::string_view digits = std::string_view(converted).substr(converted[0] == '-');
    const bool isCode = digits.size() > 1 && digits[0] == '0' && isDigit(digits[1]);
    constexpr size_t mostDigits = 15;
    if (digits.empty() || !isDigit(digits[0]) || isCode || converted.size() > mostDigits + 2)
        return std::nullopt;
    std::string_view rest = converted;
    const auto number = takeNumber(rest);
    return rest.empty() ? number : std::nullopt;
}

// --- rows ---------------------------------------------------------------------------------------

using Rows = std::vector<std::vector<std::string>>;

std::optional<Rows> rowsOf(std::string_view text, char separator, std::string& error) {
    Rows rows;
    DelimitedText lines(text, separator);
    for (std::vector<std::string> fields; lines.next(fields);) {
        if (fields.size() > formula::maxCols) {
            error = message(texts::csvTooWide, lines.lineNumber());
            return std::nullopt;
        }
        if (rows.size() == formula::maxRows) {
            error = message(texts::csvTooLong);
            return std::nullopt;
        }
        rows.push_back(std::move(fields));
    }
    return rows;
}

bool usesDecimalComma(const Rows& rows, char separator, DecimalMark mark) {
    if (mark != DecimalMark::guessed) return mark == DecimalMark::comma;
    if (separator != ';') return false;
    return std::any_of(rows.begin(), rows.end(), [](const auto& row) {
        return std::any_of(row.begin(), row.end(), hasDecimalComma);
    });
}

void putField(control::Grid& grid, int col, int row, std::string_view field, bool decimalComma,
              bool formulas) {
    if (field.empty()) return;
    if (formulas && field.size() > 1 && field[0] == '=' &&
        grid.setFormula(col, row, field.substr(1)))
        return;
    // Put as it is: writing the text would make numbers of what reads like one elsewhere.
    CellSnapshot cell;
    if (const auto number = numberOf(field, decimalComma))
        cell.setNumber(*number);
    else
        cell.setText(textOfField(field));
    cell.put(grid, col, row);
}

}  // namespace

std::optional<std::string> decodeTextFile(std::string_view bytes, std::string& error) {
    using namespace std::string_view_literals;
    if (bytes.starts_with("\xEF\xBB\xBF"sv)) return inside(bytes.substr(3), error);
    const bool isBig = bytes.starts_with("\xFE\xFF"sv);
    if (isBig || bytes.starts_with("\xFF\xFE"sv)) {
        const auto utf8 = utf8FromUtf16(bytes.substr(2), isBig);
        if (utf8) return inside(*utf8, error);
        error = message(texts::csvBroken);
        return std::nullopt;
    }
    encodings::Utf8Error problem;
    if (auto text = encodings::fromUtf8(bytes, problem)) return text;
    if (problem.character == 0) return std::string(bytes);
    return inside(bytes, error);
}

char guessSeparator(std::string_view text) {
    constexpr int sampleLines = 50;
    // Tabs and semicolons go first: decimal commas may part every line evenly too.
    char most = ',';
    size_t mostFields = 0;
    for (const char candidate : {'\t', ';', ','}) {
        DelimitedText lines(text, candidate);
        std::vector<std::string> fields;
        size_t first = 0, total = 0;
        bool isEven = true;
        for (int line = 0; line < sampleLines && lines.next(fields); ++line) {
            if (line == 0) first = fields.size();
            total += fields.size() - 1;
            isEven = isEven && fields.size() == first;
        }
        if (isEven && first > 1) return candidate;
        if (total > mostFields) {
            most = candidate;
            mostFields = total;
        }
    }
    return most;
}

bool importCsv(control::Grid& grid, std::string_view bytes, const CsvSettings& settings,
               std::string& error) {
    const auto text = decodeTextFile(bytes, error);
    if (!text) return false;
    if (const size_t zero = text->find('\0'); zero != std::string::npos) {
        error = message(texts::csvCharacter, lineAt(*text, zero), "zero byte");
        return false;
    }
    const char separator = settings.separator ? settings.separator : guessSeparator(*text);
    const auto rows = rowsOf(*text, separator, error);
    if (!rows) return false;
    const bool decimalComma = usesDecimalComma(*rows, separator, settings.decimalMark);
    size_t cols = 1;
    for (const auto& row : *rows) cols = std::max(cols, row.size());
    const bool wasAutomatic = grid.option(control::Option::automaticRecalculation);
    grid.setOption(control::Option::automaticRecalculation, false);
    grid.setRows(0);
    grid.setCols(0);
    grid.setCols(static_cast<int>(cols));
    grid.setRows(std::max(static_cast<int>(rows->size()), 1));
    for (size_t r = 0; r < rows->size(); ++r)
        for (size_t c = 0; c < (*rows)[r].size(); ++c)
            putField(grid, static_cast<int>(c) + 1, static_cast<int>(r) + 1, (*rows)[r][c],
                     decimalComma, settings.formulas);
    grid.recalculate();
    grid.setOption(control::Option::automaticRecalculation, wasAutomatic);
    return true;
}

}  // namespace editor
