// What is dated with the day of today, asked for in one place: reports, bills, properties of files.
// SOURCE_DATE_EPOCH, seconds since 1970, takes the place of the clock where it is set, so that the
// same input gives the same bytes on any day and in any time zone.
#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>
#include <optional>

#include "platform/export.h"

namespace platform {

/// The instant that SOURCE_DATE_EPOCH names, in seconds since 1970 (UTC). Nothing unless it is a
/// whole number of a year up to 9999.
VORMANT_API std::optional<std::int64_t> fixedTime();

/// Now, or the fixed time.
VORMANT_API std::chrono::system_clock::time_point now();

/// Seconds since 1970 as a date and a time of day, in local time; in UTC while the time is fixed.
VORMANT_API std::tm calendarTime(std::int64_t seconds);
/// Of now.
VORMANT_API std::tm calendarTime();

}  // namespace platform
