// The macro model: modules, groups, the dialog data of a macro, and macro files.
#pragma once

#include "core_api/macros/macro_access.h"
#include "core_api/macros/macro_data.h"
#include "core_api/macros/macro_file.h"
#include "core_api/macros/vor_db_macro.h"
#include "core_api/macros/vor_macro.h"
