#include "core_api/timers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace {

TEST(Timers, CountTheOutermostBracketOnceAndNothingWhenOff) {
    Vor_Timer timer("gTestPhase");
    { const Vor_FunctionTimer off(timer); }
    EXPECT_EQ(timer.count(), 0);

    gProfiling = true;
    {
        const Vor_FunctionTimer outer(timer);
        const Vor_FunctionTimer inner(timer);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    timer.end();  // a bracket that began while profiling was off
    gProfiling = false;
    EXPECT_EQ(timer.count(), 2);
    EXPECT_GE(timer.seconds(), 0.002);
    EXPECT_THAT(timerReport().str(), testing::HasSubstr("gTestPhase"));
    resetTimers();
    EXPECT_EQ(timer.count(), 0);
    EXPECT_THAT(timerReport().str(), testing::Not(testing::HasSubstr("gTestPhase")));
}

}  // namespace
