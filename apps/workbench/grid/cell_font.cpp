#include "workbench/grid/cell_font.h"

#include <QFontDatabase>
#include <algorithm>
#include <deque>

#include "spread/control/text_fit.h"
#include "workbench/window/dialog_font.h"

namespace {

struct Known {
    control::Font asked;
    int zoom;
    CellFont given;
};

QFont make(const control::Font& asked, int zoom) {
    QFont font = dialogFont();
    const QString family = toQt(asked.name);
    if (QFontDatabase::hasFamily(family)) font.setFamily(family);
    font.setPixelSize(std::max(zoomed(asked.height * 4 / 5, zoom), 1));
    font.setWeight(static_cast<QFont::Weight>(std::clamp(asked.weight, 1, 1000)));
    font.setItalic(asked.italic);
    font.setUnderline(asked.underlined);
    return font;
}

int width(std::string_view line, const control::Font& font) {
    return cellFont(font).metrics.horizontalAdvance(toQt(line));
}

}  // namespace

const CellFont& cellFont(const control::Font& font, int zoom) {
    static std::deque<Known> known;
    static const Known* last = nullptr;
    const auto isAsked = [&](const Known& entry) {
        return entry.zoom == zoom && entry.asked == font;
    };
    if (last && isAsked(*last)) return last->given;
    auto found = std::find_if(known.begin(), known.end(), isAsked);
    if (found == known.end()) {
        const QFont made = make(font, zoom);
        known.push_back({font, zoom, {made, QFontMetrics(made)}});
        found = std::prev(known.end());
    }
    last = &*found;
    return last->given;
}

void measureWithCellFonts() {
    control::setMeasureLine(width);
}
