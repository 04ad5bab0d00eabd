// Ties one spreadsheet variable to one value inside a macro: a distance of a module, an offset of
// a cut, the bolt count of a pattern, a general variable, and so on.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "mapping/tw_map_type.h"
#include "platform/host/error_status.h"

class AcTransaction;
class MacroData;
class TwVarCell;
class Vor_DbMacro;
class Vor_Macro;

class VORMANT_API TwObjectMap {
  public:
    TwObjectMap() = default;
    TwObjectMap(const Vor_String& group, TwMapType kind, const Vor_String& objectName,
                const Vor_String& spreadsheetVariable = {}, int category = 3);
    TwObjectMap(const TwObjectMap&) = default;
    TwObjectMap& operator=(const TwObjectMap&) = default;
    TwObjectMap(TwObjectMap&&) noexcept = default;
    TwObjectMap& operator=(TwObjectMap&&) noexcept = default;
    virtual ~TwObjectMap() = default;

    /// Module group (or module) inside the macro; empty for what belongs to the macro itself.
    const Vor_String& group() const { return m_group; }
    const Vor_String& objectName() const { return m_objectName; }
    const Vor_String& spreadsheetVariable() const { return m_variable; }
    TwMapType kind() const { return m_kind; }
    /// 0 to 3, for sortValidVars of TwSSMapping.
    int category() const { return m_category; }
    const Vor_String& extraText() const { return m_extraText; }
    void setSpreadsheetVariable(const Vor_String& name) { m_variable = name; }

    /// The two texts of a mapping file: group, byte 0x95, kind and object; and the variable.
    /// Fails, with both untouched, when there is no kind.
    ErrorStatus setMappingToStrs(Vor_String& mapping, Vor_String& variable) const;
    /// The way back. Fails, with this object as it was, without 0x95 or a known kind.
    ErrorStatus getMappingFromStrs(const Vor_String& variable, const Vor_String& mapping);
    /// The entry of `mappings` at the place of the cell's name among `variables`.
    ErrorStatus mapFromArrays(const Vor_StringArray& variables, const Vor_StringArray& mappings,
                              const TwVarCell& cell);

    /// Same group and object (letter case aside) and same kind.
    ErrorStatus isCompatible(const TwObjectMap& other) const;

    /// The macro's value as text into `value`, or `value` into the macro.
    ErrorStatus getMacroVarValue(Vor_DbMacro* dbMacro, MacroData* macroData, Vor_String& value,
                                 AcTransaction* transaction) const;
    ErrorStatus setMacroVarValue(Vor_DbMacro* dbMacro, MacroData* macroData, Vor_String& value,
                                 AcTransaction* transaction) const;

  private:
    ErrorStatus getSetMacroVarValue(Vor_DbMacro* dbMacro, MacroData* macroData, Vor_String& value,
                                    bool get, AcTransaction* transaction) const;
    ErrorStatus getSetModuleVarValue(Vor_Macro* macro, MacroData* macroData,
                                     const Vor_String& moduleName, int index, Vor_String& value,
                                     bool get, AcTransaction* transaction) const;

    Vor_String m_group;
    Vor_String m_objectName;
    Vor_String m_variable;
    TwMapType m_kind = TwMapType::none;
    int m_category = 3;
    Vor_String m_extraText;
};
