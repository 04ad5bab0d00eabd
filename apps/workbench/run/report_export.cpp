#include "run/report_export.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextDocument>

#include "core_api/texts/date_text.h"
#include "platform/clock.h"
#include "runs/html_report.h"

namespace {

QByteArray htmlOf(const runs::Calculation& calculation, const QString& author) {
    runs::ReportHeading heading;
    heading.author = author.toStdString();
    heading.date = isoDate(platform::calendarTime()).str();
    return QByteArray::fromStdString(htmlReport(calculation, heading));
}

// QSaveFile replaces the old file only when all was written.
bool writeFile(const QString& path, QString& error, const std::function<bool(QIODevice&)>& write) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && write(file) && file.commit()) return true;
    error = path + ": " + file.errorString();
    return false;
}

// One pixel of the page's style is one dot of this printer, so its dots are as large.
bool writePdf(const QByteArray& html, QIODevice& device) {
    QPdfWriter writer(&device);
    writer.setResolution(96);
    writer.setPageSize(QPageSize(QPageSize::A4));
    constexpr double margin = 10;  // mm
    writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    QTextDocument document;
    document.setDefaultFont(QFont("DejaVu Sans", 9));
    document.setDocumentMargin(20);  // without one, pages show the first line of the next
    document.setHtml(QString::fromUtf8(html));
    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(QSizeF(writer.width(), writer.height()));
    document.print(&writer);
    return true;
}

}  // namespace

bool writeReport(const runs::Calculation& calculation, const QString& author, const QString& path,
                 QString& error) {
    const QByteArray html = htmlOf(calculation, author);
    return writeFile(path, error, [&](QIODevice& device) {
        return path.endsWith(".pdf", Qt::CaseInsensitive) ? writePdf(html, device)
                                                          : device.write(html) == html.size();
    });
}
