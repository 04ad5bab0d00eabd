// The undo history of the editor, and what every operation is made of.
#include <algorithm>

#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "spread/control/formula/lexer.h"
#include "spread/editor/step_scope.h"

namespace editor {

using control::Block;
using control::Grid;

SheetEditor::SheetEditor(Grid& grid) : m_grid(grid) {}
SheetEditor::~SheetEditor() = default;

// --- steps --------------------------------------------------------------------------------------

void SheetEditor::pushStep() {
    std::vector<std::unique_ptr<Change>>& changes = m_step->changes;
    std::erase_if(changes, [this](const auto& change) { return change->isNothing(m_grid); });
    if (!changes.empty()) {
        // What was saved can no longer be reached when it lies among the steps that go now.
        if (m_savedDepth > m_undo.size()) m_savedDepth = static_cast<size_t>(-1);
        m_place = m_step->place;
        m_undo.push_back(std::move(*m_step));
        m_redo.clear();
    }
    m_step.reset();
}

SheetEditor::OneStep::OneStep(SheetEditor& editor, int title)
    : m_editor(editor), m_title(title), m_first(editor.m_undo.size()) {}

SheetEditor::OneStep::~OneStep() {
    m_editor.joinSteps(m_first, m_title);
}

void SheetEditor::joinSteps(size_t first, int title) {
    if (m_undo.size() <= first) return;
    Step& joined = m_undo[first];
    joined.title = title;
    for (size_t i = first + 1; i < m_undo.size(); ++i)
        for (auto& change : m_undo[i].changes) joined.changes.push_back(std::move(change));
    m_undo.erase(m_undo.begin() + static_cast<std::ptrdiff_t>(first) + 1, m_undo.end());
    if (m_savedDepth > first) m_savedDepth = static_cast<size_t>(-1);
}

void SheetEditor::exchange(Step& step, Direction direction) {
    const auto exchangeOne = [&](const auto& change) { change->exchange(m_grid, direction); };
    if (direction == Direction::redo)
        std::for_each(step.changes.begin(), step.changes.end(), exchangeOne);
    else
        std::for_each(step.changes.rbegin(), step.changes.rend(), exchangeOne);
}

void SheetEditor::rollBack() {
    exchange(*m_step, Direction::undo);
    m_step.reset();
}

bool SheetEditor::step(std::vector<Step>& from, std::vector<Step>& to, Direction direction) {
    if (from.empty() || m_step) return false;
    m_error.clear();
    BatchGuard batch(m_grid);
    Step step = std::move(from.back());
    from.pop_back();
    exchange(step, direction);
    for (const auto& change : step.changes)
        if (change->isStructural()) batch.noteStructural();
    m_place = step.place;
    to.push_back(std::move(step));
    return true;
}

bool SheetEditor::undo() {
    return step(m_undo, m_redo, Direction::undo);
}
bool SheetEditor::redo() {
    return step(m_redo, m_undo, Direction::redo);
}

void SheetEditor::clearHistory() {
    m_undo.clear();
    m_redo.clear();
    m_savedDepth = 0;
}

std::string SheetEditor::title(int verb, const std::vector<Step>& steps) const {
    const std::string word = dialString(verb).str();
    if (!steps.empty()) return word + " " + dialString(steps.back().title).str();
    return word.substr(0, word.find_last_not_of(" :") + 1);  // no step, so nothing to announce
}

std::string SheetEditor::undoTitle() const {
    return title(texts::undoVerb, m_undo);
}
std::string SheetEditor::redoTitle() const {
    return title(texts::redoVerb, m_redo);
}

// --- steps made elsewhere
// -------------------------------------------------------------------------

void SheetEditor::begin(int titleText) {
    m_batch = std::make_unique<BatchGuard>(m_grid);
    m_step.emplace(Step{titleText, Block{0, 0, 0, 0}, {}});
}

void SheetEditor::beforeChange(int col, int row) {
    if (!m_step) return;
    Block& place = m_step->place;
    if (place.col1 == 0) place = {col, row, col, row};
    place = {std::min(place.col1, col), std::min(place.row1, row), std::max(place.col2, col),
             std::max(place.row2, row)};
    keepCell(col, row);
}

void SheetEditor::end() {
    if (m_step) {
        m_batch->noteNewFormulas(m_step->changes);
        pushStep();
    }
    m_batch.reset();
}

// --- refusing -----------------------------------------------------------------------------------

bool SheetEditor::refuse(std::string message) {
    m_error = std::move(message);
    return false;
}

bool SheetEditor::refuseCell(int text, int col, int row, std::string_view what) {
    Vor_String message = dialString(text);
    message.replaceSubString("%1", formula::cellText(col, row, false, false));
    message.replaceSubString("%2", what);
    return refuse(message.str());
}

std::optional<Block> SheetEditor::inside(const Block& block) {
    const std::optional<Block> resolved = m_grid.resolved(block);
    if (!resolved) refuse(dialString(texts::outsideSheet).str());
    return resolved;
}

bool SheetEditor::isChangeable(const Block& block) {
    for (int row = block.row1; row <= block.row2; ++row)
        for (int col = block.col1; col <= block.col2; ++col)
            if (m_grid.format(col, row).locked) return refuseCell(texts::cellLocked, col, row);
    return true;
}

// --- keeping ------------------------------------------------------------------------------------

void SheetEditor::keepCell(int col, int row) {
    auto* cells = m_step->changes.empty()
                      ? nullptr
                      : dynamic_cast<CellsChange*>(m_step->changes.back().get());
    if (!cells) cells = &add<CellsChange>();
    cells->keep(m_grid, col, row);
}

void SheetEditor::keepBlock(const Block& block) {
    for (int row = block.row1; row <= block.row2; ++row)
        for (int col = block.col1; col <= block.col2; ++col) keepCell(col, row);
}

void SheetEditor::keepTexts(int col, int row) {
    add<TextsChange>(m_grid, col, row);
}

// Of those cells alone that have a tag or note: the others are not changed by clearing.
void SheetEditor::keepTextsIn(const Block& block) {
    const auto keepAll = [&](const control::CellTexts& texts) {
        const auto end = texts.lower_bound(control::cellKey(0, block.row2 + 1));
        for (auto at = texts.lower_bound(control::cellKey(0, block.row1)); at != end; ++at) {
            const int col = control::keyCol(at->first);
            if (col >= block.col1 && col <= block.col2) keepTexts(col, control::keyRow(at->first));
        }
    };
    keepAll(m_grid.sides().tags);
    keepAll(m_grid.sides().notes);
}

void SheetEditor::growTo(int col, int row) {
    const int cols = std::min(std::max(col, m_grid.cols()), formula::maxCols);
    const int rows = std::min(std::max(row, m_grid.rows()), formula::maxRows);
    if (cols == m_grid.cols() && rows == m_grid.rows()) return;
    add<GrowthChange>(m_grid);
    m_grid.setCols(cols);
    m_grid.setRows(rows);
}

}  // namespace editor
