#include "cli/io/console.h"
#include "cli/io/output.h"
#include "cli/standards/batch_input.h"
#include "cli/standards/batch_output.h"
#include "cli/standards/library.h"
#include "cli/standards/progress.h"
#include "cli/standards/standards_commands.h"
#include "cli/standards/value_run.h"
#include "cli/standards/variables.h"
#include "exchange/texts.h"

namespace cli {

namespace {

struct Count {
    long long lines = 0;
    long long failed = 0;
};

// Every line gets its record, in order. False when reading or writing came to an early end.
bool runLines(ValueRun& run, exchange::LineSource& source, BatchInput& input, BatchOutput& writer,
              Output& output, Count& count) {
    Progress progress(source);
    std::string error;
    for (; output.isOpen(); ++count.lines) {
        const BatchInput::ReadResult got = input.next(run.cells(), error);
        if (got == BatchInput::ReadResult::end) return true;
        if (got == BatchInput::ReadResult::failed) {
            complainAt(source.name(), source.lineNumber(), error);
            return false;
        }
        if (got == BatchInput::ReadResult::values && run.run(error)) {
            writer.writeOutputs(run.cells());
        } else {
            ++count.failed;
            writer.writeError(
                run.cells(),
                exchange::shortened("line " + std::to_string(source.lineNumber()) + ": " + error));
        }
        output.written();
        progress.step();
    }
    return false;
}

}  // namespace

ExitCode batchStandard(const BatchRequest& request) {
    const auto standard = findStandard(request.name);
    if (!standard) return ExitCode::failed;
    const auto run = ValueRun::open(*standard);
    if (!run) return ExitCode::failed;
    if (!setGenValues(run->data(), request.genValues)) return ExitCode::wrongCall;

    std::string error;
    auto source = exchange::LineSource::open(request.input, error);
    if (!source) {
        complainAt(exchange::LineSource::shownName(request.input), 0, error);
        return ExitCode::failed;
    }
    Output output;
    source->whenWaiting([&] { output.flush(); });
    const auto input = request.jsonLines ? makeJsonInput(*source) : makeCsvInput(*source);
    if (!input->begin(run->cells(), error)) {
        complainAt(source->name(), source->lineNumber(), error);
        return ExitCode::failed;
    }
    BatchOutput writer(request.jsonLines, output.text());
    if (request.header) writer.writeHeader(run->cells());

    Count count;
    const bool allRead = runLines(*run, *source, *input, writer, output, count);
    const bool written = output.close();
    complainAboutLines(count.failed, count.lines);
    return allRead && written && count.failed == 0 ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
