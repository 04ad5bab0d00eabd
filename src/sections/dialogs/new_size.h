// A size that is added to a section table: what its name is made of, and where it goes. Values are
// counted from 0, from the first value column on.
#pragma once

#include <vector>

#include "sections/vor_prof_values_table.h"

/// How the sizes of a table are named by their values: "50x30x4" after height, width and wall.
struct SizeNaming {
    Vor_Array<int> values;     ///< those that make the name, in its order; none: there is no naming
    Vor_StringArray prefixes;  ///< in each language, what stands before the name: "RHS "

    /// Empty without a naming; values that were not given are left out.
    Vor_String nameOf(const Vor_StringArray& values) const;
};

/// Taken from the first row, from `row` on, whose system name consists of values of its own, parted
/// by "x". At most 9999 rows are looked at.
SizeNaming findSizeNaming(const Vor_ProfValuesTable& table, int row);

struct NewSize {
    int pattern = 0;            ///< the row it is a copy of but for what follows
    Vor_String name;            ///< its system name
    Vor_StringArray userNames;  ///< one for each language of the table
    Vor_StringArray values;     ///< of the first value columns
    Vor_Array<int> typed{};     ///< those that somebody typed, which nothing calculates
};

/// A value of a size that follows from its shape.
struct ShapeValue {
    int value;
    bool isCalculated;  ///< false: the shape is that of the pattern, and so is the value
    Vor_String text;    ///< empty when the values give no shape, and of drawn templates
};
/// The values beside the dimensions that follow from the shape, as mass and moments do. `values`
/// are the first of a size that is a copy of row `pattern` but for them.
std::vector<ShapeValue> shapeValues(const Vor_ProfValuesTable& table, int pattern,
                                    const Vor_StringArray& values);

/// The pattern row has a cell for every column.
bool isWholeRow(const Vor_ProfValuesTable& table, int row);
/// Inserts the size where its name belongs, with the values that follow from its shape unless they
/// were typed. Its place among the active sizes; -1, with the table as
/// it was, when the pattern is not whole.
int addSize(Vor_ProfValuesTable& table, const NewSize& size);
