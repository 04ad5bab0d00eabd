#include "workbench/grid/cell_painter.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <optional>

#include "platform/window/bitmap.h"
#include "spread/control/text_overflow.h"
#include "workbench/grid/grid_steps.h"
#include "workbench/window/dialog_font.h"

using control::CellAddress;
using control::CellFormat;
using control::CellKind;
using control::Colour;
using control::Reading;

namespace {

constexpr int margin = 4;  // as the control fits its columns (text_fit.cpp)
constexpr int arrowWidth = 18;
constexpr int boxSize = 13;
constexpr int noteMark = 6;
const QColor errorColour(192, 0, 0);
const QColor usualLines(208, 208, 208);

enum GridLines { both = 0, none = 1, betweenRows = 2, betweenCols = 3 };

// Border styles: 1 to 5 are thin lines, solid, dashed, dotted and mixed; 7 is twice and 8 three
// times as wide. All others are as 1.
Qt::PenStyle penStyle(int borderStyle) {
    switch (borderStyle) {
        case 2:
            return Qt::DashLine;
        case 3:
            return Qt::DotLine;
        case 4:
            return Qt::DashDotLine;
        case 5:
            return Qt::DashDotDotLine;
        default:
            return Qt::SolidLine;
    }
}

int penWidth(int borderStyle) {
    return borderStyle == 7 ? 2 : borderStyle == 8 ? 3 : 1;
}

Qt::Alignment alignmentOf(const CellFormat& format, control::ValueType type) {
    switch (format.alignment) {
        case 1:
            return Qt::AlignLeft;
        case 2:
            return Qt::AlignRight;
        case 3:
            return Qt::AlignHCenter;
        default:
            break;
    }
    if (type == control::ValueType::number) return Qt::AlignRight;
    return type == control::ValueType::text ? Qt::AlignLeft : Qt::AlignHCenter;
}

bool hasBorder(const CellFormat& format, control::BorderSide side) {
    return (format.borderSides & side) != 0 && format.borderStyle != 0;
}

QString textOf(const control::Grid& grid, CellAddress cell) {
    std::string buffer;
    return toQt(grid.text(cell.col, cell.row, Reading::data, buffer));
}

}  // namespace

QColor toQt(Colour colour, const QColor& fallback) {
    if (colour == control::automatic) return fallback;
    return QColor(static_cast<int>(colour & 255), static_cast<int>(colour >> 8 & 255),
                  static_cast<int>(colour >> 16 & 255));
}

QRect checkBoxIn(const QRect& cell) {
    QRect box(0, 0, boxSize, boxSize);
    box.moveCenter(cell.center());
    return box;
}

QRect comboArrowIn(const QRect& cell) {
    return QRect(cell.right() - arrowWidth, cell.top(), arrowWidth, cell.height() - 1);
}

struct CellPainter::Drawing {
    QPainter& painter;
    const QStyleOptionViewItem& option;
    const QRect& rect;
    CellAddress cell;
    const CellFormat& format;
    bool isSelected;
    bool isActive;

    const QPalette& palette() const { return option.palette; }
    bool isEnabled() const { return (option.state & QStyle::State_Enabled) != 0; }
    QStyle& style() const { return *(option.widget ? option.widget->style() : qApp->style()); }
};

CellPainter::CellPainter(const control::Grid& grid, QObject* parent)
    : QStyledItemDelegate(parent), m_grid(grid) {}

void CellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const CellAddress cell{index.column() + 1, index.row() + 1};
    if (!m_grid.isInside(cell.col, cell.row)) return;
    const Drawing d{*painter,
                    option,
                    option.rect,
                    cell,
                    m_grid.format(cell.col, cell.row),
                    cell != m_grid.active() && isSelected(m_grid, cell),
                    m_grid.active() == cell};
    painter->save();
    painter->setClipRect(d.rect);
    drawBackground(d);
    drawContent(d);
    drawLines(d);
    drawNoteMark(d);
    painter->restore();
}

