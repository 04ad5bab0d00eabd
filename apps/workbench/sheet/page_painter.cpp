#include "workbench/sheet/page_painter.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/files.h"
#include "workbench/grid/cell_font.h"
#include "workbench/grid/cell_painter.h"
#include "workbench/grid/cell_pictures.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/pictures.h"

using printing::PrintedCell;

namespace {

constexpr double hairline = 0.1;  // millimetres
constexpr double frameLine = 0.3;
constexpr int margin = 3;  // pixels of the sheet beside a text

class PagePainter {
  public:
    PagePainter(QPainter& painter, double dots) : m_painter(painter), m_dots(dots) {}

    /// First the ground of all cells, as texts reach over those beside them.
    void drawCells(const std::vector<PrintedCell>& cells, bool haveLines) {
        findOverflows(cells);
        for (const PrintedCell& cell : cells)
            if (!cell.isRest) drawGround(cell, haveLines);
        for (const PrintedCell& cell : cells)
            if (cell.picture.empty() && !cell.text.empty()) drawText(cell);
    }
    void drawBorders(const PrintedCell& cell) {
        if (cell.format.borderStyle == 0) return;
        const QRectF place = onPaper(cell.place);
        const auto has = [&](control::BorderSide side) {
            return (cell.format.borderSides & side) != 0;
        };
        m_painter.setPen(QPen(toQt(cell.format.borderColour, Qt::black), frameLine * m_dots));
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
    QFont fontOf(const PrintedCell& cell) const {
        QFont font = cellFont(cell.format.font).font;
        font.setPixelSize(std::max(qRound(font.pixelSize() * cell.pixel * m_dots), 1));
        return font;
    }
    QFontMetricsF metricsOf(const PrintedCell& cell) const {
        return QFontMetricsF(fontOf(cell), m_painter.device());
    }
    static bool reachesOver(const PrintedCell& cell) { return cell.room != cell.place; }

    // What texts take of the cells that they reach over. No line goes through it.
    void findOverflows(const std::vector<PrintedCell>& cells) {
        m_overflows.clear();
        for (const PrintedCell& cell : cells) {
            if (!reachesOver(cell) || cell.text.empty()) continue;
            const QRectF place = onPaper(cell.place), room = onPaper(cell.room);
            const double begin = cell.isRest ? room.left() + 1 : place.right() - 1;
            const double end = place.left() + margin * cell.pixel * m_dots +
                               metricsOf(cell).horizontalAdvance(toQt(cell.text));
            if (end > begin + 1)
                m_overflows.push_back(
                    {begin, room.top(), std::min(end, room.right() - 1), room.top()});
        }
    }
    bool hasTextAt(double x, double top) const {
        return std::any_of(m_overflows.begin(), m_overflows.end(), [&](const QLineF& each) {
            return std::abs(each.y1() - top) < 1 && x >= each.x1() && x <= each.x2();
        });
    }
    void drawGround(const PrintedCell& cell, bool hasLines) {
        const QRectF place = onPaper(cell.place);
        const QColor background = toQt(cell.format.background,
                                       cell.isHeading ? QColor(235, 235, 235) : QColor(Qt::white));
        if (background != Qt::white) m_painter.fillRect(place, background);
        // Below the lines, as its paper would hide the one to the row above.
        if (!cell.picture.empty()) drawPicture(cell, place);
        if (cell.format.type.kind == control::CellKind::pictureHandle) drawBitmap(cell, place);
        if (!hasLines && !cell.isHeading) return;
        const bool hasLeft = !hasTextAt(place.left(), place.top());
        const bool hasRight = !hasTextAt(place.right(), place.top());
        const QColor colour(150, 150, 150);
        if (hasLeft && hasRight) return drawFrame(place, hairline, colour);
        m_painter.setPen(QPen(colour, hairline * m_dots));
        m_painter.drawLine(place.topLeft(), place.topRight());
        m_painter.drawLine(place.bottomLeft(), place.bottomRight());
        if (hasLeft) m_painter.drawLine(place.topLeft(), place.bottomLeft());
        if (hasRight) m_painter.drawLine(place.topRight(), place.bottomRight());
    }

    // As on the screen: what is cut ends in dots, and of a number nothing is cut.
    QString shownText(const PrintedCell& cell, const QFontMetricsF& metrics, double width,
                      double wholeWidth) const {
        const QString text = toQt(cell.text);
        if (reachesOver(cell) || text.contains('\n')) return text;
        const double needed = metrics.horizontalAdvance(text);
        if (needed <= width || (cell.isNumber && needed <= wholeWidth)) return text;
        if (!cell.isNumber) return metrics.elidedText(text, Qt::ElideRight, width);
        return QString(std::max(static_cast<int>(width / metrics.horizontalAdvance('#')), 1), '#');
    }
    void drawText(const PrintedCell& cell) {
        const QFontMetricsF metrics = metricsOf(cell);
        const QRectF place = onPaper(cell.place), room = onPaper(cell.room);
        const double beside = margin * cell.pixel * m_dots;
        if (cell.isRest &&
            place.left() + beside + metrics.horizontalAdvance(toQt(cell.text)) <= room.left())
            return;
        const QRectF inner = place.adjusted(beside, 0, -beside, 0);
        const QString text = shownText(cell, metrics, inner.width(), place.width());
        const bool isTall = text.contains('\n') && metrics.size(0, text).height() > inner.height();
        const Qt::Alignment across = reachesOver(cell)            ? Qt::AlignLeft
                                     : cell.format.alignment == 2 ? Qt::AlignRight
                                     : cell.format.alignment == 3 ? Qt::AlignHCenter
                                                                  : Qt::AlignLeft;
        m_painter.setFont(fontOf(cell));
        m_painter.setPen(toQt(cell.format.textColour, Qt::black));
        m_painter.save();
        m_painter.setClipRect(room);
        const Qt::Alignment alignment = across | (isTall ? Qt::AlignTop : Qt::AlignVCenter);
        m_painter.drawText(
            inner, static_cast<int>(alignment) | Qt::TextExpandTabs | Qt::TextDontClip, text);
        m_painter.restore();
    }
    void drawPicture(const PrintedCell& cell, const QRectF& place) {
        std::string error;
        const auto bytes = cell.embeddedImage ? std::optional(*cell.embeddedImage)
                                              : files::readWhole(cell.picture, error);
        const QImage image = bytes ? imageOfFile(*bytes) : QImage();
        if (image.isNull()) return;
        // As large as on the screen, unless its cell has less room.
        QSizeF size = QSizeF(image.size()) * cell.pixel * m_dots;
        if (size.width() > place.width() || size.height() > place.height())
            size.scale(place.size(), Qt::KeepAspectRatio);
        m_painter.drawImage(QRectF(place.topLeft(), size), image);
    }

    // One of the module's own, in the middle as on the screen.
    void drawBitmap(const PrintedCell& cell, const QRectF& place) {
        const double pixel = cell.pixel * m_dots;
        m_painter.save();
        m_painter.translate(place.topLeft());
        m_painter.scale(pixel, pixel);
        const QSize room = (place.size() / pixel).toSize();
        m_pictures.drawNumber(m_painter, QRect(QPoint(), room), cell.format.type.picture);
        m_painter.restore();
    }

    QPainter& m_painter;
    double m_dots;
    CellPictures m_pictures;
    std::vector<QLineF> m_overflows;  ///< from where to where, at the top of their row
};

}  // namespace

void paintPage(QPainter& painter, const printing::PrintedPage& page, double dots) {
    PagePainter drawing(painter, dots);
    drawing.drawCells(page.header, false);
    drawing.drawCells(page.body, page.cellSeparators);
    drawing.drawCells(page.footer, false);
    for (const auto* cells : {&page.header, &page.body, &page.footer})
        for (const PrintedCell& cell : *cells)
            if (!cell.isRest) drawing.drawBorders(cell);
    if (page.frame.width > 0) drawing.drawFrame(drawing.onPaper(page.frame), frameLine, Qt::black);
}
