// Documents: whatever is read must come back the same from its own writing, and calculating,
// resizing and starting again must not crash, hang or lose it.
#include <cstdlib>
#include <string>

#include "spread/control/document.h"
#include "spread/control/grid.h"

namespace {

// Nobody waits for a formula here that works for a second.
[[maybe_unused]] const bool isLimited = (formula::Calculation::setMostWork(1'000'000), true);

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size > 16384) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::string error;
    const auto document = control::readDocument(text, "document", error);
    if (!document) {
        if (error.empty()) std::abort();
        return 0;
    }
    control::Grid grid;
    grid.restore(document);
    const std::string written = control::writeDocument(grid);
    control::Grid copy;
    auto again = control::readDocument(written, "copy", error);
    if (!again) std::abort();
    copy.adopt(std::move(again));
    if (control::writeDocument(copy) != written) std::abort();

    copy.recalculate();
    copy.insertRows(2, 1);
    copy.deleteCols(1, 1);
    copy.setRows(3);
    grid.setData(1, 1, "1");
    grid.setType(1, 2, control::numberType(2));
    grid.setFormula(2, 1, "A1+1");
    grid.restore(document);
    if (control::writeDocument(grid) != written) std::abort();
    return 0;
}
