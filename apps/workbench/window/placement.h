// Where windows come to lie on the screens that there are.
#pragma once

#include <QRect>

/// A window of that size over the middle of `owner`.
QRect centredOver(const QRect& owner, const QSize& size);
/// As near to `wanted` as a screen shows all of it, title bar included; what is larger than its
/// screen keeps its upper left corner there.
QRect movedOntoScreen(const QRect& wanted);
/// The part of the screen around `place` that windows may take.
QRect screenAround(const QRect& place);
