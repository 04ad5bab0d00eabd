#include "bill/column_sums.h"

#include <algorithm>

#include "core_api/texts/bill_text_numbers.h"
#include "core_api/texts/texts.h"

bool ColumnSums::hasAny() const {
    return std::find(m_isSummed.begin(), m_isSummed.end(), true) != m_isSummed.end();
}

Vor_StringArray ColumnSums::cells(const std::vector<BillColumn>& columns,
                                  const Vor_String& label) const {
    Vor_StringArray cells;
    bool isLabelled = false;
    for (size_t i = 0; i < columns.size(); ++i) {
        Vor_String cell;
        if (isSummed(i) && m_sums[i]) {
            cell = billNumber(*m_sums[i]);
        } else if (!isLabelled && columns[i].kind == BillColumnKind::text) {
            cell = label;
            isLabelled = true;
        }
        cells.append(std::move(cell));
    }
    return cells;
}

Vor_String subtotalLabel(const Vor_String& group) {
    const Vor_String word = dialString(texts::billSubtotal);
    return group.isEmpty() ? word : word + " " + group;
}

Vor_String billNumber(double number) {
    constexpr int decimals = 6;
    return {number, decimals};
}
