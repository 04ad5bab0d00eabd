// Spreadsheets: the one class for them, reading spreadsheet files, the editor's window with its
// settings, and the logic of an editor with undo.
#pragma once

#include "spread/editor/sheet_editor.h"
#include "spread/find_replace_dlg.h"
#include "spread/formulas/formulas_starters.h"
#include "spread/sheet_preparation.h"
#include "spread/tw_sheet_editor_dlg.h"
#include "spread/tw_sheet_settings.h"
#include "spread/vor_spread.h"
