#include "core_api/text/delimited_text.h"

#include "core_api/text/text_helpers.h"

#include <algorithm>

bool DelimitedText::next(std::vector<std::string>& fields) {
    fields.clear();
    if (m_rest.empty()) return false;
    m_rowLine = m_line;
    do {
        fields.emplace_back();
    } while (takeField(fields.back()));
    return true;
}

namespace {

/// Where the quoted field at the start of `text` ends: behind its closing quote; 0 without one.
size_t endOfQuoted(std::string_view text) {
    for (size_t at = 1; at < text.size(); ++at) {
        if (text[at] != '"') continue;
        if (!text.substr(at + 1).starts_with('"')) return at + 1;
        ++at;
    }
    return 0;
}

}  // namespace

// True when another field of the row follows.
bool DelimitedText::takeField(std::string& field) {
    if (m_rest.starts_with('"')) {
        const size_t end = endOfQuoted(m_rest);
        for (size_t at = 1; at + 1 < end; ++at) {
            field += m_rest[at];
            if (m_rest[at] == '"') ++at;
            if (m_rest[at] == '\n') ++m_line;
        }
        m_rest.remove_prefix(end);
    }
    const char ends[] = {m_separator, '\r', '\n'};
    const size_t end = std::min(m_rest.find_first_of({ends, sizeof ends}), m_rest.size());
    field += m_rest.substr(0, end);
    m_rest.remove_prefix(end);
    if (m_rest.empty()) return false;
    const char mark = m_rest[0];
    m_rest.remove_prefix(m_rest.starts_with("\r\n") ? 2 : 1);
    if (mark == m_separator) return true;
    ++m_line;
    return false;
}

void appendField(std::string& row, std::string_view field, char separator) {
    const char special[] = {separator, '"', '\r', '\n'};
    if (field.find_first_of({special, sizeof special}) == field.npos) {
        row += field;
        return;
    }
    row += '"';
    for (const char c : field) {
        if (c == '"') row += '"';
        row += c;
    }
    row += '"';
}

namespace {

bool isFormulaBehindApostrophes(std::string_view text) {
    const size_t first = text.find_first_not_of('\'');
    return first != text.npos && text[first] == '=';
}

bool isRunBySpreadsheets(std::string_view text) {
    constexpr std::string_view starts = "+@\t\r\n";
    if (text.empty()) return false;
    if (starts.find(text[0]) != starts.npos) return true;
    return text.size() > 1 && text[0] == '-' && !isNumber(text);
}

}  // namespace

void appendTextField(std::string& row, std::string_view text, char separator) {
    if (!isFormulaBehindApostrophes(text)) return appendField(row, text, separator);
    appendField(row, "'" + std::string(text), separator);
}

std::string_view textOfField(std::string_view field) {
    const bool isMarked = field.starts_with('\'') && isFormulaBehindApostrophes(field);
    return field.substr(isMarked ? 1 : 0);
}

void appendGuardedField(std::string& row, std::string_view text, char separator) {
    if (!isRunBySpreadsheets(text)) return appendTextField(row, text, separator);
    appendField(row, "'" + std::string(text), separator);
}
