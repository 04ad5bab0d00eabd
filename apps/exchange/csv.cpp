#include "exchange/csv.h"

#include <algorithm>

namespace exchange {

namespace {

// Walks over a record that grows line by line: does every quoted field end, and does a comma or
// the end of the line follow it?
class QuoteCheck {
  public:
    enum class State { closed, open, malformed };

    /// `record` begins with what the call before saw.
    State goOn(std::string_view record) {
        while (m_at < record.size() || m_inQuotes) {
            if (!m_inQuotes && record[m_at] != '"') {
                m_at = std::min(record.find(',', m_at), record.size()) + 1;
                continue;
            }
            if (!m_inQuotes) ++m_at;
            m_inQuotes = true;
            m_at = record.find('"', m_at);
            if (m_at == record.npos) {
                m_at = record.size();
                return State::open;
            }
            ++m_at;
            if (record.substr(m_at).starts_with('"')) {
                ++m_at;
                continue;
            }
            m_inQuotes = false;
            if (m_at < record.size() && record[m_at] != ',') return State::malformed;
            ++m_at;
        }
        return State::closed;
    }

  private:
    size_t m_at = 0;
    bool m_inQuotes = false;
};

}  // namespace

CsvReader::ReadResult CsvReader::next(std::vector<std::string_view>& fields) {
    std::string_view record;
    do {
        switch (m_source.next(record)) {
            case LineSource::ReadResult::line:
                break;
            case LineSource::ReadResult::end:
                return ReadResult::end;
            case LineSource::ReadResult::tooLong:
                return bad("the line is longer than 16 MiB");
            case LineSource::ReadResult::failed:
                m_error = m_source.error();
                return ReadResult::failed;
        }
    } while (record.empty() && m_emptyLines == EmptyLines::skipped);
    return split(record, fields);
}

CsvReader::ReadResult CsvReader::split(std::string_view record,
                                       std::vector<std::string_view>& fields) {
    if (record.find('"') != record.npos) return splitQuoted(record, fields);
    fields.clear();
    while (true) {
        const size_t comma = record.find(',');
        fields.push_back(record.substr(0, comma));
        if (comma == record.npos) return ReadResult::record;
        if (fields.size() == maxFields) return bad("more than 16384 fields");
        record.remove_prefix(comma + 1);
    }
}

CsvReader::ReadResult CsvReader::splitQuoted(std::string_view record,
                                             std::vector<std::string_view>& fields) {
    if (!completeQuotes(record)) return ReadResult::bad;
    m_unquoted.clear();
    m_unquoted.reserve(record.size());  // so that fields can point into it
    fields.clear();
    while (true) {
        size_t end = 0;
        if (record.starts_with('"')) {
            const size_t start = m_unquoted.size();
            for (end = 1; record[end] != '"' || record.substr(end + 1).starts_with('"'); ++end) {
                m_unquoted += record[end];
                if (record[end] == '"') ++end;
            }
            ++end;
            fields.emplace_back(m_unquoted.data() + start, m_unquoted.size() - start);
        } else {
            end = std::min(record.find(','), record.size());
            fields.push_back(record.substr(0, end));
        }
        if (end == record.size()) return ReadResult::record;
        if (fields.size() == maxFields) return bad("more than 16384 fields");
        record.remove_prefix(end + 1);
    }
}

// Takes in further lines until every quoted field has its end. When there is none, the quote was a
// mistake on this line alone, and the lines after it are read as records of their own.
bool CsvReader::completeQuotes(std::string_view& record) {
    QuoteCheck check;
    while (true) {
        const QuoteCheck::State state = check.goOn(record);
        if (state == QuoteCheck::State::closed) return true;
        if (state == QuoteCheck::State::malformed)
            bad("a quoted field must be followed by a comma or the end of the line");
        else if (m_source.extend(record) == LineSource::ReadResult::line)
            continue;
        else
            bad("a quoted field has no end");
        m_source.keepFirstLineOnly();
        return false;
    }
}

CsvReader::ReadResult CsvReader::bad(std::string_view message) {
    m_error = message;
    return ReadResult::bad;
}

}  // namespace exchange
