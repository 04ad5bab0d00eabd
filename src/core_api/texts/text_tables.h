// The words behind the text numbers, one table an area. Rows are in order of their numbers; the
// four texts are English, Dutch, German and French, written in UTF-8.
#pragma once

#include <array>
#include <span>

#include "core_api/settings.h"

namespace texts {

struct TextRow {
    int number;
    std::array<const char*, languageCount> words;
};

extern const std::span<const TextRow> generalTexts;
extern const std::span<const TextRow> sheetTexts;
extern const std::span<const TextRow> gridTexts;
extern const std::span<const TextRow> sheetEditorTexts;
extern const std::span<const TextRow> mappingTexts;
extern const std::span<const TextRow> designerTexts;
extern const std::span<const TextRow> macrodlgTexts;
extern const std::span<const TextRow> sectionsTexts;
extern const std::span<const TextRow> sectionDialogsTexts;
extern const std::span<const TextRow> cutstockTexts;
extern const std::span<const TextRow> frameTexts;
extern const std::span<const TextRow> workbenchTexts;
extern const std::span<const TextRow> startersTexts;
extern const std::span<const TextRow> sheetWindowTexts;
extern const std::span<const TextRow> drawingTexts;
extern const std::span<const TextRow> desktopTexts;
extern const std::span<const TextRow> billTexts;

/// One a line, so that tables can be added side by side.
inline auto allTables() {
    return std::array{
        generalTexts,      //
        sheetTexts,        //
        gridTexts,         //
        sheetEditorTexts,  //
        mappingTexts,      //
        designerTexts,     //
        macrodlgTexts,     //
        sectionsTexts,     //
        sectionDialogsTexts,
        cutstockTexts,     //
        frameTexts,        //
        workbenchTexts,    //
        sheetWindowTexts,  //
        drawingTexts,      //
        desktopTexts,      //
        startersTexts,     //
        billTexts,
    };
}

}  // namespace texts
