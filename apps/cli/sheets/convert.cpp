#include "cli/sheets/sheet_commands.h"
#include "cli/sheets/sheet_file.h"

namespace cli {

ExitCode convertSheet(const ConvertRequest& request) {
    const auto from = sheetFormat(request.from);
    const auto to = sheetFormat(request.to);
    if (!from || from == SheetFormat::xlsx) {
        complainAt(request.from, 0, "only .tws, .sss and .csv can be read");
        return ExitCode::wrongCall;
    }
    if (!to) {
        complainAt(request.to, 0, "only .tws, .sss, .csv and .xlsx can be written");
        return ExitCode::wrongCall;
    }
    control::Grid grid;
    const bool done = loadSheet(request.from, *from, grid) && saveSheet(grid, request.to, *to);
    return done ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
