#include "workbench/sheet/sheet_printing.h"

#include <QAction>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "core_api/text/text_helpers.h"
#include "spread/tw_sheet_settings.h"
#include "workbench/sheet/page_painter.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/written_file.h"

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr int pdfResolution = 300;

TwSheetSettings settingsOf(const Vor_Spread& spread) {
    TwSheetSettings settings;
    settings.readFromSheet(spread);
    return settings;
}

printing::Paper paperOf(const QPageSize& size) {
    const QSizeF millimetres = size.size(QPageSize::Millimeter);
    return {millimetres.width(), millimetres.height()};
}

printing::PrintJob jobFor(Vor_Spread& spread, const printing::Paper& paper) {
    const Vor_String& file = spread.file();
    const Vor_String folder = getPath(file);
    return printing::PrintJob(spread.grid(), settingsOf(spread), paper,
                              folder.isEmpty() && !file.isEmpty() ? Vor_String(".") : folder);
}

void setUp(QPagedPaintDevice& device, bool isLandscape) {
    device.setPageOrientation(isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    device.setPageMargins(QMarginsF(), QPageLayout::Millimeter);
}

QString notPrinted(const QPrinter& printer) {
    const QString file = printer.outputFileName();
    return uiText(sayNotPrinted).arg(file.isEmpty() ? printer.printerName() : file);
}

// The sheet itself decides how its paper lies.
void hideTurning(QPrintPreviewDialog& dialog) {
    for (QAction* action : dialog.findChildren<QAction*>())
        if (action->text() == QPrintPreviewDialog::tr("Portrait") ||
            action->text() == QPrintPreviewDialog::tr("Landscape"))
            action->setVisible(false);
}

}  // namespace

bool printSheet(Vor_Spread& spread, QPagedPaintDevice& device) {
    const printing::PrintJob job = jobFor(spread, paperOf(device.pageLayout().pageSize()));
    setUp(device, job.layout().isLandscape);
    auto* printer = dynamic_cast<QPrinter*>(&device);
    if (printer) printer->setFullPage(true);
    int first = 0, last = job.pageCount() - 1;
    if (printer && printer->fromPage() > 0) {
        first = std::clamp(printer->fromPage() - 1, 0, last);
        last = std::clamp(printer->toPage() - 1, first, last);
    }
    QPainter painter;
    if (!painter.begin(&device)) return false;
    const double dots = device.logicalDpiX() / millimetresPerInch;
    for (int page = first; page <= last; ++page) {
        if (page > first) device.newPage();
        paintPage(painter, job.page(page), dots);
    }
    return painter.end();
}

bool writeSheetPdf(Vor_Spread& spread, const QString& path, QString& error) {
    QBuffer buffer;
    bool isDone = buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(pdfResolution);
        writer.setPageSize(QPageSize(QPageSize::A4));
        isDone = isDone && printSheet(spread, writer);
    }
    if (isDone) return writeFile(path, withoutMoment(buffer.data()), error);
    error = uiText(sayNotPrinted).arg(path);
    return false;
}

QString askAndPrint(Vor_Spread& spread, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted || printSheet(spread, printer)) return {};
    return notPrinted(printer);
}

QString previewSheet(Vor_Spread& spread, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.resize(900, 700);
    hideTurning(dialog);
    QString failure;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* device) {
        failure = printSheet(spread, *device) ? QString() : notPrinted(*device);
    });
    dialog.exec();
    return failure;
}

QString printProblems(Vor_Spread& spread) {
    QString lines;
    const printing::PrintJob job = jobFor(spread, {});
    for (const std::string& problem : job.problems()) lines += toQt(problem) + "\n";
    return lines.trimmed();
}