bool isSelected(const control::Grid& grid, CellAddress cell) {
    if (!grid.selection()) return false;
    const std::optional<control::Block> block = grid.resolved(*grid.selection());
    return block && cell.col >= block->col1 && cell.col <= block->col2 && cell.row >= block->row1 &&
           cell.row <= block->row2;
}

void CellPainter::drawBackground(const Drawing& d) const {
    const control::SideTables& sides = m_grid.sides();
    QColor colour = d.palette().color(QPalette::Base);
    if (d.format.locked) colour = toQt(sides.lockedColour, colour);
    colour = toQt(d.format.background, colour);
    if (d.isSelected)
        colour = toQt(sides.selectionBackground, d.palette().color(QPalette::Highlight));
    d.painter.fillRect(d.rect, colour);
}

QColor CellPainter::textColour(const Drawing& d, CellAddress cell) const {
    if (d.isSelected && cell == d.cell)
        return toQt(m_grid.sides().selectionText, d.palette().color(QPalette::HighlightedText));
    if (!d.isEnabled()) return d.palette().color(QPalette::Disabled, QPalette::Text);
    if (m_grid.sheet().value(cell.col, cell.row).isError()) return errorColour;
    return toQt(m_grid.format(cell.col, cell.row).textColour, d.palette().color(QPalette::Text));
}

void CellPainter::drawContent(const Drawing& d) const {
    switch (d.format.type.kind) {
        case CellKind::checkBox:
            return drawCheckBox(d);
        case CellKind::button:
            return drawButton(d);
        case CellKind::picture:
        case CellKind::pictureHandle:
            return drawPicture(d);
        case CellKind::comboBox:
            if (d.isActive) {
                drawComboArrow(d);
                return drawText(d, d.rect.adjusted(0, 0, -arrowWidth, 0));
            }
            return drawText(d, d.rect);
        default:
            if (isRoomForText(m_grid, d.cell.col, d.cell.row)) return drawTextFromTheLeft(d);
            return drawText(d, d.rect);
    }
}

// --- texts --------------------------------------------------------------------------------------

bool CellPainter::isCutOff(CellAddress cell, int width) const {
    const CellFormat& format = m_grid.format(cell.col, cell.row);
    if (!m_grid.sheet().cells().find(cell.col, cell.row)) return false;
    if (lastColumnForText(m_grid, cell) > cell.col) return false;
    const QSize size = fontOf(format).metrics.size(Qt::TextExpandTabs, textOf(m_grid, cell));
    return size.width() > width - 2 * margin;
}

void CellPainter::drawText(const Drawing& d, const QRect& room) const {
    QString text = textOf(m_grid, d.cell);
    if (text.isEmpty()) return;
    const CellFont& font = fontOf(d.format);
    const control::ValueType type = m_grid.sheet().value(d.cell.col, d.cell.row).type();
    const QRect inner = room.adjusted(margin, 0, -margin, -1);
    const bool hasLines = text.contains('\n');
    Qt::Alignment alignment = alignmentOf(d.format, type);
    if (!hasLines && font.metrics.horizontalAdvance(text) > inner.width()) {
        // A number that is cut would be another number.
        if (type == control::ValueType::number)
            text = QString(std::max(inner.width() / font.metrics.horizontalAdvance('#'), 1), '#');
        else if (lastColumnForText(m_grid, d.cell) == d.cell.col)
            text = font.metrics.elidedText(text, Qt::ElideRight, inner.width());
    }
    const bool isTall = hasLines && font.metrics.size(0, text).height() > inner.height();
    alignment |= isTall ? Qt::AlignTop : Qt::AlignVCenter;
    d.painter.setFont(font.font);
    d.painter.setPen(textColour(d, d.cell));
    d.painter.drawText(inner, static_cast<int>(alignment) | Qt::TextDontClip | Qt::TextExpandTabs,
                       text);
}

/// A text that reaches over empty cells.
struct CellPainter::Reach {
    CellAddress from;
    int before = 0;  ///< pixels from the left edge of its cell to that of the cell it reaches
    int end = 0;     ///< pixels from the left edge of its cell to its own end
};

