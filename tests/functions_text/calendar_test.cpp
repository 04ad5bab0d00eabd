#include <gtest/gtest.h>

#include "spread/control/formula/calendar.h"

namespace {

TEST(Calendar, CountsDaysAndNamesThem) {
    for (int day = 0; day <= formula::calendar::lastDay; day += day < 800 ? 1 : 97) {
        const auto date = formula::calendar::dateOf(day);
        EXPECT_EQ(formula::calendar::dayNumber(date), day);
    }
}

}  // namespace
