// The control's documents (".tws", ".sss", bills): UTF-8 text, one line a property or cell, in a
// fixed order, so that a document can be read, compared and merged as text.
//
//   vormant-sheet 1
//   size COLUMNS ROWS
//   option NAME VALUE               refstyle, columnheaders, rowheaders, gridtype, colours
//   look N KIND key=value …         only looks in use; texts in quotes
//   picture #NAME BASE64            that picture cells show; only those in use
//   colwidth A 24                   pixels; "all" for the usual width, "header" for the header
//   hidecol A                       column's; rows likewise: rowheight 3 18, hiderow 3
//   headerlook A @1                 "all" for those without their own; rowheaderlook 3 @1
//   header A "text                  rowheader 3 "text
//   collook A @2                    cells of the column that have no look of their own
//   corner "text
//   span A1 COLUMNS ROWS            in addresses "-" is the header column and 0 the header row
//   tag B2 "text                    note B2 "text
//   cells
//   A1 "Input                       a text runs to the end of the line; \\ \n \t \r stand for
//   B2 @1 12.5                      themselves. Other values: number, TRUE, FALSE, #error
//   C3 @1 =A1*B1<TAB>25             formula, tab, result; an array formula is ={=…}
//   D4 @2                           look only
//   end COUNT                       of cell lines; guards against truncation
//
// Cells stand by row, then column, when written; they are read in any order. Numbers are the
// shortest text that reads back to the same double. Reading is all or nothing. A formula that
// calls an unknown function is kept.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/export.h"
#include "spread/control/cell_format.h"
#include "spread/control/sheet.h"
#include "spread/control/side_tables.h"

namespace control {

class Grid;

/// A loaded document: immutable, shared by every grid that starts from it.
class Document {
  public:
    int cols() const { return m_cols; }
    int rows() const { return m_rows; }
    const Sheet& sheet() const { return *m_sheet; }
    const FormatTable& formats() const { return m_formats; }
    const SharedSides& sides() const { return m_sides; }

    /// A place where an engine keeps what it prepared for this very document; empty at first,
    /// dies with the document.
    std::shared_ptr<void>& attachment() const { return m_attachment; }

  private:
    friend class DocumentReader;
    friend class Grid;

    int m_cols = 0;
    int m_rows = 0;
    std::unique_ptr<Sheet> m_sheet = std::make_unique<Sheet>();
    FormatTable m_formats;
    SharedSides m_sides;
    mutable std::shared_ptr<void> m_attachment;
};

/// Reads a document from its text. Null with `error` as "name:line: what: what to do".
VORMANT_API std::shared_ptr<Document> readDocument(std::string_view text, std::string_view name,
                                                   std::string& error);

/// The document at `path` (host style). One that was read before and whose file is unchanged
/// (size and modification time) comes from a bounded store of this process. Null with `error`.
VORMANT_API std::shared_ptr<const Document> loadDocument(std::string_view path, std::string& error);

/// As loadDocument for one that the store holds unchanged; null for all others.
VORMANT_API std::shared_ptr<const Document> knownDocument(std::string_view path);

/// Loads it into `grid`. False with `error`, and the grid as it was.
VORMANT_API bool loadInto(Grid& grid, std::string_view path, std::string& error);

/// The text of a grid's document.
VORMANT_API std::string writeDocument(const Grid& grid);
/// Writes it to `path` (host style) in one atomic step: on failure the old file stays whole.
VORMANT_API bool saveDocument(const Grid& grid, std::string_view path, std::string& error);

}  // namespace control
