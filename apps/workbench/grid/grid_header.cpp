#include "workbench/grid/grid_header.h"

#include <QPainter>

#include "workbench/grid/cell_font.h"
#include "workbench/grid/cell_painter.h"
#include "workbench/grid/grid_model.h"

using control::headerIndex;

namespace {

constexpr int smallestSection = 3;
constexpr int margin = 3;

}  // namespace

void drawHeaderCell(QPainter& painter, const QRect& rect, const QString& text,
                    const control::CellFormat& format, const QPalette& palette, bool isChosen,
                    int zoom) {
    QColor background = toQt(format.background, palette.color(QPalette::Button));
    if (isChosen) background = background.darker(115);
    painter.fillRect(rect, background);
    const QColor lines = palette.color(QPalette::Mid);
    painter.fillRect(QRect(rect.topRight(), rect.bottomRight()), lines);
    painter.fillRect(QRect(rect.bottomLeft(), rect.bottomRight()), lines);
    painter.setFont(cellFont(format.font, zoom).font);
    painter.setPen(toQt(format.textColour, palette.color(QPalette::ButtonText)));
    const Qt::Alignment alignment = format.alignment == 1   ? Qt::AlignLeft
                                    : format.alignment == 2 ? Qt::AlignRight
                                                            : Qt::AlignHCenter;
    const QRect inner = rect.adjusted(margin, 0, -margin, -1);
    const QFontMetrics& metrics = cellFont(format.font, zoom).metrics;
    const bool isLong = metrics.horizontalAdvance(text) > inner.width();
    // Two lines where there is room for them.
    if (isLong && inner.height() < 2 * metrics.lineSpacing())
        painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(text, Qt::ElideRight, inner.width()));
    else
        painter.drawText(inner, static_cast<int>(alignment) | Qt::AlignVCenter | Qt::TextWordWrap,
                         text);
}

GridHeader::GridHeader(const control::Grid& grid, Qt::Orientation orientation, QWidget* parent)
    : QHeaderView(orientation, parent), m_grid(grid) {
    setMinimumSectionSize(smallestSection);
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Interactive);
}

QSize GridHeader::sizeHint() const {
    return orientation() == Qt::Horizontal ? QSize(0, zoomed(m_grid.rowHeight(headerIndex), m_zoom))
                                           : QSize(zoomed(m_grid.colWidth(headerIndex), m_zoom), 0);
}

void GridHeader::setZoom(int zoom) {
    m_zoom = zoom;
    updateGeometry();
}

// The active cell, or a selected one, lies in it.
bool GridHeader::isChosen(int index) const {
    const bool isCol = orientation() == Qt::Horizontal;
    if (m_grid.selection()) {
        const auto block = m_grid.resolved(*m_grid.selection());
        if (!block) return false;
        return isCol ? index >= block->col1 && index <= block->col2
                     : index >= block->row1 && index <= block->row2;
    }
    return index == (isCol ? m_grid.active().col : m_grid.active().row);
}

// The rectangle of the whole span that holds a section.
QRect GridHeader::spanned(const QRect& rect, int index, int& anchor) const {
    const bool isCol = orientation() == Qt::Horizontal;
    const control::Span* span = isCol ? m_grid.spanAt(index, 0) : m_grid.spanAt(0, index);
    if (!span) return rect;
    anchor = isCol ? span->col : span->row;
    int before = 0, size = 0;
    for (int i = 0; i < (isCol ? span->cols : span->rows); ++i) {
        const int each = sectionSize(anchor + i - 1);
        if (anchor + i < index) before += each;
        size += each;
    }
    return isCol ? QRect(rect.left() - before, rect.top(), size, rect.height())
                 : QRect(rect.left(), rect.top() - before, rect.width(), size);
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    const int index = section + 1;
    int anchor = index;
    const QRect whole = spanned(rect, index, anchor);
    const bool isCol = orientation() == Qt::Horizontal;
    painter->save();
    painter->setClipRect(rect);
    drawHeaderCell(*painter, whole,
                   isCol ? columnHeaderText(m_grid, anchor) : rowHeaderText(m_grid, anchor),
                   isCol ? m_grid.format(anchor, headerIndex) : m_grid.format(headerIndex, anchor),
                   palette(), isChosen(index), m_zoom);
    painter->restore();
}
