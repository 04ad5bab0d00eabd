#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/lookup_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

/// The numbers first, first + 1, … as an array of `rows` by `cols`, one of which is 1.
Value sequence(Calculation& c, int first, int rows, int cols) {
    if (rows * cols == 1) return static_cast<double>(first);
    Array* array = c.newArray(rows, cols);
    if (!array) return ErrorCode::num;
    for (int i = 0; i < rows * cols; ++i) array->cells[i] = static_cast<double>(first + i);
    return Value::array(array);
}

struct Stretch {
    int first, count;
};

/// `count` rows or columns from `first` moved by `steps`; below 0 they lie before it, which is the
/// last of them then. Part of a row still is a row; only 0 is none.
Stretch stretch(int first, int steps, double count) {
    // What is cut here lies far outside either way.
    constexpr int far = 2 * maxRows;
    const int start = first + std::clamp(steps, -far, far);
    if (std::fabs(count) < 1 && count != 0) count = std::copysign(1, count);
    const int whole = std::clamp(ArgumentReader::toWhole(count), -far, far);
    return whole < 0 ? Stretch{start + whole + 1, -whole} : Stretch{start, whole};
}

bool isInside(const Stretch& rows, const Stretch& cols) {
    return rows.first >= 1 && cols.first >= 1 && rows.count <= maxRows && cols.count <= maxCols &&
           rows.first + rows.count - 1 <= maxRows && cols.first + cols.count - 1 <= maxCols;
}

void appendNumber(std::string& text, int number) {
    char digits[16];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

std::string columnLetters(int col) {
    std::string letters;
    for (; col > 0; col = (col - 1) / 26)
        letters.insert(letters.begin(), static_cast<char>('A' + (col - 1) % 26));
    return letters;
}

/// As a sheet's name stands before "!": in single quotes unless it is a plain word.
std::string quotedSheet(std::string_view name) {
    bool isPlain = name.empty() || name[0] < '0' || name[0] > '9';
    for (const char c : name) {
        const bool isWordLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                                  (c >= '0' && c <= '9') || c == '_' || c == '.';
        isPlain = isPlain && isWordLetter;
    }
    if (isPlain) return std::string(name);
    std::string quoted = "'";
    for (const char c : name) quoted.append(c == '\'' ? 2 : 1, c);
    return quoted + "'";
}

struct AddressParts {
    int row, col;
    bool rowIsAbsolute, colIsAbsolute;
};

std::string inA1(const AddressParts& parts) {
    std::string text = parts.colIsAbsolute ? "$" : "";
    text += columnLetters(parts.col);
    if (parts.rowIsAbsolute) text += '$';
    appendNumber(text, parts.row);
    return text;
}

std::string inR1C1(const AddressParts& parts) {
    const auto append = [](std::string& text, char letter, int number, bool isAbsolute) {
        text += letter;
        if (!isAbsolute) text += '[';
        appendNumber(text, number);
        if (!isAbsolute) text += ']';
    };
    std::string text;
    append(text, 'R', parts.row, parts.rowIsAbsolute);
    append(text, 'C', parts.col, parts.colIsAbsolute);
    return text;
}

}  // namespace

Value cutOut(Calculation& c, const Value& source, int row, int col, int rows, int cols) {
    if (source.isArea()) {
        const Area whole = source.area();
        Area part;
        part.row1 = whole.row1 + row;
        part.row2 = part.row1 + rows - 1;
        part.col1 = static_cast<uint16_t>(whole.col1 + col);
        part.col2 = static_cast<uint16_t>(part.col1 + cols - 1);
        return Value::area(part);
    }
    if (rows == 1 && cols == 1) return c.element(source, row, col);
    Array* part = c.newArray(rows, cols);
    if (!part) return ErrorCode::num;
    for (int r = 0; r < rows; ++r)
        for (int k = 0; k < cols; ++k) part->at(r, k) = c.element(source, row + r, col + k);
    return Value::array(part);
}

