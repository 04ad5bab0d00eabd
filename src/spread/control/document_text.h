// The small pieces that documents are written in: addresses, escaped texts, numbers. Tables of a
// million cells pass here, so nothing allocates unless a text needs converting.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encodings.h"
#include "spread/control/formula/cells.h"

namespace control {

/// What the cells of a document may take in memory beside their texts, in bytes; 32 million cells
/// need it all.
inline constexpr size_t mostCellBytes = size_t{512} << 20;

/// Where a document's text grows.
class DocumentOutput {
  public:
    /// Room for `bytes` more, to be filled by the caller up to what `advanceTo` is told.
    char* room(size_t bytes) {
        if (m_used + bytes > m_text.size()) m_text.resize((m_used + bytes) * 2);
        return m_text.data() + m_used;
    }
    void advanceTo(const char* end) { m_used = static_cast<size_t>(end - m_text.data()); }

    DocumentOutput& operator<<(std::string_view text);
    DocumentOutput& operator<<(char c);
    DocumentOutput& operator<<(int number);
    /// The shortest text that reads back to the same double; plain digits where that is short.
    DocumentOutput& operator<<(double number);
    /// Windows-1252 to UTF-8, line ends, tabs and backslashes escaped, quotes too when `quotes`.
    void escaped(std::string_view text, bool quotes = false);
    /// "AB12"; column 0 (header column) is "-", row 0 the header row.
    void address(int col, int row);
    void column(int col);

    std::string take() {
        m_text.resize(m_used);
        return std::move(m_text);
    }

  private:
    std::string m_text;
    size_t m_used = 0;
};

/// Column letters (or "-" for 0) and a row number at the start of `text`, which moves past them.
/// Nothing when there is no such address or it lies beyond what a sheet can hold.
std::optional<CellAddress> takeAddress(std::string_view& text);
/// Column letters, moving past them; 0 when there are none.
int takeColumn(std::string_view& text);

/// A whole text as a finite number; nothing when it is none.
std::optional<double> readNumber(std::string_view text);
std::optional<int> readWhole(std::string_view text);

/// Turns an escaped text back. The result lies in `text` or in `buffer`. Nothing, with `error`
/// filled in, for unknown escapes and for what Windows-1252 cannot hold.
std::optional<std::string_view> unescaped(std::string_view text, std::string& buffer,
                                          std::string& error);

}  // namespace control
