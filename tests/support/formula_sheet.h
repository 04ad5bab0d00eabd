// A sheet to try formulas on: fill cells, ask what a formula gives as the text that it shows.
#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>

#include "spread/control/formula/coerce.h"
#include "spread/control/sheet.h"

class FormulaSheet {
  public:
    void set(int col, int row, double x) { m_sheet.setValue(col, row, formula::Value(x)); }
    void set(int col, int row, const char* text) {
        m_sheet.setValue(col, row, formula::Value::borrowedText(text));
    }
    void set(int col, int row, const formula::Value& value) { m_sheet.setValue(col, row, value); }
    /// One column, downwards from row 1.
    void fill(int col, std::initializer_list<double> numbers) {
        int row = 0;
        for (const double x : numbers) set(col, ++row, x);
    }
    void setFormula(int col, int row, std::string_view text) {
        formula::ParseError error;
        ASSERT_TRUE(m_sheet.setFormula(col, row, text, error)) << text << ": " << error.message;
    }

    /// The result of `text`, calculated in a cell far from the others.
    formula::Value value(std::string_view text) {
        formula::ParseError error;
        if (!m_sheet.setFormula(100, 1000, text, error))
            ADD_FAILURE() << text << " is refused: " << error.message;
        return m_sheet.value(100, 1000);
    }
    bool refuses(std::string_view text) {
        formula::ParseError error;
        return !m_sheet.setFormula(100, 1000, text, error);
    }
    std::string operator()(std::string_view text) { return shown(value(text)); }

    static std::string shown(const formula::Value& value) {
        switch (value.type()) {
            case formula::ValueType::number:
                return formula::numberToText(value.number());
            case formula::ValueType::boolean:
                return value.truth() ? "TRUE" : "FALSE";
            case formula::ValueType::error:
                return std::string(formula::errorText(value.error()));
            case formula::ValueType::text:
                return std::string(value.text());
            default:
                return "";
        }
    }

  private:
    control::Sheet m_sheet;
};

/// A formula and the text of its result.
struct FormulaCase {
    const char* formula;
    const char* expected;
};

inline void expectResults(FormulaSheet& sheet, std::span<const FormulaCase> cases) {
    for (const FormulaCase& c : cases) EXPECT_EQ(sheet(c.formula), c.expected) << c.formula;
}
