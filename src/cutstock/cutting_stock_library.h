// The cutting-stock items of a library. Which there are, and their parts, is kept in its "Cutting
// Stock\Items.dat"; stock and purchases are in the files of each item. In a library without that
// file its folders are the items.
#pragma once

#include <optional>
#include <string>

#include "core_api/dialog_data/dlg_csp2_data.h"
#include "platform/files.h"

namespace cutstock {

class CuttingStockLibrary {
  public:
    /// "Cutting Stock\Items.dat" in the library.
    static Vor_String path();

    /// The items, the names of columns and the parts. False, with `message` naming the file, and
    /// the line at fault if it is one, and `data` as it was, when they cannot be read.
    bool loadItems(DlgCSP2Data& data, Vor_String& message);
    /// The same with the rows of the newest files; tables without names of columns get usual ones.
    /// False also when one of these files cannot be read.
    bool load(DlgCSP2Data& data, Vor_String& message);

    /// Whether saving would replace what was not loaded: a list of items that could not be read,
    /// or one that another program wrote meanwhile. Ask before saving then; without
    /// replaceUnread() saving fails.
    bool wouldReplaceUnread() const;
    /// Lets the next saving replace the list as it is now.
    void replaceUnread();

    /// What loadItems loads. False, with `message` saying why and the old list as it was, when a
    /// name cannot be that of an item or the list cannot be written.
    bool saveItems(const DlgCSP2Data& data, Vor_String& message);
    /// The same, then rows of the second and third table that are not in the newest file of their
    /// item go to a new one. False, with `message` saying why, when something could not be
    /// written: what could be is written then.
    bool save(const DlgCSP2Data& data, Vor_String& message);

  private:
    std::optional<std::string> m_text;       ///< of the list of items as it was read or written
    std::optional<files::Stamp> m_replaced;  ///< of the list that may be replaced unread
    Vor_StringArray m_loaded;                ///< items whose rows were loaded
};

}  // namespace cutstock
