// Comma-separated values as spreadsheets exchange them: fields may stand in double quotes, a quote
// inside is doubled, a quoted field may run over several lines. Fields are
// UTF-8 and come back as they were written.
//
// Not DelimitedText: records come one by one from a stream, and one that is no CSV is told with its
// line, as nobody looks at what a program makes of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/line_source.h"

namespace exchange {

class CsvReader {
  public:
    static constexpr size_t maxFields = 16384;

    enum class EmptyLines { skipped, kept };

    explicit CsvReader(LineSource& source, EmptyLines emptyLines = EmptyLines::skipped)
        : m_source(source), m_emptyLines(emptyLines) {}

    enum class ReadResult {
        record,
        end,
        bad,     ///< this record is no CSV, see error(); the next line can be read
        failed,  ///< reading failed, see error(); nothing more comes
    };

    /// The next record. Fields live until the next call; a kept empty line has one empty field.
    ReadResult next(std::vector<std::string_view>& fields);

    long long lineNumber() const { return m_source.lineNumber(); }
    const std::string& error() const { return m_error; }

  private:
    ReadResult split(std::string_view record, std::vector<std::string_view>& fields);
    ReadResult splitQuoted(std::string_view record, std::vector<std::string_view>& fields);
    ReadResult bad(std::string_view message);
    bool completeQuotes(std::string_view& record);

    LineSource& m_source;
    EmptyLines m_emptyLines;
    std::string m_error;
    std::string m_unquoted;
};

}  // namespace exchange
