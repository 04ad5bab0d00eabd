#include "spread/sheet_preparation.h"

#include "core_api/text/text_helpers.h"
#include "platform/files.h"
#include "platform/host/host.h"
#include "platform/kept_file.h"
#include "spread/tw_sheet_editor_dlg.h"
#include "spread/tw_sheet_settings.h"
#include "spread/vor_spread.h"

namespace {

constexpr int newCols = 6;
constexpr int newRows = 11;
constexpr int visibleCols = 4;
constexpr int visibleRows = 5;
constexpr int newTextLength = 100;
constexpr int plainWeight = 400;
constexpr int boldWeight = 700;
constexpr int userFormulas = 12;
constexpr int automaticRecalculation = 7;
constexpr int sheetChanged = 30;

TwSheetSettings settingsOf(const Vor_String& name) {
    TwSheetSettings settings;
    if (settings.readFromFile(name)) return settings;
    TwEditorRegistry editor;
    editor.read();
    settings.readFromFile(editor.defaultSettings);
    return settings;
}

void applyFont(Vor_Spread& sheet, const TwSheetSettings& settings) {
    const int height = settings.defaultTextHeight;
    if (settings.defaultFont.isEmpty() || height < 1) return;
    constexpr int header = Vor_Spread::headerIndex;
    sheet.setFont({-1, -1, -1, -1}, settings.defaultFont, height, plainWeight);
    sheet.setFont({-1, header, -1, header}, settings.defaultFont, height, boldWeight);
    sheet.setFont({header, -1, header, -1}, settings.defaultFont, height, boldWeight);
}

void startNewSheet(Vor_Spread& sheet, const Vor_String& settingsName) {
    sheet.setNrCols(newCols, false);
    sheet.setNrRows(newRows);
    control::ViewSettings& view = sheet.grid().view();
    view.visibleCols = visibleCols;
    view.visibleRows = visibleRows;
    sheet.setTextCell({1, 1, -1, -1}, newTextLength);
    const TwSheetSettings settings = settingsOf(settingsName);
    settings.writeToSheet(sheet);
    applyFont(sheet, settings);
    if (auto* window = dynamic_cast<TwSheetEditorDlg*>(sheet.parent())) window->growToSheet();
}

void showTextTips(Vor_Spread& sheet) {
    control::ViewSettings& view = sheet.grid().view();
    view.textTips = true;
    view.textTipDelay = 10;
    view.noteIndicators = false;
}

}  // namespace

bool prepareSheet(Vor_Spread& sheet, const Vor_String& settingsName, bool isNew) {
    if (!sheet.isAttached()) return false;
    for (const int option : {userFormulas, 25, automaticRecalculation, 21})
        sheet.setBool(option, true);
    if (isNew) startNewSheet(sheet, settingsName);
    showTextTips(sheet);
    return true;
}

bool setVariables(Vor_Spread& sheet, const Vor_StringArray& names, const Vor_StringArray& values) {
    TwSheetSettings settings;
    if (!settings.readFromSheet(sheet)) return false;
    settings.varNames = names;
    settings.varValues = values;
    return settings.writeToSheet(sheet);
}

bool saveSheet(Vor_Spread& sheet, const Vor_String& path) {
    std::string inLastError;
    return saveSheet(sheet, path, HeaderFiles::whereUsable, inLastError);
}

bool saveSheet(Vor_Spread& sheet, const Vor_String& path, HeaderFiles headers, std::string& error) {
    TwSheetSettings settings;
    settings.readFromSheet(sheet);
    const TwSheetSettings before = settings;
    const Vor_String folder = getPath(path);
    HeaderCopies copies(path, headers);
    // Without its folder the sheet cannot be saved either, and that is what the user asked for.
    const bool hasFolder = folder.isEmpty() || files::isFolder(folder);
    const bool isAllNeeded = headers == HeaderFiles::allOrNothing;
    if (!hasFolder && isAllNeeded) {
        error = "cannot write " + path.str() + ": its folder is not there; check its name";
        return false;
    }
    for (Vor_String* reference : {&settings.headerFile, &settings.footerFile}) {
        if (!hasFolder || copies.add(*reference) || copies.problem().empty()) continue;
        if (isAllNeeded) {
            error = copies.problem();
            return false;
        }
        acutPrint(copies.problem() + "\n");
    }
    const auto old =
        isAllNeeded && !copies.isEmpty() ? files::KeptFile::keep(path, error) : nullptr;
    if (isAllNeeded && !copies.isEmpty() && !old) return false;
    if (!sheet.saveToFile(path)) {
        error = sheet.lastError();
        return false;
    }
    if (!copies.putInPlace()) {
        if (isAllNeeded) {
            error = copies.problem();
            std::string why;
            if (!old->putBack(why)) error += "; " + why;
            return false;
        }
        acutPrint(copies.problem() + "\n");
        settings = before;
    }
    // The saved file keeps the references it had: other copies of the sheet still need them.
    if (settings != before) settings.writeToSheet(sheet);
    sheet.setBool(sheetChanged, false);
    return true;
}
