#include "bill/vor_bill.h"

Vor_StringArray Vor_Bill::columnNames() const {
    Vor_StringArray names;
    for (const BillColumn& column : columns) names.append(column.name);
    return names;
}

const Vor_BillPart* Vor_Bill::piece(int index) const {
    if (index < 0 || index >= static_cast<int>(rows.size())) return nullptr;
    const BillRow& row = rows[static_cast<size_t>(index)];
    return row.piece ? &*row.piece : nullptr;
}
