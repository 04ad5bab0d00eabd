#include "workbench/window/placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace {

/// Of the frame above the client area, before the desktop has told its own.
constexpr int titleHeight = 28;

int within(int start, int length, int from, int to) {
    return std::max(std::min(start, to - length), from);
}

}  // namespace

QRect centredOver(const QRect& owner, const QSize& size) {
    QRect place(QPoint(), size);
    place.moveCenter(owner.center());
    return place;
}

QRect screenAround(const QRect& place) {
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (!screen) screen = QGuiApplication::screenAt(place.topLeft());
    if (!screen) screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry().adjusted(0, titleHeight, 0, 0) : place;
}

QRect movedOntoScreen(const QRect& wanted) {
    const QRect screen = screenAround(wanted);
    QRect place = wanted;
    place.moveLeft(within(wanted.left(), wanted.width(), screen.left(), screen.right() + 1));
    place.moveTop(within(wanted.top(), wanted.height(), screen.top(), screen.bottom() + 1));
    return place;
}
