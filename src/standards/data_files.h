// The text files that custom functions read: lists of standard sizes and look-up tables. They lie
// in the library beside the standards and are read again only when they changed.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "core_api/text/text_index.h"
#include "core_api/text/vor_string_array.h"

/// The file of that name: as it is, else in the library's "Connection Standards\Data\", in
/// "Connection Standards\" or in the library folder. Nothing when there is none.
std::optional<Vor_String> findDataFile(std::string_view name);

/// One entry a line, "100x10" or "100", with block comments and line comments. Both lists are
/// equally long, in file order; what stands after the "x" is 0 where there is none.
struct SizeList {
    std::vector<double> first;
    std::vector<double> second;
};
/// Null when there is no such data file or it cannot be read.
std::shared_ptr<const SizeList> readSizeList(std::string_view name);

/// Rows of columns separated by tabs: key, value. Keys of several parts are joined by ";".
class LookupTable {
  public:
    explicit LookupTable(Vor_Array<Vor_StringArray> rows);
    LookupTable(LookupTable&&) = default;

    const Vor_Array<Vor_StringArray>& rows() const { return m_rows; }
    /// The first row of that key, letter case aside, or -1.
    int findRow(std::string_view key) const { return m_keys.find(key); }

  private:
    Vor_Array<Vor_StringArray> m_rows;
    TextIndex m_keys;  // borrows the keys
};
/// Null when there is no such data file, or it cannot be read or holds no row.
std::shared_ptr<const LookupTable> readLookupTable(std::string_view name);
