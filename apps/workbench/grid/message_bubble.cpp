#include "workbench/grid/message_bubble.h"

#include <algorithm>

namespace {

constexpr int widest = 320;
constexpr int padding = 4;

}  // namespace

MessageBubble::MessageBubble(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    setFrameShape(QFrame::Box);
    setMargin(padding);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::NoFocus);
    setTextFormat(Qt::PlainText);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(255, 236, 230));
    colours.setColor(QPalette::WindowText, QColor(150, 20, 0));
    setPalette(colours);
    hide();
}

void MessageBubble::showMessage(const QString& message, const QRect& cell) {
    setText(message);
    const int room = parentWidget()->width();
    const int line = fontMetrics().horizontalAdvance(message) + 2 * (padding + frameWidth()) + 2;
    const int width = std::min({line, widest, room});
    const QSize size(width, heightForWidth(width));
    QRect place(cell.bottomLeft() + QPoint(0, 2), size);
    if (place.bottom() > parentWidget()->height()) place.moveBottom(cell.top() - 2);
    place.moveLeft(std::clamp(place.left(), 0, std::max(room - width, 0)));
    place.moveTop(std::max(place.top(), 0));
    setGeometry(place);
    setAccessibleName(message);
    raise();
    show();
}
