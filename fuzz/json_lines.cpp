// JSON lines: every line gives values or a message, and values written as results read back as the
// values they are.
#include <cstdint>

#include "cli/standards/batch_input.h"
#include "fed_lines.h"

namespace {

using ReadResult = cli::BatchInput::ReadResult;

/// The results that stand for the values of every good line.
std::string resultsOf(std::string_view text, size_t pieceSize, bool allGood) {
    auto source = feedLines(text, pieceSize);
    const auto input = cli::makeJsonInput(source);
    TwVarCells cells = variablesOf(TwCellType::input);
    std::string results, error;
    long long line = 0;
    require(input->begin(cells, error));
    while (true) {
        error.clear();
        const ReadResult got = input->next(cells, error);
        require(got != ReadResult::failed);
        if (got == ReadResult::end) return results;
        require(source.lineNumber() > line);
        line = source.lineNumber();
        require((got == ReadResult::bad) == !error.empty());
        require(got == ReadResult::values || !allGood);
        if (got == ReadResult::values) results += writtenAsOutputs(cells, true);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const Feeding feeding(data[0]);
    const std::string text = feeding.lines({reinterpret_cast<const char*>(data) + 1, size - 1});
    const std::string results = resultsOf(text, feeding.pieceSize, false);
    require(resultsOf(results, feeding.pieceSize, true) == results);
    return 0;
}
