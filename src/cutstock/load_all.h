// Loading the newest files of all items, with the report of what was loaded.
#pragma once

#include "core_api/dialogs/info_dialog.h"
#include "cutstock/stock_files.h"

namespace cutstock {

/// The day, month and time of a file as the report writes them, in the time of this place:
/// "25 November, 2026 (04:27)".
Vor_String timeText(std::int64_t nanoseconds);

struct LoadedAll {
    DlgInfoData report;
    Vor_StringArray failures;  ///< files that could not be read, and why
};

/// Reads the newest file of each kind for every item into its tables. A table without a file stays
/// as it is; one whose file cannot be read has no rows.
LoadedAll loadAll(DlgCSP2Data& data);

}  // namespace cutstock
