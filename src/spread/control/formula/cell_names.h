// Formulas in which words stand for cells. Standards name their variables; reading the names while
// the formula is parsed spares writing it anew with references first.
#pragma once

#include <bitset>
#include <string_view>

#include "spread/control/formula/cells.h"
#include "spread/control/formula/parser.h"

namespace formula {

class CellNames {
  public:
    /// The cell that `word` (ASCII letters, digits and underscores) stands for, or null.
    virtual const control::CellAddress* cellOf(std::string_view word) const = 0;
    /// False when no word stands for a cell that starts like this one: true of most functions and
    /// of numbers, without looking for them.
    bool mayStartWith(char c) const { return m_starts[static_cast<unsigned char>(c)]; }

  protected:
    ~CellNames() = default;
    std::bitset<256> m_starts;  // every letter that a word starts with, in both cases
};

/// What parse() gives for `text` with the reference of its cell (A1) in place of every such word,
/// wherever the word stands. Nothing when that is no formula, or when a name may lie where no
/// value can stand, as inside a text: then the caller has to replace the words and ask parse().
ProgramRef parseWithNames(std::string_view text, const ParseSettings& settings,
                          const CellNames& names);

}  // namespace formula
