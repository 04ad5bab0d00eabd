// What people call the value columns of section tables: "h" for the height whatever language the
// table is written in, "Iy" for a column "Iy cm4".
#pragma once

#include <string>
#include <vector>

#include "sections/vor_prof_values_table.h"

namespace cli {

class ColumnNames {
  public:
    /// Of the value columns of a table; its rows do not matter.
    explicit ColumnNames(const Vor_ProfValuesTable& table);

    int count() const { return static_cast<int>(m_columns.size()); }
    /// The value column of this name (Windows-1252), letter case aside; -1 when there is none. A
    /// column's own name, that of the type in English, its short name, its own without a unit.
    int find(std::string_view name) const;
    /// Short where there is such a name.
    std::string_view shown(int column) const;

    /// Everything that find() can know it by.
    std::vector<std::string> allNames() const;

  private:
    struct Column {
        std::string own;
        std::string inEnglish;  // of the type; empty for further columns
        std::string withoutUnit;
    };
    std::vector<Column> m_columns;
};

}  // namespace cli
