// Goes through the file of a section table for the sizes that fulfil conditions, and copies those
// alone: libraries have hundreds of tables.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "cli/sections/column_names.h"
#include "cli/sections/section_condition.h"
#include "cli/sections/table_files.h"

namespace cli {

/// A size with the head of its table; the only row of it.
struct FoundSection {
    const Vor_ProfValuesTable& table;
    const ColumnNames& columns;
    std::optional<double> sortKey;
};

class TableSearch {
  public:
    /// Inactive sizes are left out unless `inactive`. `sortColumn` may be empty.
    TableSearch(std::span<const SectionCondition> conditions, std::string sortColumn,
                bool inactive);

    /// Calls `found` for every size. False, after telling why, when the file cannot be read to its
    /// end. A table that the conditions leave out is not read.
    bool run(const TableFile& file, const std::function<void(const FoundSection&)>& found);

    /// What was asked for, in the order of the conditions and then the column to sort by, and is
    /// in none of the tables so far. Looks for it in those that were left out, too: to ask for a
    /// column that only they have is no mistake.
    std::vector<std::string> unknownColumns();
    /// Names of the columns in the tables so far.
    const std::vector<std::string>& knownColumns() const { return m_names; }

  private:
    struct Size;

    enum class Special { no, mass, area, type };
    struct Wanted {
        std::string name;
        Special special = Special::no;
        bool isKnown = false;
        int column = -1;  // in the table at hand
    };

    bool leavesOut(const TableFile& file) const;
    void bind(Wanted& wanted, const ColumnNames& columns);
    void bindAll(const ColumnNames& columns);
    void readColumnsOf(const TableFile& file);
    std::vector<std::string> unboundColumns() const;
    std::optional<double> valueOf(const Wanted& wanted, const Size& size) const;
    bool holds(const Size& size) const;

    std::span<const SectionCondition> m_conditions;
    std::vector<Wanted> m_wanted;  // one a condition
    Wanted m_sort;
    bool m_inactive;
    std::vector<TableFile> m_leftOut;
    std::vector<std::string> m_names;
};

}  // namespace cli
