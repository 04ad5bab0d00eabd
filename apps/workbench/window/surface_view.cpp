#include "workbench/window/surface_view.h"

#include <QMouseEvent>
#include <QPainter>

#include "platform/window/wnd.h"
#include "workbench/window/input_translation.h"
#include "workbench/window/painter_dc.h"
#include "workbench/window/qt_window_system.h"

SurfaceView::SurfaceView(QtWindowSystem& system, CWnd& window, QWidget* widget)
    : WindowView(system, window, widget) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

bool SurfaceView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != widget() || !window()) return false;
    switch (event->type()) {
        case QEvent::Paint:
            paint();
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            return hearMouse(static_cast<QMouseEvent&>(*event));
        default:
            return false;
    }
}

void SurfaceView::paint() {
    QPainter painter(widget());
    PainterDC dc(painter);
    window()->onEraseBkgnd(dc);  // the usual background is there already
    window()->onPaint(dc);
}

bool SurfaceView::hearMouse(QMouseEvent& event) {
    const auto message = mouseMessage(event);
    if (!message) return false;
    const QPoint point = event.position().toPoint();
    act([&] { system().userMovesMouse(*window(), *message); });
    if (window()) showCursor(point);
    return true;
}

void SurfaceView::showCursor(const QPoint& point) {
    const Qt::CursorShape shape = cursorShape(window()->cursorAt({point.x(), point.y()}));
    if (widget()->cursor().shape() != shape) widget()->setCursor(shape);
}

void SurfaceView::apply(WindowChange change) {
    if (change == WindowChange::content) widget()->update();
    WindowView::apply(change);
}
