#include "core_api/texts/date_text.h"

#include <array>

#include "core_api/texts/texts.h"

namespace {

constexpr int januaryText = 25210;

/// Of numbers only: these are the same in every locale.
std::string written(const char* format, const std::tm& date) {
    std::array<char, 40> text{};
    return {text.data(), std::strftime(text.data(), text.size(), format, &date)};
}

}  // namespace

Vor_String dateText(const std::tm& date) {
    return written("%d ", date) + dialString(januaryText + date.tm_mon).str() +
           written(", %Y (%H:%M)", date);
}

Vor_String isoDate(const std::tm& date) {
    return written("%Y-%m-%d", date);
}
