#include "workbench/sheet/sheet_export.h"

#include <QMenu>

#include "exchange/sheet_writing.h"
#include "platform/files.h"
#include "platform/window/file_question.h"
#include "workbench/sheet/sheet_file.h"
#include "workbench/sheet/sheet_printing.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/machine_path.h"

namespace {

constexpr ExportFormat formats[] = {
    {"xlsx", sayXlsxFilter}, {"csv", sayCsvFilter}, {"pdf", sayPdfFilter}};

}  // namespace

void addExports(QMenu& menu, const std::function<void(const ExportFormat&)>& chosen) {
    for (const ExportFormat& format : formats)
        menu.addAction(uiText(format.name) + " (*." + format.extension + ")…",
                       [chosen, &format] { chosen(format); });
}

std::string askForExport(const ExportFormat& format, const Vor_String& folder,
                         const QString& name) {
    FileQuestion question;
    question.kind = FileQuestion::Kind::save;
    question.title = fromQt(uiTitle(sayExportAs));
    question.filterName = fromQt(uiText(format.name));
    question.extension = format.extension;
    question.folder = folder.str();
    question.preset = fromQt(name + "." + format.extension);
    return chooseFile(question, nullptr);
}

QString exportSheet(Vor_Spread& sheet, const std::string& path, exchange::CsvTexts texts) {
    const QString shown = machinePath(path);
    if (shown.endsWith(".pdf", Qt::CaseInsensitive)) {
        QString failure;
        writeSheetPdf(sheet, shown, failure);
        return failure;
    }
    std::string error;
    const auto content = isCsvPath(path) ? exchange::sheetAsCsv(sheet.grid(), texts, error)
                                         : exchange::sheetAsXlsx(sheet.grid(), error);
    if (!content) return toQt(path + ": " + error);
    return files::writeWhole(path, *content, error) ? QString() : toQt(error);
}
