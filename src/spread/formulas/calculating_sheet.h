// The current calculating sheet: the one spreadsheet whose formulas the Formulas dialog evaluates,
// which is where FROMTABLE finds the cells of its arguments. There is none outside of such an
// evaluation.
#pragma once

#include <vector>

#include "spread/vor_spread.h"

/// Makes a sheet the current one for the length of a scope.
class CalculatingSheet {
  public:
    /// `sheet` is borrowed.
    explicit CalculatingSheet(Vor_Spread& sheet);
    /// The sheet before is the current one again, and what was noted is written.
    ~CalculatingSheet();
    CalculatingSheet(const CalculatingSheet&) = delete;
    CalculatingSheet& operator=(const CalculatingSheet&) = delete;

    /// Null when nothing is evaluated.
    static Vor_Spread* current();
    /// How many evaluations are under way, each begun by a formula of the one before.
    static int depth() { return s_depth; }
    /// How many the outermost one has begun so far, itself included.
    static int count() { return s_count; }

    /// Writes data into a cell of `sheet`: at once, or, while its formulas are evaluated, when that
    /// is done. A cell must not change under the formula that is reading it.
    static void write(Vor_Spread& sheet, int col, int row, const Vor_String& text);

  private:
    struct Note {
        int col;
        int row;
        Vor_String text;
    };

    Vor_Spread& m_sheet;
    CalculatingSheet* m_before;
    std::vector<Note> m_notes;
    static CalculatingSheet* s_innermost;
    static int s_depth;
    static int s_count;
};
