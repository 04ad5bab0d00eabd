#include "cli/sections/section_condition.h"

#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "platform/files.h"

namespace cli {

// The longer ones first.
const SectionCondition::Operator SectionCondition::operators[] = {
    {">=", Sign::atLeast}, {"<=", Sign::atMost}, {"!=", Sign::notEqual}, {"==", Sign::equal},
    {">", Sign::above},    {"<", Sign::below},   {"=", Sign::equal},
};

std::optional<SectionCondition> SectionCondition::parse(const std::string& typed,
                                                        std::string& error) {
    std::string text;
    if (!exchange::fromUtf8(typed, text, error)) return std::nullopt;
    const size_t at = text.find_first_of("<>=!");
    SectionCondition condition;
    condition.m_column = encodings::lowered(trimmed(std::string_view(text).substr(0, at)));
    if (at == text.npos || condition.m_column.empty()) {
        error = "a condition is a column, one of >= <= > < = != and a value, as in 'h>=200'";
        return std::nullopt;
    }
    const std::string_view rest = std::string_view(text).substr(at);
    for (const Operator& each : operators) {
        if (!rest.starts_with(each.text)) continue;
        condition.m_sign = each.sign;
        if (!condition.readValue(trimmed(rest.substr(each.text.size())), error))
            return std::nullopt;
        return condition;
    }
    error = "\"!\" stands alone; write !=";
    return std::nullopt;
}

bool SectionCondition::readValue(std::string_view value, std::string& error) {
    const bool isEquality = m_sign == Sign::equal || m_sign == Sign::notEqual;
    if (isText()) {
        m_pattern = value;
        if (!isEquality) error = "texts are compared with = or !=";
        return isEquality;
    }
    const size_t dots = isEquality ? value.find("..") : value.npos;
    const std::string_view low = value.substr(0, dots);
    const std::string_view high = dots == value.npos ? low : value.substr(dots + 2);
    if (!isNumber(low) || !isNumber(high)) {
        error = "\"" + encodings::toUtf8(value) + "\" is no number" +
                (isEquality ? " and no range LOW..HIGH" : "");
        return false;
    }
    m_low = textToDouble(low);
    m_high = textToDouble(high);
    return true;
}

bool SectionCondition::holds(double number) const {
    switch (m_sign) {
        case Sign::atLeast:
            return number >= m_low;
        case Sign::atMost:
            return number <= m_low;
        case Sign::above:
            return number > m_low;
        case Sign::below:
            return number < m_low;
        case Sign::equal:
            return number >= m_low && number <= m_high;
        default:
            return number < m_low || number > m_high;
    }
}

bool SectionCondition::holds(std::string_view text) const {
    return files::matchesPattern(text, m_pattern) == (m_sign == Sign::equal);
}

}  // namespace cli
