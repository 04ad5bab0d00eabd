// The check problems of a standard: NAME.cases.csv beside NAME.tws. The header names variables;
// a heading that ends in "?" is an expected output, "tolerance" the absolute difference allowed
// in numbers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/csv.h"
#include "mapping/tw_var_cells.h"

namespace cli {

class CaseTable {
  public:
    static constexpr double usualTolerance = 1e-6;

    /// Reads the header. Nothing, with "file:line: why" told, when it does not fit `cells`.
    static std::optional<CaseTable> open(exchange::CsvReader& reader, const std::string& file,
                                         const TwVarCells& cells);

    struct Expected {
        int cell = 0;  ///< an output, from 0
        std::string value;
    };
    struct Case {
        std::vector<Expected> expected;
        double tolerance = usualTolerance;
    };

    /// Takes one row over: inputs into `cells`, the rest into `row`. False with the reason.
    bool take(const std::vector<std::string_view>& fields, TwVarCells& cells, Case& row,
              std::string& error) const;

  private:
    struct Column {
        enum class Kind { input, expected, tolerance } kind = Kind::input;
        int cell = 0;
    };
    bool addColumn(const std::string& heading, const TwVarCells& cells, std::string& error);
    bool isComplete(const TwVarCells& cells, std::string& error) const;
    bool has(Column::Kind kind, int cell) const;

    std::vector<Column> m_columns;
};

}  // namespace cli
