// Paints sketches on widgets: in the colours of the desktop, and sharp on screens of any scale.
#pragma once

class QPainter;
class QPalette;
namespace drawing {
struct Sketch;
}

void paintSketch(QPainter& painter, const drawing::Sketch& sketch, const QPalette& palette);
