#include "workbench/window/painter_dc.h"

#include "workbench/window/dialog_font.h"
#include "workbench/window/pictures.h"

namespace {

QColor colourOf(CBitmap::Pixel pixel) {
    return QColor::fromRgb(pixel);
}

QPen penOf(const Pen& pen) {
    QPen made(colourOf(pen.colour), pen.width);
    made.setCapStyle(Qt::SquareCap);
    if (pen.isDashed) {
        made.setCapStyle(Qt::FlatCap);
        made.setDashPattern({3, 3});
    }
    made.setJoinStyle(Qt::MiterJoin);
    return made;
}

QRect rectOf(const CRect& rect) {
    return {rect.left, rect.top, rect.width(), rect.height()};
}

}  // namespace

void PainterDC::fill(const CRect& rect, CBitmap::Pixel colour) {
    m_painter.fillRect(rectOf(rect), colourOf(colour));
}

void PainterDC::line(CPoint from, CPoint to, const Pen& pen) {
    m_painter.setPen(penOf(pen));
    m_painter.drawLine(from.x, from.y, to.x, to.y);
}

void PainterDC::frame(const CRect& rect, const Pen& pen) {
    m_painter.setPen(penOf(pen));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(rectOf(rect).adjusted(0, 0, -1, -1));
}

void PainterDC::bitmap(const CBitmap& picture, CPoint at, int64_t without) {
    m_painter.drawImage(at.x, at.y, imageOf(picture, without));
}

void PainterDC::text(const CRect& rect, std::string_view text, CBitmap::Pixel colour,
                     TextAlign align) {
    int flags = Qt::AlignVCenter | Qt::TextSingleLine;
    if (align == TextAlign::left) flags |= Qt::AlignLeft;
    if (align == TextAlign::centre) flags |= Qt::AlignHCenter;
    if (align == TextAlign::right) flags |= Qt::AlignRight;
    m_painter.setPen(colourOf(colour));
    m_painter.drawText(rectOf(rect), flags, toQt(text));
}
