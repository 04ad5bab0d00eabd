#include "spread/control/formula/functions/format_section.h"

#include <charconv>

namespace formula::number_format {
namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c;
}

bool startsWith(std::string_view text, std::string_view lowerWord) {
    if (text.size() < lowerWord.size()) return false;
    for (size_t i = 0; i < lowerWord.size(); ++i)
        if (lower(text[i]) != lowerWord[i]) return false;
    return true;
}

bool isDatePart(Part part) {
    return part >= Part::year;
}
bool isNumberPart(Part part) {
    return part == Part::digit || part == Part::percent || part == Part::exponent ||
           part == Part::general;
}

class FormatParser {
  public:
    explicit FormatParser(std::string_view format) : m_rest(format) {}

    std::optional<std::vector<Section>> parse() {
        m_sections.emplace_back();
        while (!m_rest.empty())
            if (!takePiece()) return std::nullopt;
        if (m_sections.size() > 4) return std::nullopt;
        for (Section& section : m_sections)
            if (!complete(section)) return std::nullopt;
        return std::move(m_sections);
    }

  private:
    Section& section() { return m_sections.back(); }

    char takeChar() {
        const char c = m_rest.front();
        m_rest.remove_prefix(1);
        return c;
    }
    void add(Part part, char symbol = 0, int count = 1) {
        section().pieces.push_back({part, symbol, count, {}});
    }
    void addLiteral(std::string_view text) {
        auto& pieces = section().pieces;
        if (pieces.empty() || pieces.back().part != Part::literal) add(Part::literal);
        pieces.back().text += text;
    }

    bool takePiece() {
        const char c = m_rest.front();
        if (startsWith(m_rest, "general")) {
            m_rest.remove_prefix(7);
            add(Part::general);
            return true;
        }
        if (startsWith(m_rest, "am/pm") || startsWith(m_rest, "a/p")) return takeHalfDay();
        if (lower(c) == 'e' && m_rest.size() > 1 && (m_rest[1] == '+' || m_rest[1] == '-')) {
            add(Part::exponent, m_rest[1]);
            m_rest.remove_prefix(2);
            return true;
        }
        if (takeDateLetters() || takeSymbol()) return true;
        if (c == '"') return takeQuoted();
        if (c == '[') return takeBrackets();
        return takeEscaped();
    }

    bool takeHalfDay() {
        const bool isLong = startsWith(m_rest, "am/pm");
        add(Part::halfDay, m_rest.front(), isLong ? 2 : 1);
        m_rest.remove_prefix(isLong ? 5 : 3);
        return true;
    }

    static std::optional<Part> dateLetter(char c) {
        switch (lower(c)) {
            case 'y':
                return Part::year;
            case 'm':
                return Part::month;
            case 'd':
                return Part::day;
            case 'h':
                return Part::hour;
            case 's':
                return Part::second;
            default:
                return std::nullopt;
        }
    }

    bool takeDateLetters() {
        const auto part = dateLetter(m_rest.front());
        if (!part) return false;
        const char letter = lower(m_rest.front());
        int count = 0;
        for (; !m_rest.empty() && lower(m_rest.front()) == letter; m_rest.remove_prefix(1)) ++count;
        add(*part, letter, count);
        return true;
    }

    bool takeSymbol() {
        const char c = m_rest.front();
        switch (c) {
            case '0':
            case '#':
            case '?':
                add(Part::digit, c);
                break;
            case '.':
                if (takeSecondFraction()) return true;
                add(Part::point);
                break;
            case ',':
                add(Part::comma);
                break;
            case '%':
                add(Part::percent);
                ++section().percents;
                break;
            case '/':
                add(Part::slash);
                section().pieces.back().text = "/";
                break;
            case '@':
                add(Part::text);
                break;
            case ';':
                m_sections.emplace_back();
                break;
            default:
                return false;
        }
        m_rest.remove_prefix(1);
        return true;
    }

    /// ".00" behind seconds, at most three zeros; more are digits, which dates do not have.
    bool takeSecondFraction() {
        const auto& pieces = section().pieces;
        const bool isBehindSeconds =
            !pieces.empty() &&
            (pieces.back().part == Part::second || pieces.back().part == Part::elapsedSeconds);
        if (!isBehindSeconds) return false;
        m_rest.remove_prefix(1);
        int count = 0;
        for (; count < 3 && !m_rest.empty() && m_rest.front() == '0'; m_rest.remove_prefix(1))
            ++count;
        add(Part::secondFraction, '0', count);
        return true;
    }

    bool takeQuoted() {
        const size_t end = m_rest.find('"', 1);
        if (end == std::string_view::npos) return false;
        addLiteral(m_rest.substr(1, end - 1));
        m_rest.remove_prefix(end + 1);
        return true;
    }

