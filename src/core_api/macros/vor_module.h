// One part of a macro: a plate, a bolt group, a set of members, a weld. It has a name, may belong
// to a group of modules that act as one, and holds the variables and cuts that its geometry is
// built from. Bolt and profile modules add their own (vor_bolt_module.h, vor_prof_module.h).
#pragma once

#include <memory>
#include <string_view>

#include "core_api/macros/constraint_variable.h"
#include "core_api/macros/cut_constraint.h"
#include "core_api/text/vor_array.h"

/// The type codes of modules, as other parts of the system compare them.
enum class Vor_ModuleType { other = 230, plate = 231, bolt = 232, profile = 233, weld = 234 };

class VORMANT_API Vor_Module {
  public:
    virtual ~Vor_Module() = default;
    virtual Vor_ModuleType type() const = 0;
    virtual std::unique_ptr<Vor_Module> clone() const = 0;

    const Vor_String& name() const { return m_name; }
    /// Empty for a module that stands alone.
    const Vor_String& groupName() const { return m_groupName; }
    /// eInvalidInput for a text that is no macro name (macro_limits.h); empty leaves the group.
    ErrorStatus setGroupName(std::string_view group);
    /// What mappings and dialog tabs know the module by: its group name, else its own name.
    const Vor_String& key() const { return m_groupName.isEmpty() ? m_name : m_groupName; }

    const Vor_Array<ConstraintVariable>& variables() const { return m_variables; }
    const Vor_Array<CutConstraint>& cuts() const { return m_cuts; }

    /// Adding fails with eInvalidInput for a bad or taken name (letter case aside), a value out of
    /// range, a cut value that its type lacks, or beyond maxMacroItems.
    ErrorStatus addVariable(const ConstraintVariable& variable);
    ErrorStatus addCut(const CutConstraint& cut);

    /// By name, letter case aside; null when there is none. Valid until something is added.
    const ConstraintVariable* findVariable(std::string_view name) const;
    const CutConstraint* findCut(std::string_view name) const;

    /// eInvalidInput, with the old value kept, for an unknown name or a value out of range.
    ErrorStatus setVariable(std::string_view name, double value);
    /// Puts `variable` with its flags in the place of the one of its name.
    ErrorStatus setVariable(const ConstraintVariable& variable);
    ErrorStatus setCutOffset(std::string_view name, TwCutOffsetType offset, double value);
    /// Puts these in the place of all; eInvalidInput, with the old ones kept, when one of them
    /// could not be added.
    ErrorStatus setVariables(Vor_Array<ConstraintVariable> variables);
    ErrorStatus setCuts(Vor_Array<CutConstraint> cuts);
    /// For a variable with a flex/fix button; eInvalidInput for any other.
    ErrorStatus setFixed(std::string_view name, bool fixed);

    bool operator==(const Vor_Module& other) const;

  protected:
    explicit Vor_Module(std::string_view name) : m_name(name) {}
    Vor_Module(const Vor_Module&) = default;
    Vor_Module& operator=(const Vor_Module&) = default;
    /// Called with a module of the same type.
    virtual bool hasSameContent(const Vor_Module&) const { return true; }

  private:
    Vor_String m_name;
    Vor_String m_groupName;
    Vor_Array<ConstraintVariable> m_variables;
    Vor_Array<CutConstraint> m_cuts;
};

/// A module that has variables and cuts only: plates, welds and all else.
class VORMANT_API Vor_PlainModule : public Vor_Module {
  public:
    /// `type` is plate, weld or other; the types of the classes with more to them count as other.
    Vor_PlainModule(std::string_view name, Vor_ModuleType type);
    Vor_ModuleType type() const override { return m_type; }
    std::unique_ptr<Vor_Module> clone() const override;

  private:
    Vor_ModuleType m_type;
};
