// The bolts of a dialog tab: their size and the counts of their patterns, merged over the bolt
// modules of the tab.
#pragma once

#include <string_view>

#include "core_api/macros/merged_value.h"
#include "core_api/macros/vor_bolt_module.h"

/// Diameter and hole offset, read and set as texts of numbers in millimetres.
class VORMANT_API MacroBoltData {
  public:
    /// The first module's text when the modules differ.
    Vor_String diameter() const;
    Vor_String holeOffset() const;
    bool diameterVaries() const { return m_diameter.varies(); }
    bool holeOffsetVaries() const { return m_holeOffset.varies(); }

    /// eInvalidInput, with the old text kept, for anything but a number in range (diameter above 0,
    /// hole offset from 0).
    ErrorStatus setDiameter(std::string_view text);
    ErrorStatus setHoleOffset(std::string_view text);

    /// Takes in the next module of the tab.
    void merge(const Vor_BoltModule& module);
    /// Writes what does not vary into a module.
    ErrorStatus applyTo(Vor_BoltModule& module) const;

    bool operator==(const MacroBoltData&) const = default;

  private:
    MergedValue<double> m_diameter;
    MergedValue<double> m_holeOffset;
};

/// The bolt counts of the patterns of one name.
class VORMANT_API MacroPatternProps {
  public:
    explicit MacroPatternProps(const Vor_String& patternName = {}) : name(patternName) {}

    Vor_String name;
    /// One of the merged patterns has a second direction.
    bool hasSecondDirection() const { return m_hasSecondDirection; }

    /// The count in a direction, 0 where there is none, and whether the modules differ.
    int nrBolts(bool first) const { return (first ? m_count1 : m_count2).value(); }
    bool nrBoltsVaries(bool first) const { return (first ? m_count1 : m_count2).varies(); }
    /// eInvalidInput, with the old count kept, for a missing direction or a bad count.
    ErrorStatus setNrBolts(bool first, int count);

    /// Takes in the pattern of this name of the next module.
    void merge(const Vor_BoltPattern& pattern);
    /// Writes what does not vary into the pattern of this name; a module without one is left alone.
    ErrorStatus applyTo(Vor_BoltModule& module) const;

    bool operator==(const MacroPatternProps&) const = default;

  private:
    bool m_hasSecondDirection = false;
    MergedValue<int> m_count1;
    MergedValue<int> m_count2;
};
