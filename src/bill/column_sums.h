// The sums of some columns over rows, and the row that shows them.
#pragma once

#include <optional>
#include <vector>

#include "bill/vor_bill.h"

class ColumnSums {
  public:
    /// `summed` by column.
    explicit ColumnSums(std::vector<bool> summed)
        : m_isSummed(std::move(summed)), m_sums(m_isSummed.size()) {}

    bool isSummed(size_t column) const { return column < m_isSummed.size() && m_isSummed[column]; }
    bool hasAny() const;
    void add(size_t column, double number) { m_sums[column] = m_sums[column].value_or(0) + number; }
    void clear() { m_sums.assign(m_sums.size(), std::nullopt); }

    /// A cell a column: the sums of those that had any number, and `label` in the first column of
    /// texts.
    Vor_StringArray cells(const std::vector<BillColumn>& columns, const Vor_String& label) const;

  private:
    std::vector<bool> m_isSummed;
    std::vector<std::optional<double>> m_sums;
};

/// "Subtotal Plate".
Vor_String subtotalLabel(const Vor_String& group);

/// A number as rows of bills hold it: in six decimals at most. Sheets round it once more, so it
/// has more digits than they show, and sums of thousands of small masses lose none.
Vor_String billNumber(double number);
