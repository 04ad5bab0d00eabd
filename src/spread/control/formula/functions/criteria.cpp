#include "spread/control/formula/functions/criteria.h"

#include "spread/control/formula/coerce.h"

namespace formula {
namespace {

bool isSpecial(char c) {
    return c == '*' || c == '?' || c == '~';
}

bool isSameCharacter(char a, char b) {
    return a == b || compareTexts({&a, 1}, {&b, 1}) == 0;
}

/// One element of a pattern other than *: what it stands for, and how many characters it takes.
struct Element {
    char character;
    bool isAny;
    size_t length;
};

Element elementAt(std::string_view pattern, size_t at) {
    if (isEscape(pattern, at)) return {pattern[at + 1], false, 2};
    return {pattern[at], pattern[at] == '?', 1};
}

}  // namespace

bool isEscape(std::string_view pattern, size_t at) {
    return pattern[at] == '~' && at + 1 < pattern.size() && isSpecial(pattern[at + 1]);
}

bool hasWildcards(std::string_view pattern) {
    return pattern.find_first_of("*?~") != std::string_view::npos;
}

bool matchesWildcards(std::string_view pattern, std::string_view text) {
    // A later * makes an earlier one settled, so only the last one is ever tried again: the work
    // is bounded by the product of the lengths.
    constexpr auto none = std::string_view::npos;
    size_t p = 0, t = 0, afterStar = none, retryAt = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            afterStar = ++p;
            retryAt = t;
            continue;
        }
        if (p < pattern.size()) {
            const Element element = elementAt(pattern, p);
            if (element.isAny || isSameCharacter(element.character, text[t])) {
                p += element.length;
                ++t;
                continue;
            }
        }
        if (afterStar == none) return false;
        p = afterStar;
        t = ++retryAt;
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

bool matchesWildcards(const Calculation& c, std::string_view pattern, std::string_view text) {
    c.spend(static_cast<int64_t>(pattern.size() * text.size()));
    return matchesWildcards(pattern, text);
}

Criterion::Relation Criterion::takeRelation(std::string_view& text) {
    struct Sign {
        std::string_view text;
        Relation relation;
    };
    static constexpr Sign signs[] = {
        {"<>", Relation::unequal},      {"<=", Relation::lessEqual}, {"<", Relation::less},
        {">=", Relation::greaterEqual}, {">", Relation::greater},    {"=", Relation::equal},
    };
    for (const Sign& sign : signs) {
        if (text.starts_with(sign.text)) {
            text.remove_prefix(sign.text.size());
            return sign.relation;
        }
    }
    return Relation::equal;
}

Criterion::Criterion(const Value& wanted) {
    if (wanted.isEmpty() || wanted.isMissing()) {
        m_operand = Value(0.0);
    } else if (!wanted.isText()) {
        m_operand = wanted;
    } else {
        std::string_view text = wanted.text();
        m_relation = takeRelation(text);
        const bool hasRelation = text.size() < wanted.text().size();
        if (text.empty()) {
            if (!hasRelation) m_operand = Value::borrowedText(text);
        } else if (const auto number = textToNumber(text)) {
            m_operand = Value(*number);
        } else if (const Result<bool> truth = toBoolean(Value::borrowedText(text))) {
            m_operand = Value::boolean(*truth);
        } else if (const auto error = errorFromText(text)) {
            m_operand = Value(*error);
        } else {
            m_operand = Value::borrowedText(text);
            m_hasWildcards = hasWildcards(text);
        }
    }
    m_matchesEmpty = matches(Value());
}

bool Criterion::equals(const Value& value) const {
    switch (m_operand.type()) {
        case ValueType::number:
            if (value.isNumber()) return value.number() == m_operand.number();
            return value.isText() && textToNumber(value.text()) == m_operand.number();
        case ValueType::boolean:
            return value.isBoolean() && value.truth() == m_operand.truth();
        case ValueType::error:
            return value.isError() && value.error() == m_operand.error();
        case ValueType::text: {
            if (m_operand.text().empty())
                return value.isEmpty() || (value.isText() && value.text().empty());
            if (!value.isText()) return false;
            return m_hasWildcards ? matchesWildcards(m_operand.text(), value.text())
                                  : compareTexts(m_operand.text(), value.text()) == 0;
        }
        default:
            return value.isEmpty();
    }
}

bool Criterion::isInOrder(const Value& value) const {
    if (value.type() != m_operand.type() || value.isEmpty() || value.isError()) return false;
    const int order = compareValues(value, m_operand);
    switch (m_relation) {
        case Relation::less:
            return order < 0;
        case Relation::lessEqual:
            return order <= 0;
        case Relation::greater:
            return order > 0;
        default:
            return order >= 0;
    }
}

bool Criterion::matches(const Calculation& c, const Value& value) const {
    if (value.isText()) {
        const size_t size = value.text().size();
        c.spend(static_cast<int64_t>(m_hasWildcards ? size * m_operand.text().size() : 20 + size));
    }
    return matches(value);
}

bool Criterion::matches(const Value& value) const {
    if (m_relation == Relation::equal) return equals(value);
    if (m_relation == Relation::unequal) return !equals(value);
    return isInOrder(value);
}

}  // namespace formula
