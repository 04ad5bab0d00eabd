// The one style of all dialogs, whatever the desktop's own: their tables are laid out for it.
#pragma once

#include <QProxyStyle>

class DialogStyle : public QProxyStyle {
  public:
    DialogStyle();
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};
