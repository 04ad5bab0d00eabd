#include "workbench/run/report_export.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>
#include <QTextDocument>

#include "core_api/texts/date_text.h"
#include "platform/clock.h"
#include "runs/html_report.h"
#include "workbench/window/written_file.h"

namespace {

QByteArray htmlOf(const runs::Calculation& calculation, const QString& author) {
    runs::ReportHeading heading;
    heading.author = author.toStdString();
    heading.date = isoDate(platform::calendarTime()).str();
    return QByteArray::fromStdString(htmlReport(calculation, heading));
}

// One pixel of the page's style is one dot of this printer, so its dots are as large.
QByteArray pdfOf(const QByteArray& html) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
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
    }
    return withoutMoment(buffer.data());
}

}  // namespace

bool writeReport(const runs::Calculation& calculation, const QString& author, const QString& path,
                 QString& error) {
    const QByteArray html = htmlOf(calculation, author);
    const bool isPdf = path.endsWith(".pdf", Qt::CaseInsensitive);
    return writeFile(path, isPdf ? pdfOf(html) : html, error);
}
