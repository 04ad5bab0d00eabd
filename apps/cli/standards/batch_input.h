// The lines of a batch: each gives every input of the standard a value, as CSV below a header of
// names, or as one JSON object of names and values.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/line_source.h"
#include "mapping/tw_var_cells.h"

namespace cli {

class BatchInput {
  public:
    enum class ReadResult {
        values,
        bad,  ///< this line cannot be used; the next can
        end,
        failed,  ///< nothing more can be read
    };

    virtual ~BatchInput() = default;
    /// Before anything else: false with the reason when the lines cannot fit the standard.
    virtual bool begin(const TwVarCells& cells, std::string& error) = 0;
    /// Fills the inputs of `cells` from the next line, or says what is wrong with it.
    virtual ReadResult next(TwVarCells& cells, std::string& error) = 0;
};

std::unique_ptr<BatchInput> makeCsvInput(exchange::LineSource& source);
std::unique_ptr<BatchInput> makeJsonInput(exchange::LineSource& source);

}  // namespace cli
