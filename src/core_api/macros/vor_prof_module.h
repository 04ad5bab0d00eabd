// The members that a macro itself adds (braces, stiffening angles): named placements.
#pragma once

#include "core_api/macros/vor_module.h"
#include "core_api/macros/vor_prpl.h"

class VORMANT_API Vor_ProfModule : public Vor_Module {
  public:
    explicit Vor_ProfModule(std::string_view name) : Vor_Module(name) {}
    Vor_ModuleType type() const override { return Vor_ModuleType::profile; }
    std::unique_ptr<Vor_Module> clone() const override;

    /// The placements in the order in which they were added; every one has a name.
    const Vor_Array<Vor_PrPl>& profArray() const { return m_placements; }
    /// By name, letter case aside; null when there is none.
    const Vor_PrPl* findPlacement(std::string_view name) const;

    /// eInvalidInput for a bad or taken name or a text that isMacroText refuses.
    ErrorStatus addPlacement(const Vor_PrPl& placement);
    /// Puts `placement` in the place of the one of the same name; eInvalidInput, with the old one
    /// kept, when there is none or a text is refused.
    ErrorStatus setPlacement(const Vor_PrPl& placement);

  protected:
    bool hasSameContent(const Vor_Module& other) const override;

  private:
    Vor_Array<Vor_PrPl> m_placements;
};

/// The module as a profile module; null when it is missing or another kind.
VORMANT_API Vor_ProfModule* asProfModule(Vor_Module* module);
VORMANT_API const Vor_ProfModule* asProfModule(const Vor_Module* module);
