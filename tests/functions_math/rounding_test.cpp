#include "spread/control/formula/functions/rounding.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/formula_sheet.h"

namespace {

/// `digits` (no point) rounded half up to all but the last `cut` of them, as one would on paper.
std::string roundedOnPaper(std::string digits, size_t cut) {
    bool carry = digits[digits.size() - cut] >= '5';
    digits.resize(digits.size() - cut);
    for (size_t i = digits.size(); carry && i-- > 0;) {
        carry = digits[i] == '9';
        digits[i] = carry ? '0' : static_cast<char>(digits[i] + 1);
    }
    return carry ? "1" + digits : digits;
}

TEST(Rounding, AgreesWithPaperForWrittenDecimals) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 200'000; ++i) {
        // Up to 13 digits, of which `decimals` + `cut` stand behind the point; every third a tie.
        const size_t size = 2 + random() % 12;
        std::string digits(size, '0');
        for (char& digit : digits) digit = static_cast<char>('0' + random() % 10);
        const size_t cut = 1 + random() % (size - 1);
        const size_t decimals = random() % (size - cut + 1);
        if (i % 3 == 0) digits.replace(size - cut, cut, "5" + std::string(cut - 1, '0'));

        const auto written = [](const std::string& all, size_t behindPoint) {
            return std::stod(all + "e-" + std::to_string(behindPoint));
        };
        const double x = written(digits, decimals + cut);
        const double expected = written(roundedOnPaper(digits, cut), decimals);
        const int places = static_cast<int>(decimals);
        ASSERT_EQ(formula::roundHalfAway(x, places), expected) << digits << " to " << places;
        ASSERT_EQ(formula::roundHalfAway(-x, places), -expected) << digits << " to " << places;
        const double down = written(digits.substr(0, size - cut), decimals);
        ASSERT_EQ(formula::roundTowardZero(x, places), down) << digits << " to " << places;
    }
}

}  // namespace
