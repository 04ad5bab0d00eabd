// Which object each variable of one attached spreadsheet stands for, while it is being chosen.
#pragma once

#include <optional>
#include <vector>

#include "mapping/tw_var_cells.h"

struct VariableChoice {
    Vor_String name;
    TwValueType type = TwValueType::Double;
    bool isInput = true;
    /// Nothing when the variable is not mapped.
    std::optional<TwObjectMap> object;
    /// The macro has no such object (any more); it is kept unless another one is chosen.
    bool isMissing = false;

    /// A mapping file can hold the name.
    bool canBeMapped() const;
    /// A run on a macro asks for objects of the variable's own type alone.
    bool isOfOtherType() const;
};

class VORMANT_API SheetChoices {
  public:
    /// The inputs and outputs among `declared`, each chosen as `stored` says. `all` are the objects
    /// of the macro.
    SheetChoices(const TwVarCells& declared, const TwSSMapping& stored, const TwSSMapping& all);

    /// Inputs before outputs, in the order of their declarations.
    const std::vector<VariableChoice>& variables() const { return m_variables; }
    /// Null for a name that is not declared, letter case aside.
    const VariableChoice* find(const Vor_String& name) const;
    /// `object` is null for none. `index` counts variables() from 0.
    void choose(size_t index, const TwObjectMap* object);

    /// One entry for every variable that has an object.
    TwSSMapping mapping() const;
    /// `stored` says the same of every variable here; what it says of others does not matter.
    bool isStoredAs(const TwSSMapping& stored) const;

  private:
    void add(const TwVarCells& declared, TwCellType cellType, const TwSSMapping& stored,
             const TwSSMapping& all);

    std::vector<VariableChoice> m_variables;
};
