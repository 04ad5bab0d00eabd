// What happens to every sheet of the spreadsheet editor: before it is shown, when its header and
// footer variables change, and when it is saved.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "spread/header_copies.h"

class Vor_Spread;

/// Makes the sheet editable. A new one gets 6 columns and 11 rows of texts, and the settings of
/// that name, or those that the registry names, or the usual ones.
VORMANT_API bool prepareSheet(Vor_Spread& sheet, const Vor_String& settingsName, bool isNew);
/// Puts the variables of headers and footers into the sheet's settings.
VORMANT_API bool setVariables(Vor_Spread& sheet, const Vor_StringArray& names,
                              const Vor_StringArray& values);
/// Saves the sheet, and copies of its header and footer files with their pictures beside it, which
/// the sheet refers to from then on. False, with nothing written, when the sheet could not be saved
/// (lastError() says why); a file that cannot be copied is reported on the command line and
/// referred to where it was.
VORMANT_API bool saveSheet(Vor_Spread& sheet, const Vor_String& path);
/// The same with a choice of what is copied; `error` says why nothing was saved.
VORMANT_API bool saveSheet(Vor_Spread& sheet, const Vor_String& path, HeaderFiles headers,
                           std::string& error);
