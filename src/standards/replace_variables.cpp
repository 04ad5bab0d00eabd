#include "standards/replace_variables.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "standards/words.h"

namespace {

constexpr int mostReplacements = 99999999;  // of one name in one text

bool touchesWord(const Vor_String& text, int start, int end) {
    return (start > 0 && isWordCharacter(text[start - 1])) ||
           (end < text.length() && isWordCharacter(text[end]));
}

bool replaceName(Vor_String& text, const Vor_String& name, const Vor_String& value) {
    bool replaced = false;
    int position = 0;
    for (int i = 0; i < mostReplacements; ++i) {
        const int start = text.findFirstFrom(name, position);
        if (start < 0) break;
        position = start + name.length();
        if (touchesWord(text, start, position)) continue;
        text.removeAt(start, name.length());
        text.insertAt(start, value);
        position = start + value.length();
        replaced = true;
    }
    return replaced;
}

}  // namespace

bool replaceVariables(Vor_String& text, const Vor_StringArray& names, const Vor_StringArray& values,
                      bool quoteTexts) {
    bool replaced = false;
    const int count = std::min(names.length(), values.length());
    for (int i = 0; i < count; ++i) {
        const bool quote = quoteTexts && !isNumber(values[i]);
        replaced |= replaceName(text, names[i], quote ? "\"" + values[i] + "\"" : values[i]);
    }
    return replaced;
}

VariableReferences::VariableReferences(Vor_StringArray names, Vor_StringArray references)
    : m_names(std::move(names)), m_references(std::move(references)), m_index(m_names.length()) {
    for (int i = 0; i < m_names.length(); ++i) {
        const bool isNew = m_index.add(m_names[i], i) < 0;
        if (!isNew || !isPlainWord(m_names[i])) m_onePass = false;
    }
}

Vor_String VariableReferences::translate(std::string_view text) const {
    if (!m_onePass) {
        Vor_String translated(text);
        replaceVariables(translated, m_names, m_references, false);
        return translated;
    }
    std::string translated;
    translated.reserve(text.size());
    eachWord(
        text, [&](std::string_view word) { translated += translateWord(word); },
        [&](std::string_view other) { translated += other; });
    return Vor_String(std::move(translated));
}

/// A reference that was put in is a word again; only later names see it.
std::string_view VariableReferences::translateWord(std::string_view word) const {
    int last = -1;
    for (int index = m_index.find(word); index > last; index = m_index.find(word)) {
        word = m_references[index];
        last = index;
    }
    return word;
}
