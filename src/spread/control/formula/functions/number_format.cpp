#include "spread/control/formula/functions/number_format.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "spread/control/formula/coerce.h"
#include "spread/control/formula/functions/format_section.h"

namespace formula {
namespace {

using number_format::Part;
using number_format::Piece;
using number_format::Section;
using Sections = std::vector<Section>;

std::string formatText(const Sections& sections, std::string_view text) {
    const Section& last = sections.back();
    if (!last.isText && sections.size() < 4) return std::string(text);
    std::string written;
    for (const Piece& piece : last.pieces)
        written += piece.part == Part::text ? std::string(text) : piece.text;
    return written;
}

struct Choice {
    const Section* section;
    bool showsSign;  ///< a section for negative numbers alone says so itself
};

/// Which of the sections for numbers `number` is shown by.
Choice choose(std::span<const Section> sections, double number) {
    const size_t count = std::min<size_t>(sections.size(), 3);
    for (size_t i = 0; i + 1 < count; ++i) {
        const Section& section = sections[i];
        if (section.condition) {
            if (section.condition->holds(number))
                return {&section, !section.condition->isNegative()};
            continue;
        }
        const bool isPositive = i == 0 && (count == 2 ? number >= 0 : number > 0);
        if (isPositive || (i == 1 && number < 0)) return {&section, false};
    }
    const Section& last = sections[count - 1];
    const bool isForNegative = count == 2 && !sections[0].condition && !last.condition;
    return {&last, !isForNegative};
}

Result<std::string> formatNumber(const Sections& sections, double number) {
    std::span<const Section> forNumbers(sections);
    if (forNumbers.size() > 1 && forNumbers.back().isText)
        forNumbers = forNumbers.first(forNumbers.size() - 1);
    const auto [section, showsSign] = choose(forNumbers, number);
    if (section->isText) {
        std::string text;
        for (const Piece& piece : section->pieces)
            text += piece.part == Part::text ? formatGeneral(number) : piece.text;
        return text;
    }
    if (section->isDate) {
        auto text = number_format::writeDate(*section, number);
        if (!text) return ErrorCode::value;
        return std::move(*text);
    }
    bool isZero = false;
    std::string text = number_format::writeNumber(*section, std::fabs(number), isZero);
    return number < 0 && showsSign && !isZero ? "-" + text : text;
}

}  // namespace

Result<std::string> formatValue(const Value& value, std::string_view format) {
    const auto sections = number_format::parseFormat(format);
    if (!sections) return ErrorCode::value;
    switch (value.type()) {
        case ValueType::error:
            return value.error();
        case ValueType::boolean:
            return std::string(value.truth() ? "TRUE" : "FALSE");
        case ValueType::text:
            if (const auto number = textToNumber(value.text()))
                return formatNumber(*sections, *number);
            return formatText(*sections, value.text());
        case ValueType::number:
            return formatNumber(*sections, value.number());
        case ValueType::empty:
        case ValueType::missing:
            return formatNumber(*sections, 0);
        default:
            return ErrorCode::value;
    }
}

}  // namespace formula