Value address(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const int row = read.whole(0);
    const int col = read.whole(1);
    const int kind = read.whole(2, 1);
    const bool a1 = read.truth(3, true);
    const std::string_view sheet = read.text(4, "");
    if (read.failed()) return read.error();
    if (row < 1 || row > maxRows || col < 1 || col > maxCols || kind < 1 || kind > 4)
        return ErrorCode::value;
    const AddressParts parts{row, col, kind <= 2, kind == 1 || kind == 3};
    std::string text;
    if (args.size() > 4) text = quotedSheet(sheet) + "!";
    return c.text(text + (a1 ? inA1(parts) : inR1C1(parts)));
}

Value areas(Calculation&, Arguments args) {
    if (args[0].isError()) return args[0];
    return args[0].isArea() ? Value(1.0) : Value(ErrorCode::value);
}

Value choose(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const int which = read.whole(0);
    if (read.failed()) return read.error();
    if (which < 1 || static_cast<size_t>(which) >= args.size()) return ErrorCode::value;
    const Value& chosen = args[static_cast<size_t>(which)];
    return chosen.isMissing() ? Value(0.0) : chosen;
}

Value row(Calculation& c, Arguments args) {
    if (args.empty()) return static_cast<double>(c.hostRow());
    if (args[0].isError()) return args[0];
    if (!args[0].isArea()) return ErrorCode::value;
    const Area area = args[0].area();
    return sequence(c, area.row1, area.rows(), 1);
}

Value column(Calculation& c, Arguments args) {
    if (args.empty()) return static_cast<double>(c.hostCol());
    if (args[0].isError()) return args[0];
    if (!args[0].isArea()) return ErrorCode::value;
    const Area area = args[0].area();
    return sequence(c, area.col1, 1, area.cols());
}

Value rows(Calculation& c, Arguments args) {
    if (args[0].isError()) return args[0];
    return static_cast<double>(c.rows(args[0]));
}

Value columns(Calculation& c, Arguments args) {
    if (args[0].isError()) return args[0];
    return static_cast<double>(c.cols(args[0]));
}

Value formulaText(Calculation& c, Arguments args) {
    if (args[0].isError()) return args[0];
    if (!args[0].isArea()) return ErrorCode::value;
    const Area area = args[0].area();
    const auto text = c.formulaText(area.col1, area.row1);
    if (!text) return ErrorCode::na;
    return c.text("=" + std::string(*text));
}

Value index(Calculation& c, Arguments args) {
    const Value& source = args[0];
    if (source.isError()) return source;
    const int height = c.rows(source);
    const int width = c.cols(source);
    ArgumentReader read(c, args);
    int row = read.whole(1);
    int col = read.whole(2, 0);
    const int area = read.whole(3, 1);
    if (read.failed()) return read.error();
    if (args.size() == 2 && height == 1) std::swap(row, col);
    if (row < 0 || col < 0 || area < 1) return ErrorCode::value;
    if (row > height || col > width || area > 1) return ErrorCode::ref;
    return cutOut(c, source, row > 0 ? row - 1 : 0, col > 0 ? col - 1 : 0, row > 0 ? 1 : height,
                  col > 0 ? 1 : width);
}

Value indirect(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    const bool a1 = read.truth(1, true);
    if (read.failed()) return read.error();
    const auto area = Calculation::parseReference(text, a1, c.hostCol(), c.hostRow());
    return area ? Value::area(*area) : Value(ErrorCode::ref);
}

Value offset(Calculation& c, Arguments args) {
    if (args[0].isError()) return args[0];
    if (!args[0].isArea()) return ErrorCode::value;
    const Area from = args[0].area();
    ArgumentReader read(c, args);
    const int down = read.whole(1);
    const int right = read.whole(2);
    const double height = read.number(3, from.rows());
    const double width = read.number(4, from.cols());
    if (read.failed()) return read.error();
    const Stretch rows = stretch(from.row1, down, height);
    const Stretch cols = stretch(from.col1, right, width);
    if (rows.count == 0 || cols.count == 0 || !isInside(rows, cols)) return ErrorCode::ref;
    Area moved;
    moved.row1 = rows.first;
    moved.row2 = rows.first + rows.count - 1;
    moved.col1 = static_cast<uint16_t>(cols.first);
    moved.col2 = static_cast<uint16_t>(cols.first + cols.count - 1);
    return Value::area(moved);
}

}  // namespace formula
