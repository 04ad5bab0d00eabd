// What hosts and scripts call of the Formulas dialog.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/export.h"

/// A diagnostic: opens the dialog on "c:\a\t3.sss", evaluates cell (1, 1) and leaves the user to
/// try formulas on the sheet. Where nobody can answer, it ends after the evaluation.
VORMANT_API void EvaluateSS();

/// Reads the spreadsheet file at `path` (host style): the text of cell (1, 1), the headers of the
/// columns, and one array of texts a row. False, with the reason on the host's command line and all
/// three empty, when the file cannot be read. Nothing waits for a user.
VORMANT_API bool ReadSSFile(const Vor_String& path, Vor_String& title, Vor_StringArray& header,
                            Vor_Array<Vor_StringArray>& rows);
