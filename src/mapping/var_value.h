// The value of a variable. Values travel as text, but the thousands of results of a standards run
// are numbers that nobody reads as text: a number stays one until somebody looks.
#pragma once

#include <string_view>

#include "core_api/text/vor_string.h"

namespace control {
class Grid;
struct CellType;
}  // namespace control
namespace formula {
class Value;
}

class VORMANT_API VarValue {
  public:
    VarValue() = default;
    explicit VarValue(std::string_view text) : m_text(text) {}

    void setText(std::string_view text);
    void clear() {
        m_text.clear();
        m_kind = Kind::text;
    }
    /// `number` is finite and already rounded to shownDecimals places, as cells show it.
    void setNumber(double number) {
        m_text.clear();
        m_number = number;
        m_kind = Kind::number;
    }

    /// The text; of a number without trailing zeros.
    const Vor_String& text() const {
        if (m_kind == Kind::number) makeText();
        return m_text;
    }
    /// The number behind the text when the value was set as one, else null.
    const double* number() const { return m_kind == Kind::text ? nullptr : &m_number; }

    /// What a cell of `type` shows for `value`.
    void take(const control::CellType& type, const formula::Value& value);
    /// What the cell shows; it lies inside the sheet.
    void readFrom(const control::Grid& grid, int column, int row);

    /// The text of an error ("#DIV/0!").
    bool isError() const;

    /// Places of a Double's cell and of the cell of a numeric equation.
    static constexpr int shownDecimals = 7;

  private:
    enum class Kind : unsigned char { text, number, numberWithText };
    void makeText() const;

    mutable Vor_String m_text;
    double m_number = 0;
    mutable Kind m_kind = Kind::text;
};
