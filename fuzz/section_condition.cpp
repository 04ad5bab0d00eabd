// Conditions of a search for sections: one is read or refused with a reason, and what was read
// judges numbers as a comparison of its own column does. The input is a condition and, behind a
// line's end, the name of a section.
#include "cli/sections/section_condition.h"

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

bool holds(const std::string& typed, double number) {
    std::string error;
    const auto condition = cli::SectionCondition::parse(typed, error);
    require(condition.has_value());
    return condition->holds(number);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const size_t end = bytes.find('\n');
    const std::string typed(bytes.substr(0, end));
    const std::string_view name = end == bytes.npos ? "" : bytes.substr(end + 1);
    std::string error;
    const auto condition = cli::SectionCondition::parse(typed, error);
    require(condition.has_value() == error.empty());
    if (!condition) return 0;
    if (condition->isText()) {
        // Equal and unequal are each other's opposite.
        const size_t sign = typed.find_first_of("=!");
        require(sign != typed.npos && sign > 0);
        const bool isNot = typed[sign] == '!';
        const size_t value = sign + (isNot || typed.compare(sign, 2, "==") == 0 ? 2 : 1);
        const std::string opposite =
            typed.substr(0, sign) + (isNot ? "==" : "!=") + typed.substr(value);
        const auto other = cli::SectionCondition::parse(opposite, error);
        if (other && other->isText()) require(condition->holds(name) != other->holds(name));
        return 0;
    }
    for (const double number : {-1e300, -1.0, 0.0, 0.5, 16.014, 200.0, 1e300})
        require(condition->holds(number) == holds(typed, number));
    return 0;
}
