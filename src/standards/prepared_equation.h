// One cell of the equation area, taken apart and compiled: everything about an equation that
// follows from its text and the declared variables, so that a standard that is run a thousand
// times is prepared once.
#pragma once

#include <cstdint>
#include <memory>

#include "mapping/tw_var_cells.h"
#include "spread/control/sheet.h"
#include "standards/replace_variables.h"
#include "standards/shared_text.h"

struct PreparedEquation {
    enum class Kind : std::uint8_t {
        ordinary,   ///< a formula whose result goes to a variable
        childCall,  ///< contains a native function's name, anywhere
        irregular,  ///< neither: no "=", or the name is not declared
        refused,    ///< the control cannot make a formula of it
    };

    /// Before the "="; empty without one.
    std::string_view name() const;
    /// After the "=", or the whole text.
    std::string_view expression() const;

    control::CellAddress cell;
    SharedText text;  ///< what the cell showed
    int target = -1;  ///< the variable of that name, or -1
    Kind kind = Kind::irregular;
    /// The target is a String: the equation cell shows text.
    bool givesText = false;
    formula::ProgramRef program;  ///< ordinary
    /// childCall: the native function; irregular and refused: why, and what to do. Else null.
    std::unique_ptr<Vor_String> detail;

    /// Ordinary and refused: with cell references. Made when it is first asked for, as hidden runs
    /// do without; `references` are those that the equation was prepared with.
    const SharedText& formula(const VariableReferences& references) const;

  private:
    mutable SharedText m_formula;
};

/// The cell reference of a variable: "B5".
Vor_String coordinateName(const TwVarCell& variable);

/// Every name with the reference of the first variable of that name.
VariableReferences makeReferences(const TwVarCells& variables);

/// `text` is what the cell shows; `sheet` knows the functions that formulas may call.
PreparedEquation prepareEquation(SharedText text, control::CellAddress cell,
                                 const TwVarCells& variables, const VariableReferences& references,
                                 const control::Sheet& sheet);
