// CSV lines: what is read can be written and reads back equal, and every line of a batch gives
// values or a message.
#include <cstdint>
#include <vector>

#include "cli/standards/batch_input.h"
#include "core_api/text/delimited_text.h"
#include "exchange/csv.h"
#include "fed_lines.h"

namespace {

using Records = std::vector<std::vector<std::string>>;
using ReadResult = cli::BatchInput::ReadResult;

Records recordsOf(std::string_view text, size_t pieceSize) {
    auto source = feedLines(text, pieceSize);
    exchange::CsvReader reader(source, exchange::CsvReader::EmptyLines::kept);
    Records records;
    std::vector<std::string_view> fields;
    long long line = 0;
    while (true) {
        const auto got = reader.next(fields);
        require(got != exchange::CsvReader::ReadResult::failed);
        if (got == exchange::CsvReader::ReadResult::end) return records;
        require(reader.lineNumber() > line);
        line = reader.lineNumber();
        if (got == exchange::CsvReader::ReadResult::record)
            records.emplace_back(fields.begin(), fields.end());
        require(got == exchange::CsvReader::ReadResult::record || !reader.error().empty());
    }
}

std::string written(const Records& records) {
    std::string text;
    for (const auto& fields : records) {
        for (const auto& field : fields) {
            if (&field != &fields.front()) text += ',';
            appendField(text, field, ',');
        }
        text += '\n';
    }
    return text;
}

void checkReading(std::string_view text, const Feeding& feeding) {
    // The line in front keeps a byte order mark that is part of a field from being one again.
    const std::string first(feeding.isMoved ? Feeding::halfBuffer : 1, 'x');
    const Records records = recordsOf(first + '\n' + std::string(text), feeding.pieceSize);
    require(!records.empty() && records.front() == std::vector{first});
    require(recordsOf(written(records), feeding.pieceSize) == records);
}

void checkBatch(std::string_view text, const Feeding& feeding) {
    auto source = feedLines(text, feeding.pieceSize);
    const auto input = cli::makeCsvInput(source);
    TwVarCells cells = variablesOf(TwCellType::input);
    std::string answers, error;
    size_t count = 0;
    if (!input->begin(cells, error)) return require(!error.empty());
    for (ReadResult got; error.clear(), (got = input->next(cells, error)) != ReadResult::end;) {
        require(got == ReadResult::values || got == ReadResult::bad);
        require((got == ReadResult::bad) == !error.empty());
        if (got == ReadResult::bad) continue;
        answers += writtenAsOutputs(cells, false);
        ++count;
    }
    const Records records = recordsOf(answers, feeding.pieceSize);
    require(records.size() == count);
    for (const auto& record : records) require(record.size() == 4);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const Feeding feeding(data[0]);
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    checkReading(text, feeding);
    if (!feeding.isMoved) checkBatch(text, feeding);
    return 0;
}
