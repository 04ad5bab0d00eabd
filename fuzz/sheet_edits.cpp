// Edits of a sheet, each chosen by the bytes that come next: after every one of them the sheet must
// hold what its slow twin holds. The first byte says whether they are a user's, who can undo them.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "support/sheet_twin.h"

namespace {

// Nobody waits for a formula here that works for a second.
[[maybe_unused]] const bool isLimited = (formula::Calculation::setMostWork(1'000'000), true);

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t longest = 2000;
    if (size == 0 || size > longest) return 0;
    std::size_t next = 1;
    const auto pick = [&](int below) {
        return next < size ? static_cast<int>(data[next++]) % below : 0;
    };
    twin::Twins twins(pick, data[0] % 2 == 1);
    std::optional<std::string> wrong;
    while (!wrong && next < size) wrong = twins.step();
    if (!wrong) wrong = twins.finish();
    if (wrong) {
        std::fprintf(stderr, "%s\n", wrong->c_str());
        std::abort();
    }
    return 0;
}
