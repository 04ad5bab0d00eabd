#include "sheet/page_painter.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "grid/cell_font.h"
#include "grid/cell_painter.h"
#include "window/dialog_font.h"
#include "window/machine_path.h"

using printing::PrintedCell;

namespace {

constexpr double hairline = 0.1;  // millimetres
constexpr double frameLine = 0.3;
constexpr int margin = 3;  // pixels of the sheet beside a text

class PagePainter {
  public:
    PagePainter(QPainter& painter, double dots) : m_painter(painter), m_dots(dots) {}

    void drawCell(const PrintedCell& cell, bool hasLines) {
        const QRectF place = onPaper(cell.place);
        const QColor background =
            toQt(cell.look.background, cell.isHeading ? QColor(235, 235, 235) : QColor(Qt::white));
        if (background != Qt::white) m_painter.fillRect(place, background);
        if (!cell.picture.empty()) drawPicture(cell, place);
        // Over the picture, whose paper would hide the line to the row above.
        if (hasLines || cell.isHeading) drawFrame(place, hairline, QColor(150, 150, 150));
        if (cell.picture.empty() && !cell.text.empty()) drawText(cell, place);
    }
    void drawBorders(const PrintedCell& cell) {
        if (cell.look.borderStyle == 0) return;
        const QRectF place = onPaper(cell.place);
        const auto has = [&](control::BorderSide side) {
            return (cell.look.borderSides & side) != 0;
        };
        m_painter.setPen(QPen(toQt(cell.look.borderColour, Qt::black), frameLine * m_dots));
        if (has(control::borderLeft)) m_painter.drawLine(place.topLeft(), place.bottomLeft());
        if (has(control::borderRight)) m_painter.drawLine(place.topRight(), place.bottomRight());
        if (has(control::borderTop)) m_painter.drawLine(place.topLeft(), place.topRight());
        if (has(control::borderBottom)) m_painter.drawLine(place.bottomLeft(), place.bottomRight());
    }
    void drawFrame(const QRectF& place, double width, const QColor& colour) {
        m_painter.setPen(QPen(colour, width * m_dots));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(place);
    }
    QRectF onPaper(const printing::Rect& rect) const {
        return {rect.left * m_dots, rect.top * m_dots, rect.width * m_dots, rect.height * m_dots};
    }

  private:
    void drawText(const PrintedCell& cell, const QRectF& place) {
        QFont font = cellFont(cell.look.font).font;
        const double pixel = cell.pixel * m_dots;
        font.setPixelSize(std::max(qRound(font.pixelSize() * pixel), 1));
        m_painter.setFont(font);
        m_painter.setPen(toQt(cell.look.textColour, Qt::black));
        const Qt::Alignment across = cell.look.alignment == 2   ? Qt::AlignRight
                                     : cell.look.alignment == 3 ? Qt::AlignHCenter
                                                                : Qt::AlignLeft;
        m_painter.save();
        m_painter.setClipRect(place);
        m_painter.drawText(place.adjusted(margin * pixel, 0, -margin * pixel, 0),
                           static_cast<int>(across) | Qt::AlignVCenter | Qt::TextExpandTabs,
                           toQt(cell.text));
        m_painter.restore();
    }
    void drawPicture(const PrintedCell& cell, const QRectF& place) {
        const QImage image = cell.keptPicture
                                 ? QImage::fromData(QByteArray::fromStdString(*cell.keptPicture))
                                 : QImage(machinePath(cell.picture));
        if (image.isNull()) return;
        // As large as on the screen, unless its cell has less room.
        QSizeF size = QSizeF(image.size()) * cell.pixel * m_dots;
        if (size.width() > place.width() || size.height() > place.height())
            size.scale(place.size(), Qt::KeepAspectRatio);
        m_painter.drawImage(QRectF(place.topLeft(), size), image);
    }

    QPainter& m_painter;
    double m_dots;
};

}  // namespace

void paintPage(QPainter& painter, const printing::PrintedPage& page, double dots) {
    PagePainter drawing(painter, dots);
    for (const PrintedCell& cell : page.header) drawing.drawCell(cell, false);
    for (const PrintedCell& cell : page.body) drawing.drawCell(cell, page.cellSeparators);
    for (const PrintedCell& cell : page.footer) drawing.drawCell(cell, false);
    for (const auto* cells : {&page.header, &page.body, &page.footer})
        for (const PrintedCell& cell : *cells) drawing.drawBorders(cell);
    if (page.frame.width > 0) drawing.drawFrame(drawing.onPaper(page.frame), frameLine, Qt::black);
}
