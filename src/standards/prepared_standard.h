// What the engine knows about one loaded document: its layout, its declarations and its equations.
// It hangs on the document, which all sheets that were loaded from the file share, so that a run
// only has to fill in values.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "mapping/tw_var_cells.h"
#include "standards/prepared_equation.h"
#include "standards/standard_layout.h"

class PreparedStandard {
  public:
    /// Of the sheet as it is now. Equations are prepared when they are first wanted.
    explicit PreparedStandard(Vor_Spread& spread);

    /// That of the document that `spread` shows unchanged, made when it is not there yet.
    static std::shared_ptr<PreparedStandard> ofDocument(Vor_Spread& spread);

    const StandardLayout& layout() const { return m_layout; }
    /// Everything that is declared, namesakes too.
    const TwVarCells& declarations() const { return m_declarations; }
    /// Everything that is declared but for second and later declarations of a name.
    TwVarCells variables() const;
    /// Indexes and names of second and later declarations of a name.
    const Vor_Array<int>& duplicates() const { return m_duplicates; }
    const Vor_StringArray& duplicateNames() const { return m_duplicateNames; }
    /// Those of them that are inputs or outputs: they take a place in the values that a call hands
    /// in, but none in the results that it gets back.
    Vor_StringArray shiftingNames() const;

    /// One for every cell of the equation area that is not empty or holds a formula, which may
    /// show a text when its turn comes; without text before it was prepared.
    std::vector<PreparedEquation>& equations() { return m_equations; }
    /// Adds the cells of `variables` that lie in the equation area: empty ones among them may get a
    /// value before their turn.
    void expectTexts(const TwVarCells& variables);
    /// The "Calc" marker is still the first cell that reads so: neither replaced nor preceded by a
    /// value.
    bool calcMarkerHolds(const control::Grid& grid) const;

    /// The equation for what the cell of `known` shows now: `known`, when the cell still holds the
    /// text that it was prepared from, else `changed`. `variables` are the declarations without
    /// namesakes.
    const PreparedEquation& equationIn(PreparedEquation& known, const TwVarCells& variables,
                                       const control::Grid& grid, PreparedEquation& changed);
    /// All cells hold the texts that their equations were prepared from (now, where they were not
    /// yet), and neither an equation nor a formula elsewhere on the sheet reads a cell of the
    /// equation area: the results that those cells show serve people alone.
    bool needsNoEquationCells(const TwVarCells& variables, const control::Grid& grid);
    /// The formula of an equation that was prepared here.
    const SharedText& formulaOf(const PreparedEquation& equation) const {
        return equation.formula(*m_references);
    }
    /// As equationIn for a text that the caller read.
    PreparedEquation prepare(SharedText text, control::CellAddress cell,
                             const TwVarCells& variables, const control::Grid& grid);

  private:
    bool knowsAllTexts(const TwVarCells& variables, const control::Grid& grid);
    void declare(Vor_Spread& spread, std::span<const control::CellAddress> cells, TwCellType type);

    StandardLayout m_layout;
    TwVarCells m_declarations;
    Vor_Array<int> m_duplicates;
    Vor_StringArray m_duplicateNames;
    std::vector<PreparedEquation> m_equations;
    /// Cells of Strings that come before the "Calc" marker, where a value could read "Calc".
    std::vector<control::CellAddress> m_textsBeforeCalc;
    std::unique_ptr<VariableReferences> m_references;
    /// Every equation was prepared from the text in the document that this hangs on.
    bool m_isOfDocument = false;
    std::optional<bool> m_readsEquationCells;  // known once all equations were prepared
};
