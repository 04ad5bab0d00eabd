// What a formula computes with: one 16-byte tagged value, copied freely. Numbers, booleans and
// errors are held in place. Text and arrays are borrowed: from a cell of the sheet or from the
// running calculation (calculation.h), and live until that calculation ends.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace formula {

/// Sheets are addressed from 1 and end here, as the well-known spreadsheet programs do.
inline constexpr int maxRows = 1048576;
inline constexpr int maxCols = 16384;

enum class ErrorCode : uint8_t { null = 1, div0, value, ref, name, num, na, circ };

/// "#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A", "#CIRC!".
std::string_view errorText(ErrorCode code);
/// The code of exactly such a text, letter case aside.
std::optional<ErrorCode> errorFromText(std::string_view text);

/// A rectangle of cells, both corners included, from 1; row1 <= row2 and col1 <= col2.
struct Area {
    int32_t row1 = 1, row2 = 1;
    uint16_t col1 = 1, col2 = 1;

    int rows() const { return row2 - row1 + 1; }
    int cols() const { return col2 - col1 + 1; }
    bool isOneCell() const { return row1 == row2 && col1 == col2; }
    bool operator==(const Area&) const = default;
};

struct Array;

enum class ValueType : uint8_t {
    empty,  ///< an empty cell: 0 as a number, "" as a text
    number,
    boolean,
    text,
    error,
    area,     ///< a reference to cells of the sheet
    array,    ///< a matrix of plain values
    missing,  ///< an argument left out: F(1,,2)
};

class Value {
  public:
    Value() : m_number(0) {}
    Value(double number) : m_number(number), m_type(ValueType::number) {}
    Value(ErrorCode code) : m_code(code), m_type(ValueType::error) {}
    static Value boolean(bool truth) {
        Value v;
        v.m_truth = truth;
        v.m_type = ValueType::boolean;
        return v;
    }
    /// Borrows `text`; see Calculation::text for a text that must be kept.
    static Value borrowedText(std::string_view text) {
        Value v;
        v.m_text = text.data();
        v.m_aux = static_cast<uint32_t>(text.size());
        v.m_type = ValueType::text;
        return v;
    }
    static Value area(const Area& a) {
        Value v;
        v.m_rows = {a.row1, a.row2};
        v.m_aux = static_cast<uint32_t>(a.col1) | static_cast<uint32_t>(a.col2) << 16;
        v.m_type = ValueType::area;
        return v;
    }
    static Value array(const Array* a) {
        Value v;
        v.m_array = a;
        v.m_type = ValueType::array;
        return v;
    }
    static Value missing() {
        Value v;
        v.m_type = ValueType::missing;
        return v;
    }

    ValueType type() const { return m_type; }
    bool isEmpty() const { return m_type == ValueType::empty; }
    bool isNumber() const { return m_type == ValueType::number; }
    bool isBoolean() const { return m_type == ValueType::boolean; }
    bool isText() const { return m_type == ValueType::text; }
    bool isError() const { return m_type == ValueType::error; }
    bool isArea() const { return m_type == ValueType::area; }
    bool isArray() const { return m_type == ValueType::array; }
    bool isMissing() const { return m_type == ValueType::missing; }
    bool isSingle() const { return !isArea() && !isArray(); }

    // Each reading is valid for its own type alone.
    double number() const { return m_number; }
    bool truth() const { return m_truth; }
    ErrorCode error() const { return m_code; }
    std::string_view text() const { return {m_text, m_aux}; }
    Area area() const {
        return {m_rows.first, m_rows.last, static_cast<uint16_t>(m_aux & 0xFFFF),
                static_cast<uint16_t>(m_aux >> 16)};
    }
    const Array& array() const { return *m_array; }

  private:
    struct Rows {
        int32_t first, last;
    };
    union {
        double m_number;
        const char* m_text;
        const Array* m_array;
        Rows m_rows;
        ErrorCode m_code;
        bool m_truth;
    };
    uint32_t m_aux = 0;  // length of a text, columns of an area
    ValueType m_type = ValueType::empty;
};
static_assert(sizeof(Value) == 16);

/// A matrix of single values, row by row. Lives in the calculation that made it.
struct Array {
    int rows = 0;
    int cols = 0;
    Value* cells = nullptr;

    Value& at(int row, int col) { return cells[row * cols + col]; }
    const Value& at(int row, int col) const { return cells[row * cols + col]; }
};

/// A T, or the error that its making gave.
template <class T>
class Result {
  public:
    Result(T value) : m_value(value) {}
    Result(ErrorCode code) : m_value(), m_error(code), m_ok(false) {}
    explicit operator bool() const { return m_ok; }
    T operator*() const { return m_value; }
    const T* operator->() const { return &m_value; }
    ErrorCode error() const { return m_error; }

  private:
    T m_value;
    ErrorCode m_error = ErrorCode::value;
    bool m_ok = true;
};

}  // namespace formula
