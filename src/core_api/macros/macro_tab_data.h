// What the macro dialog shows of one module group (or of a module that stands alone): a copy of the
// values that its modules share, merged. Changes stay in the tab until MacroData::setAllToMacro
// writes them into the modules.
#pragma once

#include <string_view>

#include "core_api/macros/macro_bolt_data.h"
#include "core_api/macros/macro_prof_data.h"
#include "core_api/text/vor_string_array.h"

class VORMANT_API MacroTabData {
  public:
    /// What kind of page shows a tab; decided by its first module.
    enum class Kind { plate = 0, bolt = 1, profile = 2, other = 3 };

    /// An empty tab for `key`; merge() fills it.
    explicit MacroTabData(std::string_view key = {}) : m_key(key) {}
    virtual ~MacroTabData() = default;

    const Vor_String& key() const { return m_key; }
    Kind kind() const { return m_kind; }
    const Vor_StringArray& moduleNames() const { return m_moduleNames; }

    /// Null when no module of the tab has bolts. Borrowed from the tab.
    MacroBoltData* getBoltData() { return m_hasBolts ? &m_bolts : nullptr; }
    const MacroBoltData* getBoltData() const { return m_hasBolts ? &m_bolts : nullptr; }

    const Vor_Array<MacroPatternProps>& patterns() const { return m_patterns; }
    /// By name, letter case aside; false, with `index` as it was, when there is none.
    bool findPatternWithName(std::string_view name, int& index) const;
    /// Null for a bad index. Borrowed from the tab.
    MacroPatternProps* getPattern(int index);

    const Vor_Array<MacroProfData>& profiles() const { return m_profiles; }
    /// The merged properties of the placements named `group`; eInvalidInput, with `properties` as
    /// they were, when there are none.
    ErrorStatus getMergedPropsOfGroup(std::string_view group, MacroProfData& properties) const;
    /// Stores them again (their own name is not read); eInvalidInput when there are none.
    ErrorStatus setMergedPropsOfGroup(std::string_view group, const MacroProfData& properties);

    /// False, with the flags as they were, when the variable has no flex/fix button. Else `fixed`:
    /// it is fixed (in the first module that has it); `varies`: the modules of the tab differ. So
    /// only fixed without varies says that all are fixed.
    bool getFlexFixBtnStatus(std::string_view variable, bool& fixed, bool& varies) const;
    /// The button is clicked: down (`flexible`) lets the variable follow the geometry, up fixes its
    /// value. True when that changed something.
    bool flexFixBtnClicked(std::string_view variable, bool flexible);

    /// Takes in the values of the next module of the group.
    void merge(const Vor_Module& module);
    /// Writes what does not vary into `module`, one of moduleNames(). eInvalidInput when the module
    /// refuses a value; it may then be half written.
    ErrorStatus applyTo(Vor_Module& module) const;

    bool operator==(const MacroTabData&) const = default;

  private:
    /// One flex/fix button.
    struct FlexFix {
        Vor_String name;
        MergedValue<bool> fixed{};
        bool operator==(const FlexFix&) const = default;
    };

    void mergeFlexFix(const Vor_Module& module);
    void mergeBolts(const Vor_BoltModule& module);
    void mergeProfiles(const Vor_ProfModule& module);
    ErrorStatus applyFlexFix(Vor_Module& module) const;
    ErrorStatus applyBolts(Vor_BoltModule& module) const;
    ErrorStatus applyProfiles(Vor_ProfModule& module) const;

    Vor_String m_key;
    Kind m_kind = Kind::other;
    Vor_StringArray m_moduleNames;
    bool m_hasBolts = false;
    MacroBoltData m_bolts;
    Vor_Array<MacroPatternProps> m_patterns;
    Vor_Array<MacroProfData> m_profiles;
    Vor_Array<FlexFix> m_flexFix;
};
