// The frame of one operation of the editor.
#pragma once

#include "spread/editor/sheet_editor.h"

namespace editor {

/// While many cells change: no recalculation in between, and formulas in A1 notation, in which they
/// are kept. Afterwards everything is brought up to date, after structural changes all of it.
class SheetEditor::Calm {
  public:
    explicit Calm(control::Grid& grid)
        : m_grid(grid),
          m_isAutomatic(grid.option(control::Option::automaticRecalculation)),
          m_style(grid.referenceStyle()) {
        grid.setOption(control::Option::automaticRecalculation, false);
        grid.setReferenceStyle(0);
    }
    ~Calm() {
        m_grid.setReferenceStyle(m_style);
        if (m_isAutomatic && m_isStructural) m_grid.recalculate();
        m_grid.setOption(control::Option::automaticRecalculation, m_isAutomatic);
    }
    Calm(const Calm&) = delete;
    Calm& operator=(const Calm&) = delete;

    void noteStructural() { m_isStructural = true; }
    /// The notation the user sees (Grid::referenceStyle).
    int style() const { return m_style; }

  private:
    control::Grid& m_grid;
    bool m_isAutomatic;
    int m_style;
    bool m_isStructural = false;
};

/// Records a step. Unless it is committed, everything is put back.
class SheetEditor::StepScope {
  public:
    StepScope(SheetEditor& editor, int title, const control::Block& place)
        : m_editor(editor), m_calm(editor.m_grid) {
        editor.m_error.clear();
        editor.m_userStyle = m_calm.style();
        editor.m_step.emplace(Step{title, place, {}});
    }
    ~StepScope() {
        if (!m_editor.m_step) return;
        for (const auto& change : m_editor.m_step->changes)
            if (change->isStructural()) m_calm.noteStructural();
        m_editor.rollBack();
    }
    StepScope(const StepScope&) = delete;
    StepScope& operator=(const StepScope&) = delete;

    bool commit() {
        for (const auto& change : m_editor.m_step->changes)
            if (change->isStructural()) m_calm.noteStructural();
        m_editor.pushStep();
        return true;
    }

  private:
    SheetEditor& m_editor;
    Calm m_calm;
};

template <class Kind, class... Arguments>
Kind& SheetEditor::add(Arguments&&... arguments) {
    auto change = std::make_unique<Kind>(std::forward<Arguments>(arguments)...);
    Kind& made = *change;
    m_step->changes.push_back(std::move(change));
    return made;
}

}  // namespace editor
