#include "workbench/window/typed_text.h"

#include <QApplication>
#include <QToolTip>

#include "workbench/window/desktop_texts.h"
#include "workbench/window/dialog_font.h"

QString refusalOf(const QString& text) {
    for (const char32_t character : text.toStdU32String()) {
        const QString one = QString::fromUcs4(&character, 1);
        if (canBeKept(one)) continue;
        const QString code =
            QStringLiteral(" (U+%1)").arg(uint(character), 4, 16, QLatin1Char('0'));
        return desktopText(DesktopText::characterNotKept).arg(one + code.toUpper());
    }
    return {};
}

void refuseTyped(QWidget& field, const QString& text) {
    QApplication::beep();
    QToolTip::showText(field.mapToGlobal(QPoint(0, field.height())),
                       refusalOf(text).toHtmlEscaped(), &field);
}
