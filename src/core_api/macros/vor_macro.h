// A macro: a parametric connection made of modules, with general variables that all of them share.
// A plain value; a copy is independent of its original.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "core_api/macros/tab_mapping_data.h"
#include "core_api/macros/vor_bolt_module.h"
#include "core_api/macros/vor_prof_module.h"
#include "core_api/text/vor_string_array.h"

class VORMANT_API Vor_Macro {
  public:
    Vor_Macro() = default;
    Vor_Macro(const Vor_Macro& other);
    Vor_Macro& operator=(const Vor_Macro& other);
    Vor_Macro(Vor_Macro&&) = default;
    Vor_Macro& operator=(Vor_Macro&&) = default;
    virtual ~Vor_Macro() = default;

    /// Modules in the order in which they were added. Names are unique, letter case aside.
    Vor_StringArray getModuleNames() const;
    /// Null when there is none. Borrowed: valid as long as the macro is and no module is removed.
    const Vor_Module* findModule(std::string_view name) const;
    Vor_Module* findModuleWrite(std::string_view name);
    int moduleCount() const { return static_cast<int>(m_modules.size()); }
    /// `index` from 0 to moduleCount() - 1.
    const Vor_Module& module(int index) const { return *m_modules[static_cast<size_t>(index)]; }
    /// eInvalidInput, and the module is gone, for none, a bad or taken name, or beyond
    /// maxMacroItems.
    ErrorStatus addModule(std::unique_ptr<Vor_Module> module);

    /// Group names (a module that stands alone counts by its own name), each once, in the order of
    /// their first modules.
    Vor_StringArray getModuleGroups() const;

    /// General variables by name, letter case aside; by custom the names begin with "gen_".
    Vor_StringArray getGeneralVariables() const;
    /// Nothing when there is no such variable.
    std::optional<double> generalVariableValue(std::string_view name) const;
    /// eInvalidInput, with the old value kept, for an unknown name (a misspelt one must not make a
    /// new variable) or a value out of range.
    ErrorStatus setGeneralVariable(std::string_view name, double value);
    /// eInvalidInput for a bad or taken name, a value out of range, or beyond maxMacroItems.
    ErrorStatus addGeneralVariable(std::string_view name, double value);

    /// The standards that are attached to the macro. The list of groups in `standards` is not kept:
    /// getModuleGroups() gives them.
    const TabMappingData& standards() const { return m_standards; }
    void setStandards(const TabMappingData& standards);

    bool operator==(const Vor_Macro& other) const;

  private:
    struct GeneralVariable {
        Vor_String name;
        double value = 0;
        bool operator==(const GeneralVariable&) const = default;
    };

    std::vector<std::unique_ptr<Vor_Module>> m_modules;
    Vor_Array<GeneralVariable> m_generalVariables;
    TabMappingData m_standards;
};
