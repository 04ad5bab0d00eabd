// The one entry to a standards run, for the core module and for standards that call others.
// (Declared down here so that the engine can start a child; it lives in the frame.)
#pragma once

#include "mapping/tw_dlg_standards_data.h"

/// Runs the standard. True on success, with the outputs in the macro or in the variable cells;
/// false with `data` as it was. Equations that fail do not fail the run. Why a run failed:
/// standards/run_observer.h.
VORMANT_API bool StartDlgStandardsSS(TwDlgStandardsData& data);

/// A developer's check: runs a fixed example in mode variables.
VORMANT_API bool StartDlgStandardsSStest();
