// What a formula computes with: one 16-byte tagged value, copied freely. Numbers, booleans and
// errors are held in place. Text and arrays are borrowed: from a cell of the sheet or from the
// running calculation (calculation.h), and live until that calculation ends.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/export.h"

namespace formula {

/// Sheets are addressed from 1 and end here, as the well-known spreadsheet programs do.
inline constexpr int maxRows = 1048576;
inline constexpr int maxCols = 16384;

enum class ErrorCode : uint8_t { null = 1, div0, value, ref, name, num, na, circ };

/// "#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A", "#CIRC!".
VORMANT_API std::string_view errorText(ErrorCode code);
/// The code of exactly such a text, letter case aside.
VORMANT_API std::optional<ErrorCode> errorFromText(std::string_view text);

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
    Value(double number) : m_number(number), m_meta(metaOf(ValueType::number)) {}
    Value(ErrorCode code) : m_bits(static_cast<uint64_t>(code)), m_meta(metaOf(ValueType::error)) {}
    static Value boolean(bool truth) {
        return Value(static_cast<uint64_t>(truth), metaOf(ValueType::boolean));
    }
    /// Borrows `text`; see Calculation::text for a text that must be kept.
    static Value borrowedText(std::string_view text) {
        Value v(0, metaOf(ValueType::text, static_cast<uint32_t>(text.size())));
        v.m_text = text.data();
        return v;
    }
    static Value area(const Area& a) {
        return Value(static_cast<uint64_t>(a.row1) << 32 | static_cast<uint32_t>(a.row2),
                     metaOf(ValueType::area,
                            static_cast<uint32_t>(a.col1) | static_cast<uint32_t>(a.col2) << 16));
    }
    static Value array(const Array* a) {
        Value v(0, metaOf(ValueType::array));
        v.m_array = a;
        return v;
    }
    static Value missing() { return Value(0, metaOf(ValueType::missing)); }

    ValueType type() const { return static_cast<ValueType>(m_meta & 0xFF); }
    bool isEmpty() const { return type() == ValueType::empty; }
    bool isNumber() const { return type() == ValueType::number; }
    bool isBoolean() const { return type() == ValueType::boolean; }
    bool isText() const { return type() == ValueType::text; }
    bool isError() const { return type() == ValueType::error; }
    bool isArea() const { return type() == ValueType::area; }
    bool isArray() const { return type() == ValueType::array; }
    bool isMissing() const { return type() == ValueType::missing; }
    bool isSingle() const { return !isArea() && !isArray(); }

    // Each reading is valid for its own type alone.
    double number() const { return m_number; }
    bool truth() const { return m_bits != 0; }
    ErrorCode error() const { return static_cast<ErrorCode>(m_bits); }
    std::string_view text() const { return {m_text, static_cast<size_t>(m_meta >> 32)}; }
    Area area() const {
        return {static_cast<int32_t>(m_bits >> 32), static_cast<int32_t>(m_bits),
                static_cast<uint16_t>(m_meta >> 32), static_cast<uint16_t>(m_meta >> 48)};
    }
    const Array& array() const { return *m_array; }

  private:
    static constexpr uint64_t metaOf(ValueType type, uint32_t aux = 0) {
        return static_cast<uint64_t>(type) | static_cast<uint64_t>(aux) << 32;
    }
    Value(uint64_t bits, uint64_t meta) : m_bits(bits), m_meta(meta) {}

    union {
        uint64_t m_bits;
        double m_number;
        const char* m_text;
        const Array* m_array;
    };
    // One whole word: values are copied right after they are written, and a copy that straddles
    // two narrower writes would wait for both to reach the cache.
    uint64_t m_meta = 0;  // type; length of a text or columns of an area in the upper half
};
static_assert(sizeof(Value) == 16);

/// A matrix of single values. Lives in the calculation that made it. What is made from whole
/// columns has the same value, `rest`, wherever they are empty: only the upper left part is stored.
struct Array {
    int rows = 0;
    int cols = 0;
    int storedRows = 0;
    int storedCols = 0;
    Value* cells = nullptr;  ///< the stored ones, row by row
    Value rest;

    int stored() const { return storedRows * storedCols; }
    int unstored() const { return rows * cols - stored(); }
    /// Of a stored one.
    Value& at(int row, int col) { return cells[row * storedCols + col]; }
    const Value& valueAt(int row, int col) const {
        return row < storedRows && col < storedCols ? cells[row * storedCols + col] : rest;
    }
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
