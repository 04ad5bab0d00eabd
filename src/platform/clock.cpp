#include "platform/clock.h"

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace platform {

std::optional<std::int64_t> fixedTime() {
    constexpr std::int64_t endOfYears = 253402300800;  // 1 January 10000
    const char* set = std::getenv("SOURCE_DATE_EPOCH");
    const std::string_view text = set ? set : "";
    std::int64_t seconds = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (text.empty() || read.ec != std::errc() || read.ptr != text.data() + text.size() ||
        seconds < 0 || seconds >= endOfYears)
        return std::nullopt;
    return seconds;
}

std::chrono::system_clock::time_point now() {
    const auto fixed = fixedTime();
    return fixed ? std::chrono::system_clock::time_point(std::chrono::seconds(*fixed))
                 : std::chrono::system_clock::now();
}

std::tm calendarTime(std::int64_t seconds) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm date{};
    if (fixedTime())
        gmtime_r(&time, &date);
    else
        localtime_r(&time, &date);
    return date;
}

std::tm calendarTime() {
    return calendarTime(std::chrono::system_clock::to_time_t(now()));
}

}  // namespace platform
