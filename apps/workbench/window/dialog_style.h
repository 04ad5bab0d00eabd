// The one style of all dialogs, whatever the desktop's own: their tables are laid out for it.
#pragma once

#include <QProxyStyle>

/// A property of a widget: after how many milliseconds its tips show. Without it, the usual time.
inline constexpr const char* tipDelayProperty = "tipDelay";

class DialogStyle : public QProxyStyle {
  public:
    DialogStyle();
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};
