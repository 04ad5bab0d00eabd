// A sheet and the file it comes from: opening, saving and importing, and whether another
// program changed the file meanwhile. Paths are the module's own (platform/paths.h); reasons are in
// Windows-1252.
#pragma once

#include <string>

#include "core_api/dialogs/open_file.h"
#include "workbench/sheet/sheet_spread.h"

class SheetFile {
  public:
    /// An empty sheet without a file.
    void startNew();
    /// A document, or a text file (".csv"), which stays without a file of its own: what is saved
    /// becomes a document. False with the reason, and the sheet as it was.
    bool open(const std::string& path, std::string& error);
    /// Writes a document; the old file stays whole when that fails. Asks before it replaces what
    /// another program wrote into the sheet's own file.
    OpenFile::Saved save(const std::string& path, std::string& error);

    /// Empty while the sheet has no file.
    const std::string& path() const { return m_file.path(); }
    bool isStandard() const;
    /// OpenFile::noticeChange.
    bool noticeChange() { return m_file.noticeChange(); }

    SheetSpread& spread() { return m_spread; }
    editor::SheetEditor& editor() { return m_spread.editor(); }
    bool isChanged() const { return !m_spread.editor().isSaved() || m_isImported; }

  private:
    bool import(const std::string& path, std::string& error);

    SheetSpread m_spread;
    OpenFile m_file;
    bool m_isImported = false;  ///< holds what no document has yet
};

/// Extensions, letter case aside: those of the control's documents, and of text files.
bool isSheetPath(std::string_view path);
bool isCsvPath(std::string_view path);
