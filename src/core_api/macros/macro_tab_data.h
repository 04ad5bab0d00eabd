// What the macro dialog shows of one module group (or of a module that stands alone): a copy of the
// values that its modules share, merged. Changes stay in the tab until MacroData::setAllToMacro
// writes them into the modules.
#pragma once

#include <string_view>

#include "core_api/macros/merged_value.h"
#include "core_api/macros/vor_macro.h"

/// The bolts of a tab. Diameter and hole offset are texts of numbers in millimetres.
class VORMANT_API MacroBoltData {
  public:
    /// The first module's text when the modules differ.
    Vor_String diameter() const;
    Vor_String holeOffset() const;
    /// eInvalidInput, with the old text kept, for anything but a number in range (diameter above 0,
    /// hole offset from 0).
    ErrorStatus setDiameter(std::string_view text);
    ErrorStatus setHoleOffset(std::string_view text);

    MergedValue<double> diameterValue;
    MergedValue<double> holeOffsetValue;

    bool operator==(const MacroBoltData&) const = default;
};

/// The placements of one name ("group" in a profile dialog) of all profile modules of a tab.
class VORMANT_API MacroProfData {
  public:
    const Vor_String& sectionName() const { return section.value(); }
    const Vor_String& material() const { return grade.value(); }
    const Vor_String& memberName() const { return member.value(); }
    /// eInvalidInput, with the old text kept, for a text that isMacroText refuses.
    ErrorStatus setSectionName(std::string_view text);
    ErrorStatus setMaterial(std::string_view text);
    ErrorStatus setMemberName(std::string_view text);

    Vor_String group;
    MergedValue<Vor_String> section;
    MergedValue<Vor_String> grade;
    MergedValue<Vor_String> member;

    bool operator==(const MacroProfData&) const = default;
};

/// The bolt counts of one pattern name of all bolt modules of a tab.
struct MacroPatternProps {
    Vor_String name;
    MergedValue<int> nrBolts1;
    MergedValue<int> nrBolts2;
    bool hasSecondDirection = false;

    bool operator==(const MacroPatternProps&) const = default;
};

/// One flex/fix button.
struct MacroFlexFix {
    Vor_String name;
    MergedValue<bool> fixed;

    bool operator==(const MacroFlexFix&) const = default;
};

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
    /// eInvalidInput, with the old count kept, for a bad index, a missing direction, a bad count.
    ErrorStatus setNrBolts(int pattern, bool first, int count);

    const Vor_Array<MacroProfData>& profiles() const { return m_profiles; }
    /// The merged properties of the placements named `group`; eInvalidInput, with `properties` as
    /// they were, when there are none.
    ErrorStatus getMergedPropsOfGroup(std::string_view group, MacroProfData& properties) const;
    /// Stores them again; values that still vary are left alone later.
    ErrorStatus setMergedPropsOfGroup(std::string_view group, const MacroProfData& properties);

    /// False when the variable has no flex/fix button. Else `fixed`: it is fixed (in the first
    /// module); `varies`: the modules of the tab differ. So only fixed without varies says that all
    /// are fixed.
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
    void mergeBolts(const Vor_BoltModule& module);
    void mergeProfiles(const Vor_ProfModule& module);
    void mergeFlexFix(const Vor_Module& module);
    ErrorStatus applyBolts(Vor_BoltModule& module) const;
    ErrorStatus applyProfiles(Vor_ProfModule& module) const;

    Vor_String m_key;
    Kind m_kind = Kind::other;
    Vor_StringArray m_moduleNames;
    bool m_hasBolts = false;
    MacroBoltData m_bolts;
    Vor_Array<MacroPatternProps> m_patterns;
    Vor_Array<MacroProfData> m_profiles;
    Vor_Array<MacroFlexFix> m_flexFix;
};
