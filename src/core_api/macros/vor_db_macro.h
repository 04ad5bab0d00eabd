// A macro as it lies in the drawing: the macro itself and the base profiles it connects.
#pragma once

#include <optional>

#include "core_api/macros/vor_macro.h"

class VORMANT_API Vor_DbMacro {
  public:
    /// Without a macro; what reads or writes one then fails.
    Vor_DbMacro() = default;
    explicit Vor_DbMacro(Vor_Macro macro) : m_macro(std::move(macro)) {}
    virtual ~Vor_DbMacro() = default;

    /// Null when there is no macro. Borrowed from this object.
    const Vor_Macro* macroRead() const { return m_macro ? &*m_macro : nullptr; }
    Vor_Macro* macroWrite() { return m_macro ? &*m_macro : nullptr; }

    /// The ids of the base profiles; profile i of a mapping ("Prof0", "Prof1;2") is entry i, from
    /// 0.
    const AcArray<AcDbObjectId>& mapBaseProfIds() const { return m_baseProfIds; }
    /// Null for a bad index.
    const Vor_PrPl* baseProf(int index) const;
    /// The name in `profile` is not used. eInvalidInput for a text that isMacroText refuses, or
    /// beyond maxMacroItems.
    ErrorStatus addBaseProf(const Vor_PrPl& profile);
    /// eInvalidInput, with the old one kept, for a bad index or a refused text.
    ErrorStatus setBaseProf(int index, const Vor_PrPl& profile);
    /// Takes the place of the macro that is there, if any.
    void setMacro(Vor_Macro macro) { m_macro = std::move(macro); }

    bool operator==(const Vor_DbMacro&) const = default;

  private:
    std::optional<Vor_Macro> m_macro;
    AcArray<AcDbObjectId> m_baseProfIds;
    Vor_Array<Vor_PrPl> m_baseProfs;
};

/// Base profile `index` (from 0), borrowed from `macro`. eInvalidInput, with `profile` as it was,
/// without a macro or for a bad index.
VORMANT_API ErrorStatus getBaseProf(const Vor_DbMacro* macro, int index, const Vor_PrPl*& profile);
