// Check problems of a standard: a header or a row is taken, or refused with a reason; what is
// expected belongs to outputs.
#include "cli/standards/case_table.h"

#include <cmath>

#include "fed_lines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const Feeding feeding(data[0]);
    auto source = feedLines({reinterpret_cast<const char*>(data) + 1, size - 1}, feeding.pieceSize);
    exchange::CsvReader reader(source);
    TwVarCells cells = variablesOf(TwCellType::input);
    cells.append(TwVarCell("Plate", TwCellType::output, TwValueType::Double));
    cells.append(TwVarCell("Fits", TwCellType::output, TwValueType::Int));
    const auto table = cli::CaseTable::open(reader, "cases.csv", cells);
    if (!table) return 0;
    std::vector<std::string_view> fields;
    for (auto got = reader.next(fields); got != exchange::CsvReader::ReadResult::end;
         got = reader.next(fields)) {
        require(got == exchange::CsvReader::ReadResult::record || !reader.error().empty());
        if (got == exchange::CsvReader::ReadResult::failed) return 0;
        if (got != exchange::CsvReader::ReadResult::record) continue;
        cli::CaseTable::Case row;
        std::string error;
        if (!table->take(fields, cells, row, error)) {
            require(!error.empty());
            continue;
        }
        require(std::isfinite(row.tolerance) && row.tolerance >= 0);
        for (const auto& expected : row.expected) require(cells[expected.cell].isOutput());
    }
    return 0;
}
