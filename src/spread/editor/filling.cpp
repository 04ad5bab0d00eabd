// Filling cells from their neighbours.
#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "spread/control/reference_moves.h"
#include "spread/editor/series.h"
#include "spread/editor/step_scope.h"

namespace editor {

using control::Block;
using control::FormatIndex;

namespace {

/// The format that a cell of column `col` has to be given to show `format`.
FormatIndex ownFormat(const control::Grid& grid, FormatIndex format, int col) {
    if (format == grid.sides().columnFormat(col)) return control::inheritedFormat;
    return format == control::inheritedFormat ? control::plainFormat : format;
}

}  // namespace

bool SheetEditor::fillDown(const Block& given) {
    const std::optional<Block> block = inside(given);
    if (!block) return false;
    if (block->row1 == block->row2) return true;
    return pasteAs(texts::stepFill, *copy({block->col1, block->row1, block->col2, block->row1}),
                   {block->col1, block->row1 + 1, block->col2, block->row2}, PasteWhat::all);
}

bool SheetEditor::fillRight(const Block& given) {
    const std::optional<Block> block = inside(given);
    if (!block) return false;
    if (block->col1 == block->col2) return true;
    return pasteAs(texts::stepFill, *copy({block->col1, block->row1, block->col1, block->row2}),
                   {block->col1 + 1, block->row1, block->col2, block->row2}, PasteWhat::all);
}

bool SheetEditor::fillSeries(const Block& givenSource, const Block& givenTarget) {
    const std::optional<Block> source = inside(givenSource);
    const std::optional<Block> target = source ? inside(givenTarget) : std::nullopt;
    if (!target) return false;
    const bool sameCols = source->col1 == target->col1 && source->col2 == target->col2;
    const bool sameRows = source->row1 == target->row1 && source->row2 == target->row2;
    const bool holds = target->col1 <= source->col1 && target->col2 >= source->col2 &&
                       target->row1 <= source->row1 && target->row2 >= source->row2;
    if (!holds || (!sameCols && !sameRows)) return refuse(dialString(texts::badFill).str());
    if (sameCols && sameRows) return true;
    StepScope step(*this, texts::stepFill, *target);
    const int first = sameCols ? source->col1 : source->row1;
    const int last = sameCols ? source->col2 : source->row2;
    const Block before = sameCols
                             ? Block{target->col1, target->row1, target->col2, source->row1 - 1}
                             : Block{target->col1, target->row1, source->col1 - 1, target->row2};
    const Block after = sameCols
                            ? Block{target->col1, source->row2 + 1, target->col2, target->row2}
                            : Block{source->col2 + 1, target->row1, target->col2, target->row2};
    if (!isChangeable(before) || !isChangeable(after)) return false;
    for (int line = first; line <= last; ++line) fillLine(*source, *target, line, sameCols);
    return step.commit();
}

// One column (vertical) or row of the fill.
void SheetEditor::fillLine(const Block& source, const Block& target, int line, bool isVertical) {
    const int from = isVertical ? source.row1 : source.col1;
    const int to = isVertical ? source.row2 : source.col2;
    const int first = isVertical ? target.row1 : target.col1;
    const int last = isVertical ? target.row2 : target.col2;
    const int count = to - from + 1;
    const auto colAt = [&](int place) { return isVertical ? line : place; };
    const auto rowAt = [&](int place) { return isVertical ? place : line; };
    std::vector<CellSnapshot> cells;
    std::vector<SeriesValue> values;
    for (int place = from; place <= to; ++place) {
        cells.push_back(CellSnapshot::of(m_grid.sheet(), colAt(place), rowAt(place)));
        const control::Value value = cells.back().value();
        if (!cells.back().hasFormula() && value.isNumber())
            values.emplace_back(value.number());
        else if (!cells.back().hasFormula() && value.isText())
            values.emplace_back(std::string(value.text()));
        else
            values.emplace_back();
    }
    const Series series(std::move(values));
    for (int place = first; place <= last; ++place) {
        if (place >= from && place <= to) continue;
        const int index = place - from;
        const int turned = ((index % count) + count) % count;
        const CellSnapshot& model = cells[static_cast<size_t>(turned)];
        keepCell(colAt(place), rowAt(place));
        CellSnapshot filled = model;
        filled.setFormat(ownFormat(
            m_grid, m_grid.formatIndex(colAt(from + turned), rowAt(from + turned)), colAt(place)));
        const SeriesValue value = series.at(index);
        const int distance = place - (from + turned);
        if (model.hasFormula())
            filled.setFormula(control::carriedFormula(model.formula(), isVertical ? 0 : distance,
                                                      isVertical ? distance : 0));
        else if (const double* number = std::get_if<double>(&value))
            filled.setNumber(*number);
        else if (const std::string* text = std::get_if<std::string>(&value))
            filled.setText(*text);
        filled.put(m_grid, colAt(place), rowAt(place));
    }
}

}  // namespace editor
