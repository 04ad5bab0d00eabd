#include "core_api/record_reader.h"

#include "platform/escaped_text.h"

RecordReader::Got RecordReader::next(std::vector<std::string_view>& fields) {
    fields.clear();
    m_unescaped.clear();
    if (m_rest.empty()) return Got::end;
    ++m_line;
    std::string_view line = takeLine(m_rest);
    const bool hasEscapes = line.find('\\') != std::string_view::npos;
    for (bool more = true; more;) {
        more = line.find('\t') != std::string_view::npos;
        const std::string_view field = takePart(line, '\t');
        fields.push_back(field);
        if (!hasEscapes) continue;
        auto text = unescaped(field);
        if (!text) return Got::damaged;
        fields.back() = m_unescaped.emplace_back(std::move(*text));
    }
    return Got::record;
}
