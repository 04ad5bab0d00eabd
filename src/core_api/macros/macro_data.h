// The dialog data of a macro: one tab for every module group. Standards runs and dialogs work on
// it: bolt sizes, bolt counts, member properties and flex/fix buttons are changed here, distances,
// cuts and general variables in the macro itself. A run is therefore framed so:
//
//     MacroData data = makeMacroData(dbMacro);
//     … run the standard with &dbMacro and &data …
//     data.setAllToMacro(&dbMacro);
#pragma once

#include "core_api/macros/macro_tab_data.h"
#include "core_api/macros/vor_db_macro.h"

class VORMANT_API MacroData {
  public:
    virtual ~MacroData() = default;

    int tabCount() const { return m_tabs.length(); }
    /// `key` is a module's group name, or its name when it has none (Vor_Module::key). False, with
    /// `index` as it was, when there is no such tab.
    bool findTab(std::string_view key, int& index) const;
    /// Null for a bad index (from 0). Borrowed: valid as long as this object is.
    MacroTabData* getTab(int index);
    const MacroTabData* getTab(int index) const;

    /// The attached standards, with the macro's groups to choose from.
    const TabMappingData& mappingData() const { return m_mapping; }
    TabMappingData& mappingData() { return m_mapping; }

    /// Writes the tabs and the attached standards into the macro, all or nothing. Values that vary
    /// within a tab stay as each module has them. eInvalidInput, with the macro as it was, without
    /// a macro or when a module is gone or refuses a value.
    ErrorStatus setAllToMacro(Vor_DbMacro* macro) const;

    /// The objects in the drawing that the data was made from, as the host's dialogs know them.
    AcArray<AcDbObjectId> objects;
    /// The advanced profile dialog worked on an object of its own, which goes when it closes.
    bool erasesObjects = false;

    bool operator==(const MacroData&) const = default;

  private:
    friend VORMANT_API MacroData makeMacroData(const Vor_DbMacro& macro);
    ErrorStatus applyTabs(Vor_Macro& macro) const;

    Vor_Array<MacroTabData> m_tabs;
    TabMappingData m_mapping;
};

/// The dialog data of a macro as it is now; without tabs when there is no macro.
VORMANT_API MacroData makeMacroData(const Vor_DbMacro& macro);
