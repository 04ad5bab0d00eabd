// The library's file of what sections are called in the CIS/2 format.
#pragma once

#include "core_api/dialog_data/tw_dlg_cis2_data.h"

/// Reads the names into `data`, with an empty one for the member's section when it has none yet.
/// False, without names and after telling the user why, when the file cannot be read: it must not
/// be written over.
bool readCis2SectionNames(TwDlgCis2Data& data);
/// Tells the user when it fails.
void writeCis2SectionNames(const SectionTranslation& names);
