#include <cmath>

#include "cli/io/console.h"
#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/case_table.h"
#include "cli/standards/library.h"
#include "cli/standards/standards_commands.h"
#include "cli/standards/value_run.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/files.h"

namespace cli {

namespace {

struct Count {
    int cases = 0;
    int failed = 0;
};

/// What is wrong with an output; empty when it is as expected.
std::string difference(const TwVarCell& output, const std::string& expected, double tolerance) {
    const std::string& got = output.value().str();
    double off = 0;
    if (isNumeric(output.valueType()) && isNumber(got) && isNumber(expected)) {
        off = textToDouble(got) - textToDouble(expected);
        if (std::fabs(off) <= tolerance) return "";
    } else if (got == expected) {
        return "";
    }
    std::string text;
    exchange::appendUtf8(text, output.name());
    text += " is ";
    exchange::appendUtf8(text, got.empty() ? "empty" : got);
    text += ", expected ";
    exchange::appendUtf8(text, expected.empty() ? "nothing" : expected);
    if (off == 0) return text;
    text += ", off by ";
    exchange::appendRounded(text, off);
    text += " (tolerance ";
    exchange::appendNumber(text, tolerance);
    return text + ")";
}

/// Everything that is wrong with one case, already run.
std::vector<std::string> differences(const TwVarCells& cells, const CaseTable::Case& row) {
    std::vector<std::string> found;
    for (const auto& [cell, value] : row.expected) {
        auto text = difference(cells[cell], value, row.tolerance);
        if (!text.empty()) found.push_back(std::move(text));
    }
    return found;
}

bool testCases(ValueRun& run, const std::string& file, Count& count) {
    std::string error;
    auto source = exchange::LineSource::openFile(file, error);
    if (!source) {
        complainAt(file, 0, error);
        return false;
    }
    exchange::CsvReader reader(*source);
    const auto table = CaseTable::open(reader, file, run.cells());
    if (!table) return false;

    std::vector<std::string_view> fields;
    CaseTable::Case row;
    exchange::CsvReader::ReadResult got;
    while ((got = reader.next(fields)) == exchange::CsvReader::ReadResult::record ||
           got == exchange::CsvReader::ReadResult::bad) {
        ++count.cases;
        std::vector<std::string> wrong;
        if (got == exchange::CsvReader::ReadResult::bad)
            wrong.push_back(reader.error());
        else if (!table->take(fields, run.cells(), row, error) || !run.run(error))
            wrong.push_back(error);
        else
            wrong = differences(run.cells(), row);
        count.failed += !wrong.empty();
        for (const auto& text : wrong)
            complainAt(file, reader.lineNumber(),
                       "case " + std::to_string(count.cases) + ": " + text);
    }
    if (got == exchange::CsvReader::ReadResult::failed)
        complainAt(file, reader.lineNumber(), reader.error());
    if (count.cases == 0) complainAt(file, reader.lineNumber(), "there are no cases");
    return got == exchange::CsvReader::ReadResult::end && count.cases > 0 && count.failed == 0;
}

Vor_String casesPath(const StandardName& standard) {
    return changeExtension(standard.path, "cases.csv");
}

bool testStandard(const StandardName& standard, Output& output) {
    auto run = ValueRun::open(standard);
    if (!run) return false;
    Count count;
    const bool good = testCases(*run, shownPath(casesPath(standard)), count);
    if (count.cases == 0) return false;
    std::string& text = output.text();
    text += standard.name + ": " + std::to_string(count.cases) + " cases, ";
    text += count.failed == 0 ? "all as expected\n"
                              : std::to_string(count.failed) + " not as expected\n";
    output.flush();
    return good;
}

}  // namespace

ExitCode testStandards(const TestRequest& request) {
    std::vector<StandardName> standards;
    bool good = true;
    for (const auto& typed : request.names) {
        if (const auto standard = findStandard(typed))
            standards.push_back(*standard);
        else
            good = false;
    }
    if (request.all)
        for (const auto& standard : allStandards())
            if (files::exists(casesPath(standard))) standards.push_back(standard);
    if (standards.empty() && good) {
        complain(request.all ? "the library has no standard with check problems"
                             : "name the standards to test, or give --all");
        return request.all ? ExitCode::failed : ExitCode::wrongCall;
    }
    Output output;
    for (const auto& standard : standards) good &= testStandard(standard, output);
    return output.close() && good ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
