// Random edits of a sheet against its slow twin; see support/sheet_twin.h.
#include "support/sheet_twin.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

class SheetTwinTest : public testing::TestWithParam<bool> {};

TEST_P(SheetTwinTest, EveryEditLeavesWhatAFreshSheetGives) {
    constexpr unsigned runs = 400;
    constexpr int steps = 60;
    const char* given = std::getenv("VORMANT_TWIN_RUNS");
    const unsigned last = given ? static_cast<unsigned>(std::atoi(given)) : runs;
    int failures = 0;
    for (unsigned seed = 1; seed <= last && failures < 3; ++seed) {
        std::mt19937 random(seed);
        twin::Twins twins(
            [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); },
            GetParam());
        std::optional<std::string> wrong;
        for (int i = 0; i < steps && !wrong; ++i) wrong = twins.step();
        if (!wrong) wrong = twins.finish();
        if (!wrong) continue;
        ADD_FAILURE() << "seed " << seed << "\n" << *wrong;
        ++failures;
    }
}

INSTANTIATE_TEST_SUITE_P(Edits, SheetTwinTest, testing::Values(false, true),
                         [](const auto& asUser) { return asUser.param ? "ByUsers" : "OfTheGrid"; });

}  // namespace
