// What a host calls: the entry point, the starters of all dialogs, and the pool of hidden dialogs
// behind the standards runs.
#pragma once

#include "core_api/resource_override.h"
#include "frame/entry_point.h"
#include "frame/library.h"
#include "frame/starters.h"
#include "frame/tw_ss_dlgs_mgr.h"
#include "spread/formulas/formulas_starters.h"
