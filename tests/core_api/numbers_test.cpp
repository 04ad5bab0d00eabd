#include "core_api/numbers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core_api/settings.h"
#include "core_api/text/vor_string.h"

namespace {

TEST(Numbers, RoundToTakesHalvesAwayFromZeroAsWritten) {
    const struct {
        double value, step, rounded;
    } cases[] = {
        {2.675, 0.01, 2.68}, {-2.675, 0.01, -2.68}, {1.005, 0.01, 1.01}, {12.5, 5, 15},
        {12.4999999, 5, 10}, {0.35, 0.1, 0.4},      {0.15, 0.1, 0.2},    {2.5, 1, 3},
        {17, 0, 17},         {17, -5, 17},          {-1, 5, 0},          {1e300, 0.1, 1e300},
        {7, 2.5, 7.5},       {6.25, 2.5, 7.5},      {0, 5, 0},           {1, 1.0 / 3, 1},
    };
    for (const auto& c : cases) {
        const double rounded = ObjectExportRoundTo(c.value, c.step);
        EXPECT_EQ(rounded, c.rounded) << c.value << " to " << c.step;
        EXPECT_FALSE(rounded == 0 && std::signbit(rounded)) << c.value << " gives -0";
    }
}

TEST(Numbers, MultiplesNeverDrift) {
    for (const double step : {0.1, 0.05, 0.01, 0.125, 2.5}) {
        const int decimals = step == 0.125 ? 3 : 2;
        for (int i = -3000; i <= 3000; ++i) {
            const double exact = static_cast<double>(i) * (step * 1000) / 1000;
            const double written = std::stod(Vor_String(exact, decimals).str());
            ASSERT_EQ(ObjectExportRoundTo(i * step, step), written);
            ASSERT_EQ(ObjectExportRoundUp(i * step, step, 0), written);
        }
    }
}

TEST(Numbers, RoundUpForgivesABillionthOfAStep) {
    EXPECT_EQ(ObjectExportRoundUp(10.000000001, 5, 0), 10);
    EXPECT_EQ(ObjectExportRoundUp(10.0001, 5, 0), 15);
    EXPECT_EQ(ObjectExportRoundUp(-7, 5, 0), -5);
    EXPECT_EQ(ObjectExportRoundUp(13.7, 0, 2), 13.7);
}

TEST(Numbers, SortCarriesTheIndex) {
    Vor_Array<double> numbers{16, 10, std::nan(""), 12, 10};
    Vor_Array<int> indexes{9, 9};
    ObjectExportSort(numbers, indexes);
    EXPECT_EQ(indexes, (Vor_Array<int>{1, 4, 3, 0, 2}));
    EXPECT_EQ(numbers[0], 10);
    EXPECT_EQ(numbers[3], 16);
}

TEST(Settings, FoldersEndInOneBackslash) {
    Vor_Settings settings;
    EXPECT_EQ(settings.libDir().str(), "");
    settings.setLibDir("C:/steel/lib");
    EXPECT_EQ(settings.libDir().str(), "C:\\steel\\lib\\");
    settings.setVorDir("C:\\steel\\");
    EXPECT_EQ(settings.vorDir().str(), "C:\\steel\\");
}

}  // namespace
