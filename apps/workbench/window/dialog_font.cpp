#include "workbench/window/dialog_font.h"

#include "platform/encodings.h"

namespace {

constexpr int fontPixels = 12;

}  // namespace

QFont dialogFont() {
    QFont font("DejaVu Sans");
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(fontPixels);
    return font;
}

QString toQt(std::string_view text) {
    return QString::fromStdString(encodings::toUtf8(text));
}

std::string fromQt(const QString& text) {
    std::string kept;
    for (const char32_t character : text.toStdU32String())
        kept += encodings::byteOf(character).value_or('?');
    return kept;
}

bool canBeKept(const QString& text) {
    return encodings::fromUtf8(text.toStdString()).has_value();
}
