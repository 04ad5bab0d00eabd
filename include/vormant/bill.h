// Bills of materials: made from macros and tables, fed to an output, written into spreadsheets.
#pragma once

#include "bill/tw_ss_bill_output.h"
#include "core_api/bill/bill_from_parts.h"
#include "core_api/bill/bill_from_table.h"
#include "core_api/bill/bill_pictures.h"
#include "core_api/bill/feed_bill.h"
#include "core_api/bill/macro_parts.h"
