// Rows of texts in columns as wide as they need: numbers to the right, the rest to the left.
#pragma once

#include <string>
#include <vector>

namespace cli {

class TextTable {
  public:
    /// Cells in UTF-8; a row may be shorter than others.
    void add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }
    bool isEmpty() const { return m_rows.empty(); }
    /// With `margin` in front of every line. The first row is a header when `hasHeader`: its cells
    /// stand as those below them do.
    void append(std::string& text, std::string_view margin, bool hasHeader) const;

  private:
    std::vector<std::vector<std::string>> m_rows;
};

}  // namespace cli
