#include "bill/bill_part.h"

#include "core_api/text/natural_order.h"

namespace {

int compareNumbers(double a, double b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

}  // namespace

int comparePieces(const Vor_BillPart& a, const Vor_BillPart& b) {
    if (a.kind != b.kind) return a.kind < b.kind ? -1 : 1;
    if (const int order = compareNames(a.section, b.section)) return order;
    if (const int order = compareNames(a.material, b.material)) return order;
    if (const int order = compareNumbers(b.length, a.length)) return order;
    if (const int order = compareNumbers(b.width, a.width)) return order;
    if (const int order = compareNumbers(b.thickness, a.thickness)) return order;
    return compareNumbers(a.diameter, b.diameter);
}

bool isSamePiece(const Vor_BillPart& a, const Vor_BillPart& b) {
    return comparePieces(a, b) == 0 && a.mass == b.mass;
}
