// Formulas, one a line: set, calculated, rewritten by inserted and deleted rows, and shown in the
// other notation and back. Nothing of it may crash, hang or change a formula's notation for good.
#include <cstdlib>
#include <string>

#include "spread/control/sheet.h"

namespace {

// Nobody waits for a formula here that works for a second.
[[maybe_unused]] const bool isLimited = (formula::Calculation::setMostWork(1'000'000), true);

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size > 4096) return 0;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    control::Sheet sheet;
    sheet.setValue(1, 1, formula::Value(2.0));
    sheet.setValue(1, 2, formula::Value::borrowedText("12.5"));
    formula::ParseError error;
    int row = 1;
    for (size_t start = 0; start <= input.size() && row <= 16; ++row) {
        const size_t end = std::min(input.find('\n', start), input.size());
        sheet.setFormula(2, row, input.substr(start, end - start), error);
        start = end + 1;
    }
    sheet.recalculate();
    sheet.setReferenceStyle(formula::ReferenceStyle::r1c1);
    sheet.setReferenceStyle(formula::ReferenceStyle::a1);
    sheet.insertRows(3, 2);
    sheet.swapRows(1, 2, 1);
    sheet.deleteRows(2, 3);
    sheet.recalculate();
    return 0;
}
