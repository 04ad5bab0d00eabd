// The merged properties of a profile group in a dialog tab: of the placements of one name of all
// profile modules of the tab.
#pragma once

#include <string_view>

#include "core_api/macros/merged_value.h"
#include "core_api/macros/vor_prof_module.h"

class VORMANT_API MacroProfData {
  public:
    explicit MacroProfData(const Vor_String& group = {}) : name(group) {}

    /// The name of the group, which is that of its placements.
    Vor_String name;

    /// The first placement's text when the placements differ.
    const Vor_String& sectionName() const { return m_sectionName.value(); }
    const Vor_String& material() const { return m_material.value(); }
    const Vor_String& memberName() const { return m_memberName.value(); }
    bool sectionNameVaries() const { return m_sectionName.varies(); }
    bool materialVaries() const { return m_material.varies(); }
    bool memberNameVaries() const { return m_memberName.varies(); }

    /// eInvalidInput, with the old text kept, for a text that isMacroText refuses.
    ErrorStatus setSectionName(std::string_view text);
    ErrorStatus setMaterial(std::string_view text);
    ErrorStatus setMemberName(std::string_view text);

    /// Takes in the placement of this name of the next module.
    void merge(const Vor_PrPl& placement);
    /// Writes what does not vary into the placement of this name; a module without one is left
    /// alone.
    ErrorStatus applyTo(Vor_ProfModule& module) const;

    bool operator==(const MacroProfData&) const = default;

  private:
    MergedValue<Vor_String> m_sectionName;
    MergedValue<Vor_String> m_material;
    MergedValue<Vor_String> m_memberName;
};
