#include "standards/replace_variables.h"

#include <algorithm>
#include <cstring>

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "spread/control/document_text.h"
#include "standards/words.h"

namespace {

// Values may hold names that are replaced later, so texts can double with every name.
constexpr size_t longestResult = size_t{1} << 20;

/// Every whole word `name` becomes `value`; what was put in is not looked at again.
bool replaceName(Vor_String& text, const Vor_String& name, const Vor_String& value) {
    if (name.isEmpty() || text.view().size() > longestResult) return false;
    std::string result;
    int copied = 0;
    bool replaced = false;
    const auto copyUpTo = [&](int end) {
        result.append(
            text.view().substr(static_cast<size_t>(copied), static_cast<size_t>(end - copied)));
        copied = end;
    };
    for (int at = text.findFirstFrom(name, 0); at >= 0 && result.size() < longestResult;
         at = text.findFirstFrom(name, at + name.length())) {
        const int end = at + name.length();
        copyUpTo(at);
        const bool touchesWord = (!result.empty() && isWordCharacter(result.back())) ||
                                 (end < text.length() && isWordCharacter(text[end]));
        if (touchesWord) continue;
        result.append(value.view());
        copied = end;
        replaced = true;
    }
    if (!replaced) return false;
    copyUpTo(text.length());
    text = Vor_String(std::move(result));
    return true;
}

/// The words of a text as a small set: one bit each, which several may share. A name can only be
/// where all of its words are: nothing of it touches another word.
std::uint64_t wordSet(std::string_view text) {
    std::uint64_t set = 0;
    eachWord(
        text,
        [&](std::string_view word) {
            set |= std::uint64_t{1} << (encodings::hashFolded(word) & 63U);
        },
        [](std::string_view) {});
    return set;
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

VariableReferences::VariableReferences(Vor_StringArray names, Vor_StringArray references,
                                       Namesakes namesakes)
    : m_names(std::move(names)), m_references(std::move(references)), m_index(m_names.length()) {
    for (int i = 0; i < m_names.length(); ++i) {
        const int first = m_index.add(m_names[i], i);
        if (first >= 0 || !isPlainWord(m_names[i])) m_onePass = false;
        if (first >= 0 && namesakes == Namesakes::asFirst) m_references[i] = m_references[first];
        noteShape(m_names[i]);
    }
    for (const Vor_String& reference : m_references) {
        m_chains = m_chains || isName(reference);
        m_longestReference = std::max(m_longestReference, static_cast<size_t>(reference.length()));
    }
    if (m_onePass)
        noteCells();
    else
        for (const Vor_String& name : m_names) m_words.push_back(wordSet(name));
}

bool VariableReferences::isName(std::string_view text) const {
    const bool isOther = m_onePass && (text.empty() || !mayBeName(text));
    return !isOther && m_index.find(text) >= 0;
}

void VariableReferences::noteCells() {
    m_cells.reserve(static_cast<size_t>(m_names.length()));
    for (int i = 0; i < m_names.length(); ++i) {
        std::string_view rest = m_chains ? translateWord(m_names[i]) : m_references[i].view();
        const std::optional<control::CellAddress> cell = control::takeAddress(rest);
        if (!cell || cell->col < 1 || cell->row < 1 || !rest.empty()) return;
        m_cells.push_back(*cell);
    }
    m_areCells = true;
}

const control::CellAddress* VariableReferences::cellOf(std::string_view word) const {
    if (!mayBeName(word)) return nullptr;
    const int index = m_index.find(word);
    return index < 0 ? nullptr : &m_cells[static_cast<size_t>(index)];
}

std::string_view VariableReferences::translate(std::string_view text, std::string& buffer) const {
    if (!m_onePass) return replaceOneByOne(text, buffer);
    // At most every other character is a word of its own.
    const size_t most = text.size() + (text.size() / 2 + 1) * m_longestReference;
    if (buffer.size() < most) buffer.resize(most);
    char* out = buffer.data();
    const auto write = [&out](const char* from, size_t size) {
        if (size > 0) std::memcpy(out, from, size);  // nothing may come from nowhere
        out += size;
    };
    const char* copied = text.data();
    eachWord(
        text,
        [&](std::string_view word) {
            if (!mayBeName(word)) return;
            const std::string_view reference = translateWord(word);
            if (reference.data() == word.data()) return;
            write(copied, static_cast<size_t>(word.data() - copied));
            write(reference.data(), reference.size());
            copied = word.data() + word.size();
        },
        [](std::string_view) {});
    write(copied, static_cast<size_t>(text.data() + text.size() - copied));
    return {buffer.data(), static_cast<size_t>(out - buffer.data())};
}

std::string_view VariableReferences::replaceOneByOne(std::string_view text,
                                                     std::string& buffer) const {
    Vor_String translated(text);
    std::uint64_t words = wordSet(text);
    for (int i = 0; i < m_names.length(); ++i)
        if ((m_words[static_cast<size_t>(i)] & ~words) == 0 &&
            replaceName(translated, m_names[i], m_references[i]))
            words = wordSet(translated);
    return buffer.assign(translated.view());
}

void VariableReferences::noteShape(const Vor_String& name) {
    if (name.isEmpty()) return;
    m_starts.set(static_cast<unsigned char>(encodings::toLower(name[0])));
    m_starts.set(static_cast<unsigned char>(encodings::toUpper(name[0])));
    if (static_cast<size_t>(name.length()) < m_lengths.size())
        m_lengths.set(static_cast<size_t>(name.length()));
    else
        m_onePass = false;
}

/// A reference that was put in is a word again; only later names see it.
std::string_view VariableReferences::translateWord(std::string_view word) const {
    int index = m_index.find(word);
    if (index < 0) return word;
    word = m_references[index];
    if (!m_chains) return word;
    for (int last = index; (index = m_index.find(word)) > last; last = index)
        word = m_references[index];
    return word;
}
