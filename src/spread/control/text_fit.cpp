#include "spread/control/text_fit.h"

#include <algorithm>

namespace control {
namespace {

constexpr int margin = 4;       // pixels at each side of a cell's text
constexpr int buttonRoom = 18;  // the arrow of a combo box, the box of a check box

// Widths in hundredths of the font's height.
int widthOf(char letter) {
    constexpr std::string_view narrow = "iljtfrI.,;:!'|()[]{} /\\-`";
    constexpr std::string_view wide = "mwMWOQGD@%&";
    if (narrow.find(letter) != std::string_view::npos) return 28;
    if (wide.find(letter) != std::string_view::npos) return 68;
    return (letter >= 'A' && letter <= 'Z') ? 52 : 46;
}

int estimate(std::string_view line, const Font& font) {
    int hundredths = 0;
    for (const char letter : line) hundredths += widthOf(letter);
    if (font.weight >= 600) hundredths += hundredths / 5;
    return (hundredths * font.height + 99) / 100;
}

MeasureLine measureLine = estimate;

}  // namespace

void setMeasureLine(MeasureLine measure) {
    measureLine = measure ? measure : estimate;
}

TextSize fittedSize(std::string_view text, const CellFormat& format) {
    const CellKind kind = format.type.kind;
    const int lineHeight = format.font.height + 3;
    if (kind == CellKind::picture || kind == CellKind::pictureHandle) return {0, lineHeight};
    if (kind == CellKind::checkBox) return {buttonRoom, lineHeight};
    if (kind == CellKind::button) text = format.type.text;
    TextSize size{0, 0};
    for (size_t at = 0; at <= text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        size.width = std::max(size.width, measureLine(text.substr(at, end - at), format.font));
        size.height += lineHeight;
        at = end + 1;
    }
    size.width += 2 * margin + (kind == CellKind::comboBox ? buttonRoom : 0);
    size.height += 2;
    return size;
}

}  // namespace control
