// Running connection standards: fill a TwDlgStandardsData, call StartDlgStandardsSS.
#pragma once

#include "mapping/start_dlg_standards_ss.h"
#include "mapping/tw_dlg_standards_data.h"
#include "standards/check/standards_check.h"
#include "standards/declarations.h"
#include "standards/run_observer.h"
