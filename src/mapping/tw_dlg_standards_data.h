// Request and result of one standards run: which standard, and either the macro that its values
// come from and go to, or the list of values itself.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "mapping/tw_var_cells.h"

class AcTransaction;
class MacroData;
class Vor_DbMacro;

class VORMANT_API TwDlgStandardsData {
  public:
    enum class Mode { macro = 0, variables = 1 };

    TwDlgStandardsData() = default;
    TwDlgStandardsData(const TwDlgStandardsData&) = default;
    TwDlgStandardsData& operator=(const TwDlgStandardsData&) = default;
    TwDlgStandardsData(TwDlgStandardsData&&) noexcept = default;
    TwDlgStandardsData& operator=(TwDlgStandardsData&&) noexcept = default;
    virtual ~TwDlgStandardsData() = default;

    /// For a run on a macro. A mapping key "Module." + group runs on that module group, any other
    /// names a line of the mapping file. Fails, with nothing changed, unless both pointers are
    /// given. Transaction, gen variables and variable cells are left alone.
    ErrorStatus initialize(Vor_DbMacro* macro, const Vor_String& standardsName,
                           const Vor_String& mappingKey, MacroData* macroData);

    Mode mode = Mode::macro;
    /// A file, or a name in the standards folder without extension.
    Vor_String standardsName;
    /// Pointers are borrowed for the length of the call.
    Vor_DbMacro* macro = nullptr;
    Vor_String mappingKey;
    Vor_String moduleName;
    AcTransaction* transaction = nullptr;
    MacroData* macroData = nullptr;
    /// Names replaced by texts in every cell of the sheet before it is calculated.
    Vor_StringArray genNames;
    Vor_StringArray genValues;
    /// Mode variables: the values passed in and out, bound to the sheet's inputs and outputs by
    /// position. After a run on a macro: the sheet's variables with their final values.
    TwVarCells varCells;
};
