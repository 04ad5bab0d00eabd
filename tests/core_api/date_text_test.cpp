// The day of today in what is written: its words, and the instant that takes its place.
#include "core_api/texts/date_text.h"

#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "platform/clock.h"

namespace {

class Today : public testing::Test {
  protected:
    ~Today() override {
        ::unsetenv("SOURCE_DATE_EPOCH");
        ::unsetenv("TZ");
        ::tzset();
        gSettings = m_before;
    }
    static void live(const char* zone, const char* fixed) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        if (fixed) ::setenv("SOURCE_DATE_EPOCH", fixed, 1);
    }

  private:
    Vor_Settings m_before = gSettings;
};

TEST_F(Today, AFixedTimeIsTheSameInEveryZoneAndOthersAreLocal) {
    constexpr std::int64_t shortBeforeMidnight = 1774997999;  // 31 March 2026, 22:59:59 UTC
    for (const char* zone : {"UTC", "<+14>-14", "<-11>11"}) {
        live(zone, "1774997999");
        EXPECT_EQ(dateText(platform::calendarTime()).str(), "31 March, 2026 (22:59)") << zone;
        EXPECT_EQ(isoDate(platform::calendarTime()).str(), "2026-03-31") << zone;
    }
    ::unsetenv("SOURCE_DATE_EPOCH");
    live("<+14>-14", nullptr);
    EXPECT_EQ(dateText(platform::calendarTime(shortBeforeMidnight)).str(),
              "01 April, 2026 (12:59)");
    gSettings.current().language = Language::german;
    live("UTC", nullptr);
    EXPECT_EQ(dateText(platform::calendarTime(shortBeforeMidnight)).str(),
              "31 M\xE4rz, 2026 (22:59)");
}

TEST_F(Today, OnlyWholeSecondsFixTheTime) {
    for (const char* bad : {"", "x", "12x", "1.5", "-1", "253402300800", "99999999999999999999"}) {
        ::setenv("SOURCE_DATE_EPOCH", bad, 1);
        EXPECT_FALSE(platform::fixedTime()) << bad;
        EXPECT_GT(platform::calendarTime().tm_year, 120) << bad;
    }
    ::setenv("SOURCE_DATE_EPOCH", "0", 1);
    EXPECT_EQ(platform::fixedTime(), 0);
}

}  // namespace
