#include <algorithm>

#include "cli/io/output.h"
#include "cli/sheets/eval_record.h"
#include "cli/sheets/sheet_commands.h"
#include "exchange/line_source.h"
#include "exchange/texts.h"

namespace cli {

namespace {

bool recordFromCall(const EvalRequest& request, EvalRecord& record, std::string& error) {
    std::string text;
    if (!exchange::fromUtf8(request.formula, text, error)) return false;
    record.formula = text.starts_with('=') ? text.substr(1) : text;
    for (const std::string& option : request.cells) {
        const auto assignment = exchange::splitAssignment(option);
        const auto address = assignment ? cellAddress(assignment->name) : std::nullopt;
        if (!address) {
            error = "--cell " + option + ": write it as ADDRESS=VALUE, for example A1=10";
            return false;
        }
        const bool isGiven =
            std::any_of(record.cells.begin(), record.cells.end(),
                        [&](const auto& cell) { return cell.address == *address; });
        if (isGiven) {
            error = "--cell " + option + ": this cell is given twice";
            return false;
        }
        if (!exchange::fromUtf8(assignment->value, text, error)) return false;
        record.cells.push_back({*address, contentFromText(text)});
    }
    return true;
}

std::string plainText(const formula::Value& value) {
    std::string text;
    if (value.isNumber())
        exchange::appendNumber(text, value.number());
    else if (value.isBoolean())
        text = value.truth() ? "TRUE" : "FALSE";
    else if (value.isText())
        exchange::appendUtf8(text, value.text());
    else if (value.isError())
        text = formula::errorText(value.error());
    return text;
}

ExitCode evalOne(const EvalRequest& request) {
    EvalRecord record;
    std::string error = "give a formula, or --jsonl to read them from lines";
    if (request.formula.empty() || !recordFromCall(request, record, error)) {
        complain(error);
        return ExitCode::wrongCall;
    }
    control::Sheet sheet;
    const auto value = evaluate(record, sheet, error);
    if (!value) {
        complain(error);
        return ExitCode::failed;
    }
    Output output;
    output.write(plainText(*value) + "\n");
    return output.close() ? ExitCode::done : ExitCode::failed;
}

void appendError(std::string& line, const std::string& id, const exchange::LineSource& source,
                 std::string_view message) {
    line += "{\"id\":" + id + ",\"error\":";
    exchange::appendJsonUtf8(
        line, exchange::shortened("line " + std::to_string(source.lineNumber()) + ": " +
                                  std::string(message)));
    line += "}\n";
}

// Evaluates one line; false when an error record was written instead of a result.
bool evalLine(std::string_view json, const exchange::LineSource& source, control::Sheet& sheet,
              std::string& output) {
    EvalRecord record;
    std::string error;
    std::optional<formula::Value> value;
    if (readEvalRecord(json, record, error)) value = evaluate(record, sheet, error);
    if (!value) {
        appendError(output, record.id, source, error);
        return false;
    }
    output += "{\"id\":" + record.id + ",\"got\":";
    appendValueJson(output, *value);
    output += "}\n";
    return true;
}

ExitCode evalLines(const EvalRequest& request) {
    std::string error;
    auto source = exchange::LineSource::open(request.input, error);
    if (!source) {
        complainAt(exchange::LineSource::shownName(request.input), 0, error);
        return ExitCode::failed;
    }
    Output output;
    source->whenWaiting([&] { output.flush(); });
    control::Sheet sheet;
    long long lines = 0, failed = 0;
    std::string_view line;
    exchange::LineSource::ReadResult got;
    while ((got = source->next(line)) == exchange::LineSource::ReadResult::line ||
           got == exchange::LineSource::ReadResult::tooLong) {
        if (!output.isOpen()) break;
        if (got == exchange::LineSource::ReadResult::line &&
            line.find_first_not_of(" \t") == line.npos)
            continue;
        ++lines;
        if (got == exchange::LineSource::ReadResult::tooLong) {
            appendError(output.text(), "null", *source, "longer than 16 MiB");
            ++failed;
        } else if (!evalLine(line, *source, sheet, output.text())) {
            ++failed;
        }
        output.written();
    }
    const bool written = output.close();
    if (got == exchange::LineSource::ReadResult::failed)
        complainAt(source->name(), source->lineNumber(), source->error());
    complainAboutLines(failed, lines);
    return written && got == exchange::LineSource::ReadResult::end && failed == 0
               ? ExitCode::done
               : ExitCode::failed;
}

}  // namespace

ExitCode evalFormula(const EvalRequest& request) {
    return request.jsonLines ? evalLines(request) : evalOne(request);
}

}  // namespace cli