    bool takeEscaped() {
        const char c = takeChar();
        if (c != '\\' && c != '_' && c != '*') {
            addLiteral({&c, 1});
            return true;
        }
        if (m_rest.empty()) return false;
        const char escaped = takeChar();
        if (c == '\\') addLiteral({&escaped, 1});
        if (c == '_') addLiteral(" ");
        return true;
    }

    bool takeBrackets() {
        const size_t end = m_rest.find(']');
        if (end == std::string_view::npos) return false;
        const std::string_view content = m_rest.substr(1, end - 1);
        m_rest.remove_prefix(end + 1);
        if (content.empty()) return false;
        if (content[0] == '$') {
            addLiteral(content.substr(1, content.find('-') - 1));
            return true;
        }
        if (content[0] == '<' || content[0] == '>' || content[0] == '=')
            return takeCondition(content);
        if (content.find_first_not_of("hHmMsS") == std::string_view::npos)
            return takeElapsed(content);
        return true;  // a colour or something else that a text does not show
    }

    bool takeCondition(std::string_view content) {
        const size_t size = content.find_first_not_of("<>=");
        if (size == std::string_view::npos || size > 2) return false;
        Condition condition{content.substr(0, size), 0};
        const char* const end = content.data() + content.size();
        const auto [next, error] = std::from_chars(content.data() + size, end, condition.operand);
        section().condition = condition;
        return error == std::errc() && next == end;
    }

    bool takeElapsed(std::string_view content) {
        const char letter = lower(content[0]);
        for (const char c : content)
            if (lower(c) != letter) return false;
        add(letter == 'h'   ? Part::elapsedHours
            : letter == 'm' ? Part::elapsedMinutes
                            : Part::elapsedSeconds,
            letter, static_cast<int>(content.size()));
        return true;
    }

    /// Gives the pieces their meaning from what stands beside them. False when they do not go
    /// together.
    static bool complete(Section& section) {
        bool hasNumber = false;
        for (const Piece& piece : section.pieces) {
            section.isDate = section.isDate || isDatePart(piece.part);
            section.isText = section.isText || piece.part == Part::text;
            hasNumber = hasNumber || isNumberPart(piece.part);
        }
        if (section.isDate && (hasNumber || section.isText)) return false;
        if (section.isText && hasNumber) return false;
        if (section.isDate) completeDate(section);
        if (!section.isDate) completeCommas(section);
        return true;
    }

    static void completeDate(Section& section) {
        Piece* previous = nullptr;
        for (Piece& piece : section.pieces) {
            if (!isDatePart(piece.part)) {
                // Between dates these are what they look like.
                if (piece.part == Part::comma) piece.text = ",";
                if (piece.part == Part::point) piece.text = ".";
                piece.part = Part::literal;
                continue;
            }
            // "m" is a minute behind hours and before seconds.
            const bool isHourBefore =
                previous && (previous->part == Part::hour || previous->part == Part::elapsedHours);
            if (piece.part == Part::month && piece.count <= 2 && isHourBefore)
                piece.part = Part::minute;
            const bool isSecond = piece.part == Part::second || piece.part == Part::elapsedSeconds;
            if (isSecond && previous && previous->part == Part::month && previous->count <= 2)
                previous->part = Part::minute;
            if (piece.part != Part::halfDay) previous = &piece;
        }
    }

    static void completeCommas(Section& section) {
        auto& pieces = section.pieces;
        bool hasDigit = false;
        for (size_t i = 0; i < pieces.size(); ++i) {
            hasDigit = hasDigit || pieces[i].part == Part::digit;
            if (pieces[i].part != Part::comma) continue;
            size_t next = i;
            while (next < pieces.size() && pieces[next].part == Part::comma) ++next;
            const bool isBeforeDigit = next < pieces.size() && pieces[next].part == Part::digit;
            if (!hasDigit) {
                pieces[i].part = Part::literal;
                pieces[i].text = ",";
                continue;
            }
            if (isBeforeDigit)
                section.grouped = true;
            else
                section.thousands += static_cast<int>(next - i);
            pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(i),
                         pieces.begin() + static_cast<std::ptrdiff_t>(next));
            --i;
        }
    }

    std::string_view m_rest;
    std::vector<Section> m_sections;
};

}  // namespace

bool Condition::holds(double number) const {
    if (relation == "<") return number < operand;
    if (relation == "<=") return number <= operand;
    if (relation == ">") return number > operand;
    if (relation == ">=") return number >= operand;
    if (relation == "<>") return number != operand;
    return number == operand;
}

std::optional<std::vector<Section>> parseFormat(std::string_view format) {
    return FormatParser(format).parse();
}

}  // namespace formula::number_format
