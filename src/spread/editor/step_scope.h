// The frame of one operation of the editor.
#pragma once

#include "spread/editor/sheet_editor.h"

namespace editor {

/// Formulas in A1 notation, in which they are kept; the sheet counts as changed no more than
/// before.
class SheetEditor::InA1 {
  public:
    explicit InA1(control::Grid& grid) : m_grid(grid), m_style(grid.referenceStyle()) { use(0); }
    ~InA1() { use(m_style); }
    InA1(const InA1&) = delete;
    InA1& operator=(const InA1&) = delete;

    /// The notation the user sees (Grid::referenceStyle).
    int style() const { return m_style; }

  private:
    void use(int style) {
        const bool isChanged = m_grid.option(control::Option::changed);
        m_grid.setReferenceStyle(style);
        m_grid.setOption(control::Option::changed, isChanged);
    }

    control::Grid& m_grid;
    int m_style;
};

/// While many cells change: no recalculation in between, and formulas in A1 notation. Afterwards
/// everything is brought up to date, after structural changes all of it; without automatic
/// recalculation the formulas that are new, so that none shows what its model gave or nothing.
class SheetEditor::BatchGuard {
  public:
    explicit BatchGuard(control::Grid& grid)
        : m_grid(grid), m_isAutomatic(grid.option(control::Option::automaticRecalculation)) {
        grid.setOption(control::Option::automaticRecalculation, false);
        grid.propagate();  // what is kept must not count as up to date
        m_inA1.emplace(grid);
    }
    ~BatchGuard() {
        m_inA1.reset();
        if (m_isAutomatic && m_isStructural) m_grid.recalculate();
        m_grid.setOption(control::Option::automaticRecalculation, m_isAutomatic);
        for (const control::CellAddress& cell : m_newFormulas) {
            m_grid.bringUpToDate(cell.col, cell.row);
            if (m_grid.sheet().isStopped()) break;
        }
    }
    BatchGuard(const BatchGuard&) = delete;
    BatchGuard& operator=(const BatchGuard&) = delete;

    void noteStructural() { m_isStructural = true; }
    void noteNewFormulas(const std::vector<std::unique_ptr<Change>>& changes) {
        if (m_isAutomatic) return;
        for (const auto& change : changes) change->addNewFormulas(m_grid, m_newFormulas);
    }
    int style() const { return m_inA1->style(); }

  private:
    control::Grid& m_grid;
    bool m_isAutomatic;
    std::optional<InA1> m_inA1;
    bool m_isStructural = false;
    std::vector<control::CellAddress> m_newFormulas;
};

/// Records a step. Unless it is committed, everything is put back.
class SheetEditor::StepScope {
  public:
    StepScope(SheetEditor& editor, int title, const control::Block& place)
        : m_editor(editor),
          m_wasChanged(editor.m_grid.option(control::Option::changed)),
          m_batch(editor.m_grid) {
        editor.m_error.clear();
        editor.m_userStyle = m_batch.style();
        editor.m_step.emplace(Step{title, place, {}});
    }
    ~StepScope() {
        if (!m_editor.m_step) return;
        for (const auto& change : m_editor.m_step->changes)
            if (change->isStructural()) m_batch.noteStructural();
        m_editor.rollBack();
        m_editor.m_grid.setOption(control::Option::changed, m_wasChanged);
    }
    StepScope(const StepScope&) = delete;
    StepScope& operator=(const StepScope&) = delete;

    bool commit() {
        for (const auto& change : m_editor.m_step->changes)
            if (change->isStructural()) m_batch.noteStructural();
        m_batch.noteNewFormulas(m_editor.m_step->changes);
        m_editor.pushStep();
        return true;
    }

  private:
    SheetEditor& m_editor;
    bool m_wasChanged;
    BatchGuard m_batch;
};

template <class Kind, class... Arguments>
Kind& SheetEditor::add(Arguments&&... arguments) {
    auto change = std::make_unique<Kind>(std::forward<Arguments>(arguments)...);
    Kind& made = *change;
    m_step->changes.push_back(std::move(change));
    return made;
}

}  // namespace editor