// The text that stands in a cell, its own or one from the left, when it may reach over others.
std::optional<CellPainter::Reach> CellPainter::reachInto(CellAddress cell) const {
    std::optional<CellAddress> from;
    if (isRoomForText(m_grid, cell.col, cell.row))
        from = overflowingInto(m_grid, cell);
    else if (mayOverflow(m_grid, cell))
        from = cell;
    if (!from) return std::nullopt;
    Reach reach{*from, 0, 0};
    for (int col = from->col; col < cell.col; ++col)
        reach.before += zoomed(m_grid.colWidth(col), m_zoom);
    const CellFormat& format = m_grid.format(from->col, from->row);
    reach.end = margin + fontOf(format).metrics.horizontalAdvance(textOf(m_grid, *from));
    return reach;
}

bool CellPainter::goesOnToTheRight(const Drawing& d) const {
    if (!isRoomForText(m_grid, d.cell.col + 1, d.cell.row)) return false;
    const std::optional<Reach> reach = reachInto(d.cell);
    return reach && reach->end > reach->before + d.rect.width();
}

// An empty cell shows its piece of a text that reaches over from a cell to the left.
void CellPainter::drawTextFromTheLeft(const Drawing& d) const {
    const std::optional<Reach> reach = reachInto(d.cell);
    if (!reach || reach->end <= reach->before) return;
    const QRect place(d.rect.left() - reach->before + margin, d.rect.top(), reach->end,
                      d.rect.height() - 1);
    d.painter.setFont(fontOf(m_grid.format(reach->from.col, reach->from.row)).font);
    d.painter.setPen(textColour(d, d.isSelected ? d.cell : reach->from));
    d.painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                       textOf(m_grid, reach->from));
}

// --- other kinds --------------------------------------------------------------------------------

void CellPainter::drawCheckBox(const Drawing& d) const {
    const std::string text = m_grid.text(d.cell.col, d.cell.row, Reading::value);
    const bool isChecked = text == "1";
    if (!isChecked && !text.empty() && text != "0") return drawText(d, d.rect);
    const int picture = isChecked ? d.format.type.picture : d.format.type.otherPicture;
    const bool isUsual = picture == 0 || picture == bitmapChecked || picture == bitmapUnchecked;
    if (!isUsual && m_pictures.drawNumber(d.painter, d.rect, picture)) return;
    QStyleOptionButton box;
    box.initFrom(d.option.widget);
    box.rect = checkBoxIn(d.rect);
    box.state = isChecked ? QStyle::State_On : QStyle::State_Off;
    if (d.isEnabled() && !d.format.locked) box.state |= QStyle::State_Enabled;
    d.style().drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &d.painter, d.option.widget);
}

void CellPainter::drawComboArrow(const Drawing& d) const {
    QStyleOption arrow;
    arrow.initFrom(d.option.widget);
    arrow.rect = comboArrowIn(d.rect);
    d.painter.fillRect(arrow.rect, d.palette().color(QPalette::Button));
    arrow.rect = QRect(0, 0, 9, 9);
    arrow.rect.moveCenter(comboArrowIn(d.rect).center());
    arrow.state = QStyle::State_Enabled;
    d.style().drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &d.painter, d.option.widget);
}

void CellPainter::drawButton(const Drawing& d) const {
    QStyleOptionButton button;
    button.initFrom(d.option.widget);
    button.rect = d.rect.adjusted(1, 1, -2, -2);
    button.text = toQt(d.format.type.text);
    button.fontMetrics = fontOf(d.format).metrics;
    button.state = m_pressed == d.cell ? QStyle::State_Sunken : QStyle::State_Raised;
    if (d.isEnabled() && !d.format.locked) button.state |= QStyle::State_Enabled;
    d.painter.setFont(fontOf(d.format).font);
    d.style().drawControl(QStyle::CE_PushButton, &button, &d.painter, d.option.widget);
}

