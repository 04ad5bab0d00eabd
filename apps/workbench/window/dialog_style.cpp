#include "workbench/window/dialog_style.h"

#include <QAbstractScrollArea>

DialogStyle::DialogStyle() : QProxyStyle("Fusion") {}

// What a list shows begins one pixel inside its frame, and where a pixel of ours is one and a half
// of the screen's it would cover half of the frame's line.
int DialogStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    const bool isList = metric == PM_DefaultFrameWidth &&
                        qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    return isList ? 2 : QProxyStyle::pixelMetric(metric, option, widget);
}

int DialogStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
    const QVariant delay = widget ? widget->property(tipDelayProperty) : QVariant();
    if (hint == SH_ToolTip_WakeUpDelay && delay.isValid()) return delay.toInt();
    return QProxyStyle::styleHint(hint, option, widget, returned);
}
