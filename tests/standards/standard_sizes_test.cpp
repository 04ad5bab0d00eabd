// The nearest size that is kept, and rounding when there is none.
#include "standards/functions/standard_sizes.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(ChooseStandard, TheNearestWithinItsToleranceWinsAndTheLowerOfTwoEquallyNear) {
    struct Case {
        std::vector<double> sizes;
        double value, down, up;
        std::optional<double> expected;
    };
    const Case cases[] = {
        {{10, 12, 16}, 13, 2, 4, 12},          {{10, 12, 16}, 14, 2, 4, 12},
        {{10, 12, 16}, 13, 0.5, 4, 16},        {{10, 12, 16}, 15, 2, 0.5, std::nullopt},
        {{10, 12, 16}, 15, 4, 0.5, 12},        {{10, 12, 16}, 12, 0, 0, 12},
        {{16, 10, 12}, 11, 5, 5, 10},          {{10, 12}, 11, -1, 2, 12},
        {{10, 12}, 11, -1.5, 2, std::nullopt}, {{10, 12}, 9, 5, 1, 10},
        {{}, 9, 5, 5, std::nullopt},           {{2e9}, 1e9, 0, 1.5e9, 2e9},
        {{12, 12, 12}, 12.5, 1, 1, 12},
    };
    for (const Case& row : cases)
        EXPECT_EQ(chooseStandard(row.sizes, {row.down, row.up}, row.value), row.expected)
            << row.value << " -" << row.down << " +" << row.up;
}

TEST(RoundWithinTolerance, TheNearerMultipleThatFitsWinsElseTheValueStays) {
    struct Case {
        double value, step, down, up, expected;
    };
    const Case cases[] = {
        {12, 5, 5, 5, 10},   {13, 5, 5, 5, 15},  {12.5, 5, 5, 5, 10}, {12, 5, 1, 5, 15},
        {13, 5, 5, 1, 10},   {12, 5, 1, 1, 12},  {15, 5, 0, 0, 15},   {12, 0, 5, 5, 12},
        {-12, 5, 5, 5, -10}, {12, 5, -3, 5, 15}, {12, 5, 5, -3, 9},   {0.3, 0.1, 0.05, 0.05, 0.3},
    };
    for (const Case& row : cases)
        EXPECT_NEAR(roundWithinTolerance(row.value, row.step, {row.down, row.up}), row.expected,
                    1e-9)
            << row.value << " to " << row.step << " -" << row.down << " +" << row.up;
}

}  // namespace
