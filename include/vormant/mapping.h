// Variables of standards spreadsheets and where they live in a macro.
#pragma once

#include "mapping/tw_dlg_standards_data.h"
#include "mapping/tw_object_map.h"
#include "mapping/tw_ss_mapping.h"
#include "mapping/tw_var_cell.h"
#include "mapping/tw_var_cells.h"
#include "mapping_dialog/start_mapping_dialog.h"
