// A standard run on a macro out of a file: its inputs come from the macro, its outputs go back
// into it. The file itself changes only when it is asked to and all went well.
#pragma once

#include <memory>
#include <optional>

#include "core_api/dialogs/open_file.h"
#include "core_api/macros/macro_data.h"
#include "core_api/macros/vor_db_macro.h"
#include "mapping/tw_dlg_standards_data.h"
#include "platform/exclusive_change.h"
#include "platform/host/transaction.h"
#include "runs/run_report.h"

namespace runs {

class MacroRun {
  public:
    /// Null, with the reason in `failure`, when the file cannot be read. Host-style path.
    static std::unique_ptr<MacroRun> open(const Vor_String& path, Vor_String& failure);
    /// The same for who writes it back soon: other programs wait until this object goes.
    static std::unique_ptr<MacroRun> openToChange(const Vor_String& path, Vor_String& failure);

    const Vor_String& path() const { return m_path; }
    /// OpenFile::noticeChange of the macro's file.
    bool noticeChange() { return m_file.noticeChange(); }
    Vor_DbMacro& macro() { return m_macro; }
    MacroData& macroData() { return m_macroData; }
    AcTransaction& transaction() { return m_transaction; }

    /// `standard` is a name inside the library without extension, or a path. `key` is a key of its
    /// mapping file, or "Module." and a module group. False, with the reason in `report.failure`,
    /// when nothing of the macro would reach the standard; else the report says how it went.
    bool run(const Vor_String& standard, const Vor_String& key, const Vor_StringArray& genNames,
             const Vor_StringArray& genValues, RunReport& report);

    /// What becomes of results that were made from inputs without a value.
    enum class Unread { refused, written };
    /// Writes the macro, with what the last run put into it; the file is as it was when that fails.
    /// Asks before it replaces what another program wrote since the macro was opened.
    OpenFile::Saved save(const RunReport& report, Unread unread, Vor_String& failure);
    /// Without a run: the macro as it is now, with the standards attached to it, say.
    OpenFile::Saved saveAsIs(Vor_String& failure);

  private:
    MacroRun() = default;

    Vor_String m_path;
    OpenFile m_file;
    std::optional<files::ExclusiveChange> m_change;
    Vor_DbMacro m_macro;
    MacroData m_macroData;
    AcTransaction m_transaction;
};

/// Why there is no line for `key` among the lines of the mapping file, with the keys that there
/// are.
Vor_String noSuchKey(const Vor_String& standard, const Vor_String& key,
                     const Vor_StringArray& lines);

/// The keys of a standard's mapping file, in its order; none when it cannot be read.
Vor_StringArray mappingKeys(const Vor_String& standard);

}  // namespace runs
