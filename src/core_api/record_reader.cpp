#include "core_api/record_reader.h"

#include "platform/escaped_text.h"

RecordReader::ReadResult RecordReader::next(std::vector<std::string_view>& fields) {
    fields.clear();
    m_unescaped.clear();
    if (m_rest.empty()) return ReadResult::end;
    ++m_line;
    const std::string_view line = takeLine(m_rest);
    // Fields have a few characters each: one look at each of those beats a search for every field.
    size_t begin = 0;
    for (size_t at = 0; at < line.size(); ++at) {
        if (line[at] != '\t') continue;
        fields.push_back(line.substr(begin, at - begin));
        begin = at + 1;
    }
    fields.push_back(line.substr(begin));
    if (line.find('\\') == line.npos) return ReadResult::record;
    for (std::string_view& field : fields) {
        auto text = unescaped(field);
        if (!text) return ReadResult::damaged;
        field = m_unescaped.emplace_back(std::move(*text));
    }
    return ReadResult::record;
}
