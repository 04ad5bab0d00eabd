#include "workbench/sheet/sheet_icons.h"

#include <QPainter>
#include <QPainterPath>

#include "workbench/window/dialog_font.h"

namespace {

constexpr int size = 20;  // pixels of a picture; drawn for screens of three times the dots, too

const QColor accent(0, 100, 190);

void drawLetter(QPainter& painter, const QString& letter, int weight, bool italic, bool underlined,
                int height = 16) {
    QFont font = dialogFont();
    font.setPixelSize(height);
    font.setWeight(static_cast<QFont::Weight>(weight));
    font.setItalic(italic);
    font.setUnderline(underlined);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, letter);
}

void drawAlignment(QPainter& painter, Qt::Alignment alignment) {
    constexpr int widths[] = {14, 9, 14, 9};
    for (int i = 0; i < 4; ++i) {
        const int y = 4 + 4 * i, spare = 14 - widths[i];
        const int before = alignment == Qt::AlignLeft    ? 0
                           : alignment == Qt::AlignRight ? spare
                                                         : spare / 2;
        painter.fillRect(3 + before, y, widths[i], 2, painter.pen().color());
    }
}

void drawArrow(QPainter& painter, bool backwards) {
    if (!backwards) {
        painter.translate(size, 0);
        painter.scale(-1, 1);
    }
    painter.setPen(QPen(painter.pen().color(), 2));
    QPainterPath path;
    path.moveTo(4, 8);
    path.lineTo(12, 8);
    path.cubicTo(18, 8, 18, 16, 12, 16);
    path.lineTo(8, 16);
    painter.drawPath(path);
    painter.drawLine(4, 8, 8, 4);
    painter.drawLine(4, 8, 8, 12);
}

void drawBorders(QPainter& painter) {
    painter.drawRect(3, 3, 14, 14);
    painter.drawLine(10, 3, 10, 17);
    painter.drawLine(3, 10, 17, 10);
}

void drawMerge(QPainter& painter) {
    painter.drawRect(2, 5, 16, 10);
    painter.setPen(accent);
    painter.drawLine(4, 10, 16, 10);
    painter.drawLine(4, 10, 7, 7);
    painter.drawLine(4, 10, 7, 13);
    painter.drawLine(16, 10, 13, 7);
    painter.drawLine(16, 10, 13, 13);
}

void draw(QPainter& painter, SheetPicture picture) {
    switch (picture) {
        case SheetPicture::undo:
            return drawArrow(painter, true);
        case SheetPicture::redo:
            return drawArrow(painter, false);
        case SheetPicture::bold:
            return drawLetter(painter, "B", QFont::Bold, false, false);
        case SheetPicture::italic:
            return drawLetter(painter, "I", QFont::Normal, true, false);
        case SheetPicture::underlined:
            return drawLetter(painter, "U", QFont::Normal, false, true);
        case SheetPicture::left:
            return drawAlignment(painter, Qt::AlignLeft);
        case SheetPicture::centre:
            return drawAlignment(painter, Qt::AlignHCenter);
        case SheetPicture::right:
            return drawAlignment(painter, Qt::AlignRight);
        case SheetPicture::textColour:
            painter.fillRect(3, 16, 14, 3, QColor(200, 0, 0));
            return drawLetter(painter, "A", QFont::Normal, false, false, 14);
        case SheetPicture::background:
            painter.fillRect(2, 2, 16, 16, QColor(255, 225, 120));
            painter.setPen(Qt::black);
            return drawLetter(painter, "A", QFont::Normal, false, false, 14);
        case SheetPicture::borders:
            return drawBorders(painter);
        case SheetPicture::merge:
            return drawMerge(painter);
        case SheetPicture::sum:
            return drawLetter(painter, QString(QChar(0x3A3)), QFont::Normal, false, false);
        case SheetPicture::moreDecimals:
            return drawLetter(painter, ".00", QFont::Normal, false, false, 11);
        case SheetPicture::fewerDecimals:
            return drawLetter(painter, ".0", QFont::Normal, false, false, 11);
    }
}

QPixmap pixmap(SheetPicture picture, const QColor& colour, int ratio) {
    QPixmap made(size * ratio, size * ratio);
    made.setDevicePixelRatio(ratio);
    made.fill(Qt::transparent);
    QPainter painter(&made);
    painter.setRenderHint(QPainter::Antialiasing, ratio > 1);
    painter.setPen(colour);
    draw(painter, picture);
    return made;
}

}  // namespace

QIcon sheetIcon(SheetPicture picture, const QPalette& palette) {
    QIcon icon;
    for (const int ratio : {1, 2, 3}) {
        icon.addPixmap(pixmap(picture, palette.color(QPalette::ButtonText), ratio));
        icon.addPixmap(
            pixmap(picture, palette.color(QPalette::Disabled, QPalette::ButtonText), ratio),
            QIcon::Disabled);
    }
    return icon;
}
