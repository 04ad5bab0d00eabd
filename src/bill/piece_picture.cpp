#include "bill/piece_picture.h"

#include <algorithm>

#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "drawing/canvas.h"
#include "drawing/part_picture.h"
#include "platform/window/device_context.h"

namespace {

using drawing::DrawnPart;

constexpr double nameCaps = 9;  // pixels of the capitals of names
constexpr int nameRoom = 20;    // pixels above the piece
constexpr double sizeCaps = 9;
constexpr double boltLength = 4;  // diameters, when it is not known
constexpr double memberLength = 1000;

/// The type and the values that the section's table has of it; none for drawn sections.
void takeSection(const Vor_String& name, DrawnPart& part) {
    const Vor_SectionTableManager::Place place = gSectionTables.find(name);
    if (!place || !isNumber(place.table->drawnAs())) return;
    part.sectionType = textToInt(place.table->drawnAs());
    const int count = place.table->valueColumns().length();
    for (int i = 0; i < count; ++i) {
        const Vor_String* value = place.table->value(place.row, i);
        part.sectionValues.push_back(value ? textToDouble(*value) : 0);
    }
}

DrawnPart drawnPart(const Vor_BillPart& piece) {
    DrawnPart part;
    part.kind = static_cast<DrawnPart::Kind>(piece.kind);
    part.length = piece.length;
    part.width = piece.width;
    part.thickness = piece.thickness;
    part.diameter = piece.diameter;
    if (piece.kind == BillPartKind::profile) takeSection(piece.section, part);
    if (piece.length == 0 && piece.kind == BillPartKind::bolt)
        part.length = boltLength * piece.diameter;
    if (piece.length == 0 && piece.kind == BillPartKind::profile) part.length = memberLength;
    return part;
}

Vor_String caption(const Vor_BillPart& piece) {
    if (piece.name.isEmpty() || piece.name.equal(piece.section)) return piece.section;
    return piece.section.isEmpty() ? piece.name : piece.name + "  " + piece.section.str();
}

/// Names are cut so that they end on the paper.
Vor_String fitted(Vor_String text, double width) {
    const auto widthOf = [](const Vor_String& each) {
        return drawing::boundsOf(drawing::Label{{}, each, nameCaps}).width();
    };
    while (!text.isEmpty() && widthOf(text) > width) text.removeAt(text.length() - 1);
    return text;
}

/// A bill holds thousands of pictures: with sixteen shades of each colour, smooth edges need a
/// third of the bytes, as they fit into a palette.
CBitmap withFewShades(CBitmap picture) {
    constexpr CBitmap::Pixel step = 0x11;
    const auto rounded = [](CBitmap::Pixel shade) { return (shade + step / 2) / step * step; };
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const CBitmap::Pixel pixel = picture.at(x, y);
            picture.set(x, y,
                        rounded(pixel >> 16) << 16 | rounded(pixel >> 8 & 0xFF) << 8 |
                            rounded(pixel & 0xFF));
        }
    return picture;
}

}  // namespace

CBitmap piecePicture(const Vor_BillPart& piece, const PiecePaper& paper) {
    const drawing::Figure figure = drawing::partFigure(drawnPart(piece));
    if (figure.areas.empty()) return {};
    const bool knowsSizes = piece.length > 0;
    const int room = paper.hasName ? nameRoom : 0;
    drawing::FigurePaper place;
    place.width = paper.width;
    place.height = std::max(paper.height - room, 1);
    place.capHeight = paper.hasSizes && knowsSizes ? sizeCaps : 0;
    const CBitmap drawn = drawing::painted(drawing::laidOut(figure, place));
    if (!paper.hasName || drawn.isEmpty()) return withFewShades(drawn);
    drawing::Canvas canvas(paper.width, paper.height);
    const drawing::Point middle{paper.width / 2.0, room / 2.0};
    canvas.text({middle, fitted(caption(piece), paper.width), nameCaps}, CBitmap::black);
    CBitmap picture = canvas.bitmap();
    BitmapDC(picture).bitmap(drawn, {0, room});
    return withFewShades(std::move(picture));
}
