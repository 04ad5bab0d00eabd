// vormant-pictures FOLDER: draws the pictures of the section types that dialogs show, when the
// programs are built.
#include <cstdio>
#include <string>

#include "drawing/canvas.h"
#include "drawing/figure.h"
#include "platform/paths.h"
#include "sections/section_types.h"

namespace {

using namespace drawing;

constexpr FigurePaper bigPaper{};  // 320 x 240
constexpr FigurePaper smallPaper{
    .width = 64, .height = 48, .capHeight = 0, .lineWidth = 0.9, .hatchSpacing = 0};

Sketch typeFigure(int type, const FigurePaper& paper) {
    const SectionOutline outline = sectionOutline(type, textbookValues(type));
    return laidOut(figureOf(outline, letterLabels(sectionValueCount(type))), paper);
}

/// What is shown in place of a picture that there is none of: a question mark in a frame.
Sketch unknownFigure(const FigurePaper& paper) {
    const double w = paper.width, h = paper.height, edge = h * 0.12;
    Sketch sketch{.width = w, .height = h, .items = {}};
    sketch.add(
        Stroke{.points = {{edge, edge}, {w - edge, edge}, {w - edge, h - edge}, {edge, h - edge}},
               .ink = Ink::hidden,
               .isClosed = true,
               .isDashed = true});
    sketch.add(Label{.at = {w / 2, h / 2}, .text = "?", .capHeight = h * 0.26});
    return sketch;
}

bool save(const Sketch& sketch, const std::string& folder, const std::string& name) {
    std::string error;
    const bool isSaved =
        !sketch.items.empty() && writeBitmap(painted(sketch), folder + "\\" + name + ".bmp", error);
    if (!isSaved)
        std::fprintf(stderr, "vormant-pictures: %s: %s\n", name.c_str(),
                     error.empty() ? "its sample values make no section" : error.c_str());
    return isSaved;
}

bool drawAll(const std::string& folder) {
    bool isDone = save(unknownFigure(bigPaper), folder, "Unknown-big") &&
                  save(unknownFigure(smallPaper), folder, "Unknown-small");
    for (int type = 1; isDone && type <= sectionTypeCount; ++type) {
        const std::string name(sectionTypePicture(type));
        isDone = save(typeFigure(type, bigPaper), folder, name + "-big") &&
                 save(typeFigure(type, smallPaper), folder, name + "-small");
    }
    return isDone;
}

}  // namespace

int main(int argc, char** argv) {
    const auto folder = argc == 2 ? paths::toInside(argv[1]) : std::nullopt;
    if (!folder) {
        std::fputs("vormant-pictures: name the folder to draw the pictures into\n", stderr);
        return 2;
    }
    return drawAll(*folder) ? 0 : 1;
}
