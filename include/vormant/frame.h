// What a host calls: the starters and the pool of hidden dialogs behind them.
#pragma once

#include "frame/tw_ss_dlgs_mgr.h"
#include "mapping/start_dlg_standards_ss.h"
