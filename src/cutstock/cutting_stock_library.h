// The items of a library with their parts, kept in its "Cutting Stock\Items.dat" so that they are
// there the next day. Stock and purchases are kept in the files of each item.
#pragma once

#include <optional>
#include <string>

#include "core_api/dialog_data/dlg_csp2_data.h"

namespace cutstock {

class CuttingStockLibrary {
  public:
    /// "Cutting Stock\Items.dat" in the library.
    static Vor_String path();

    /// The items with their rows in all three tables; nothing at all without the file. False, with
    /// `message` naming the file and line at fault and `data` as it was, when the list of items or
    /// one of the newest files cannot be read.
    bool load(DlgCSP2Data& data, Vor_String& message);

    /// Whether saving would replace what was not loaded: a list of items that could not be read,
    /// or one that another program wrote meanwhile. Ask before saving then.
    bool wouldReplaceUnread() const;

    /// Rows of the second and third table that are not in the newest file of their item go to a new
    /// one. False, with `message` saying why, when something could not be written: what could be
    /// is written then.
    bool save(const DlgCSP2Data& data, Vor_String& message);

  private:
    std::optional<std::string> m_text;  ///< of the list of items as it was read or written
};

}  // namespace cutstock
