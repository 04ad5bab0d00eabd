// Sheets given to other programs: as a workbook, as comma-separated text, as pages. Every window
// with a sheet offers, asks and writes in the same way.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "exchange/sheet_writing.h"
#include "spread/vor_spread.h"

class QMenu;

struct ExportFormat {
    const char* extension;
    int name;  ///< the number of its words
};
/// Adds an entry for each format; `chosen` is called with the one that the user wants.
void addExports(QMenu& menu, const std::function<void(const ExportFormat&)>& chosen);
/// Asks for the file, beginning in `folder` with `name`, which has no extension. Empty when the
/// user wants none. Inside paths (platform/paths.h).
std::string askForExport(const ExportFormat& format, const Vor_String& folder, const QString& name);

/// Writes the sheet in the format of the extension. Gives why it was not written, and the old file
/// is whole then; an empty text when it was.
QString exportSheet(Vor_Spread& sheet, const std::string& path, exchange::CsvTexts texts);
