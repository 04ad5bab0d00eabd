// The formats of a workbook: each format of a sheet becomes one, equal parts are written once.
#pragma once

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "spread/control/cell_format.h"

namespace exchange {

/// Pieces of XML by number, from 0.
class NumberedPieces {
  public:
    /// The number of the piece, which is added when it is new.
    int numberOf(const std::string& xml);
    int count() const { return m_count; }
    /// "<name count=…>pieces</name>".
    std::string list(const std::string& name) const;

  private:
    std::unordered_map<std::string, int> m_numbers;
    std::string m_all;
    int m_count = 0;
};

class WorkbookStyles {
  public:
    WorkbookStyles();
    /// The number by which cells name the format of `format`.
    /// A cell with a formula is never one where everything is text.
    int numberOf(const control::CellFormat& format, bool isFormula);
    /// The part "xl/styles.xml".
    std::string xml() const;

  private:
    int numberFormatOf(const control::CellType& type, bool isFormula);

    std::set<int> m_decimals;  ///< of the number formats in use
    NumberedPieces m_fonts;
    NumberedPieces m_fills;
    NumberedPieces m_borders;
    NumberedPieces m_formats;
};

}  // namespace exchange
