#include "workbench/window/captions.h"

#include <QTextDocument>

#include "workbench/window/dialog_font.h"

namespace {

bool isMark(const QString& text, qsizetype at) {
    return text[at] == '&' && at + 1 < text.size() && text[at + 1].isLetterOrNumber();
}

/// The text with its marks and its other ampersands replaced.
QString replaced(const QString& text, const char* mark, const char* ampersand) {
    QString made;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != '&') {
            made += text[at];
        } else if (isMark(text, at)) {
            made += QLatin1String(mark);
        } else {
            made += QLatin1String(ampersand);
            if (at + 1 < text.size() && text[at + 1] == '&') ++at;
        }
    }
    return made;
}

}  // namespace

QString captionOf(std::string_view text) {
    return replaced(toQt(text), "&", "&&");
}

QString plainCaptionOf(std::string_view text) {
    return replaced(toQt(text), "", "&");
}

bool hasMark(std::string_view text) {
    return captionOf(text).remove(QStringLiteral("&&")).contains('&');
}

QString tipOf(std::string_view text) {
    const QString tip = toQt(text);
    return Qt::mightBeRichText(tip) ? "<span>" + tip.toHtmlEscaped() + "</span>" : tip;
}