void CellPainter::drawPicture(const Drawing& d) const {
    const QRect room = d.rect.adjusted(0, 0, -1, -1);
    const std::string& name = d.format.type.text;
    const std::string* kept = m_grid.embeddedImage(name);
    const bool isDrawn = d.format.type.kind != CellKind::picture
                             ? m_pictures.drawNumber(d.painter, room, d.format.type.picture)
                         : kept ? m_pictures.drawKept(d.painter, room, name, *kept)
                                : m_pictures.drawFile(d.painter, room, name);
    if (isDrawn) return;
    // A crossed box tells that a picture is missing.
    const QRect box = room.adjusted(3, 3, -3, -3);
    d.painter.setPen(usualLines);
    d.painter.drawRect(box);
    d.painter.drawLine(box.topLeft(), box.bottomRight());
    d.painter.drawLine(box.bottomLeft(), box.topRight());
}

// --- lines --------------------------------------------------------------------------------------

// Solid lines are filled: strokes leave gaps where they meet on screens that are scaled by
// fractions.
void CellPainter::drawLine(const Drawing& d, const QRect& line, const CellFormat& format) const {
    const QColor colour = toQt(format.borderColour, d.palette().color(QPalette::Text));
    const Qt::PenStyle style = penStyle(format.borderStyle);
    if (style == Qt::SolidLine) {
        const int wider = penWidth(format.borderStyle) - 1;
        d.painter.fillRect(line.adjusted(line.left() > d.rect.left() ? -wider : 0,
                                         line.top() > d.rect.top() ? -wider : 0,
                                         line.right() < d.rect.right() ? wider : 0,
                                         line.bottom() < d.rect.bottom() ? wider : 0),
                           colour);
        return;
    }
    d.painter.setPen(QPen(colour, 1, style, Qt::FlatCap));
    d.painter.drawLine(line.topLeft(), line.bottomRight());
}

// The line between two cells belongs to the left and the upper one; a border of either takes its
// place.
void CellPainter::drawLines(const Drawing& d) const {
    const control::SideTables& sides = m_grid.sides();
    const control::Span* span = m_grid.spanAt(d.cell.col, d.cell.row);
    const int nextCol = d.cell.col + (span ? span->cols : 1);
    const int nextRow = d.cell.row + (span ? span->rows : 1);
    const QRect right(d.rect.topRight(), d.rect.bottomRight());
    const QRect bottom(d.rect.bottomLeft(), d.rect.bottomRight());
    const QColor usual = toQt(sides.gridColour, usualLines);
    if (sides.gridType == both || sides.gridType == betweenRows) d.painter.fillRect(bottom, usual);
    const bool hasRight = sides.gridType == both || sides.gridType == betweenCols;
    if (hasRight && !goesOnToTheRight(d)) d.painter.fillRect(right, usual);

    const auto lookAt = [&](int col, int row) {
        return m_grid.isInside(col, row) ? &m_grid.format(col, row) : nullptr;
    };
    const CellFormat* beside = lookAt(nextCol, d.cell.row);
    const CellFormat* below = lookAt(d.cell.col, nextRow);
    if (hasBorder(d.format, control::borderRight))
        drawLine(d, right, d.format);
    else if (beside && hasBorder(*beside, control::borderLeft))
        drawLine(d, right, *beside);
    if (hasBorder(d.format, control::borderBottom))
        drawLine(d, bottom, d.format);
    else if (below && hasBorder(*below, control::borderTop))
        drawLine(d, bottom, *below);
    if (d.cell.col == 1 && hasBorder(d.format, control::borderLeft))
        drawLine(d, QRect(d.rect.topLeft(), d.rect.bottomLeft()), d.format);
    if (d.cell.row == 1 && hasBorder(d.format, control::borderTop))
        drawLine(d, QRect(d.rect.topLeft(), d.rect.topRight()), d.format);
}

void CellPainter::drawNoteMark(const Drawing& d) const {
    if (!m_grid.view().noteIndicators || m_grid.sides().notes.empty()) return;
    if (m_grid.note(d.cell.col, d.cell.row).empty()) return;
    const QPoint corner(d.rect.right(), d.rect.top());
    const QPoint mark[] = {corner, corner - QPoint(noteMark, 0), corner + QPoint(0, noteMark)};
    d.painter.setPen(Qt::NoPen);
    d.painter.setBrush(errorColour);
    d.painter.drawPolygon(mark, 3);
}
