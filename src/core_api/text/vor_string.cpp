#include "core_api/text/vor_string.h"

#include <algorithm>

#include "core_api/text/number_text.h"
#include "platform/encodings.h"

namespace {

bool sameText(std::string_view a, std::string_view b, bool caseMatters) {
    return caseMatters ? a == b : encodings::equalFolded(a, b);
}

// First occurrence, letter case aside; npos when there is none. `part` is not empty.
size_t findFolded(std::string_view text, std::string_view part, size_t start) {
    if (part.size() > text.size()) return std::string_view::npos;
    const size_t last = text.size() - part.size();
    const char lower = encodings::toLower(part[0]);
    const char upper = encodings::toUpper(part[0]);
    for (size_t i = start; i <= last; ++i) {
        if (text[i] != lower && text[i] != upper) continue;
        if (encodings::equalFolded(text.substr(i, part.size()), part)) return i;
    }
    return std::string_view::npos;
}

size_t findIn(std::string_view text, std::string_view part, size_t start, bool caseMatters) {
    return caseMatters ? text.find(part, start) : findFolded(text, part, start);
}

}  // namespace

Vor_String::Vor_String(double number, int decimals, bool keepZeros) {
    NumberBuffer buffer;
    m_text = writeNumber(buffer, number, decimals, keepZeros);
}

Vor_String& Vor_String::append(std::string_view text) {
    m_text.append(text);
    return *this;
}

void Vor_String::insertAt(int position, std::string_view text) {
    const auto at = static_cast<size_t>(std::clamp(position, 0, length()));
    m_text.insert(at, text);
}

void Vor_String::removeAt(int position, int count) {
    if (count <= 0 || position >= length()) return;
    m_text.erase(static_cast<size_t>(std::max(position, 0)), static_cast<size_t>(count));
}

bool Vor_String::equal(std::string_view other, bool caseMatters) const {
    return sameText(m_text, other, caseMatters);
}

bool Vor_String::hasSubString(std::string_view part, bool caseMatters) const {
    return findFirstFrom(part, 0, caseMatters) >= 0;
}

bool Vor_String::beginsWith(std::string_view part, bool caseMatters) const {
    return view().size() >= part.size() &&
           sameText(view().substr(0, part.size()), part, caseMatters);
}

bool Vor_String::endsWith(std::string_view part, bool caseMatters) const {
    return view().size() >= part.size() &&
           sameText(view().substr(view().size() - part.size()), part, caseMatters);
}

int Vor_String::findFirstFrom(std::string_view part, int start, bool caseMatters) const {
    if (part.empty()) return -1;
    const size_t found = findIn(m_text, part, static_cast<size_t>(std::max(start, 0)), caseMatters);
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

Vor_String Vor_String::getSubStringAt(int position, int count) const {
    const auto at = static_cast<size_t>(std::clamp(position, 0, length()));
    return view().substr(at, count < 0 ? std::string_view::npos : static_cast<size_t>(count));
}

int Vor_String::replaceSubString(std::string_view from, std::string_view to, bool caseMatters) {
    if (from.empty()) return 0;
    std::string result;
    int replaced = 0;
    size_t done = 0;
    for (size_t found = findIn(m_text, from, 0, caseMatters); found != std::string_view::npos;
         found = findIn(m_text, from, done, caseMatters)) {
        result.append(m_text, done, found - done).append(to);
        done = found + from.size();
        ++replaced;
    }
    if (replaced == 0) return 0;
    result.append(m_text, done);
    m_text = std::move(result);
    return replaced;
}
