// Bills of materials: made from macros and tables, fed to an output, written into spreadsheets.
#pragma once

#include "bill/bill_from_parts.h"
#include "bill/bill_from_table.h"
#include "bill/bill_pictures.h"
#include "bill/feed_bill.h"
#include "bill/macro_parts.h"
#include "bill/tw_ss_bill_output.h"
