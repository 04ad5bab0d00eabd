#include "core_api/macros/macro_file.h"
#include "core_api/macros/macro_key.h"
#include "core_api/macros/macro_words.h"

namespace {

class MacroWriter {
  public:
    void write(const Vor_DbMacro& dbMacro, const Vor_Macro& macro) {
        number({"macro", "version"}, 1);
        for (const Vor_String& name : macro.getGeneralVariables()) {
            number({"general", name}, macro.generalVariableValue(name).value_or(0));
        }
        for (int index = 0; index < dbMacro.mapBaseProfIds().length(); ++index) {
            writeBaseProfile(std::to_string(index), *dbMacro.baseProf(index));
        }
        writeStandards(macro.standards());
        for (int index = 0; index < macro.moduleCount(); ++index) writeModule(macro.module(index));
    }

    /// False when there was more than a file holds.
    bool isComplete() const { return m_isComplete; }
    Vor_PropertyList& properties() { return m_properties; }

  private:
    using Names = std::initializer_list<std::string_view>;

    void text(Names key, std::string_view value) {
        m_isComplete &= m_properties.setText(joinMacroKey(key), value);
    }
    void textUnlessEmpty(Names key, std::string_view value) {
        if (!value.empty()) text(key, value);
    }
    void number(Names key, double value) {
        m_isComplete &= m_properties.setDouble(joinMacroKey(key), value);
    }
    void number(Names key, int value) {
        m_isComplete &= m_properties.setInt(joinMacroKey(key), value);
    }
    void flagUnless(bool usual, Names key, bool value) {
        if (value != usual) m_isComplete &= m_properties.setBool(joinMacroKey(key), value);
    }

    void writeBaseProfile(const std::string& index, const Vor_PrPl& profile) {
        text({"profile", index}, profile.sectionName);
        textUnlessEmpty({"profile", index, "material"}, profile.material);
        textUnlessEmpty({"profile", index, "member"}, profile.memberName);
    }

    void writeStandards(const TabMappingData& standards) {
        for (int row = 0; row < standards.length(); ++row) {
            const std::string index = std::to_string(row);
            text({"standard", index}, standards.standardsNames()[row]);
            textUnlessEmpty({"standard", index, "key"}, standards.mappingKeys()[row]);
        }
    }

    void writeModule(const Vor_Module& module) {
        const Vor_String& name = module.name();
        text({"module", name}, macroWordOf(moduleWords, module.type()));
        textUnlessEmpty({"module", name, "group"}, module.groupName());
        for (const ConstraintVariable& variable : module.variables()) {
            writeVariable(name, variable);
        }
        for (const CutConstraint& cut : module.cuts()) writeCut(name, cut);
        if (const Vor_BoltModule* bolts = asBoltModule(&module)) writeBolts(name, *bolts);
        if (const Vor_ProfModule* profiles = asProfModule(&module)) {
            for (const Vor_PrPl& placement : profiles->profArray()) {
                writePlacement(name, placement);
            }
        }
    }

    void writeVariable(const Vor_String& module, const ConstraintVariable& variable) {
        const Vor_String& name = variable.name;
        number({"module", module, "var", name}, variable.value);
        flagUnless(true, {"module", module, "var", name, "dialog"}, variable.inDialog);
        flagUnless(true, {"module", module, "var", name, "editable"}, variable.isEditable);
        if (variable.flex == Vor_FlexState::none) return;
        text({"module", module, "var", name, "flex"}, macroWordOf(flexWords, variable.flex));
    }

    void writeCut(const Vor_String& module, const CutConstraint& cut) {
        text({"module", module, "cut", cut.name}, cutTypeName(cut.type));
        AcArray<TwCutOffsetType> offsets;
        getCutOffsets(cut.type, offsets);
        for (const TwCutOffsetType offset : offsets) {
            number({"module", module, "cut", cut.name, cutOffsetName(offset)},
                   cut.offsets[static_cast<size_t>(offset)]);
        }
    }

    void writeBolts(const Vor_String& module, const Vor_BoltModule& bolts) {
        number({"module", module, "diameter"}, bolts.boltDiameter());
        number({"module", module, "holeOffset"}, bolts.holeOffset());
        for (const AcDbObjectId id : bolts.getPatternIds()) {
            writePattern(module, *bolts.getPattern(id));
        }
    }

    void writePattern(const Vor_String& module, const Vor_BoltPattern& pattern) {
        const Vor_String& name = pattern.name;
        text({"module", module, "pattern", name}, macroWordOf(patternWords, pattern.type));
        number({"module", module, "pattern", name, "count1"}, pattern.nrBolts1);
        flagUnless(false, {"module", module, "pattern", name, "reverse1"}, pattern.reverseStart1);
        if (!pattern.hasSecondDirection()) return;
        number({"module", module, "pattern", name, "count2"}, pattern.nrBolts2);
        flagUnless(false, {"module", module, "pattern", name, "reverse2"}, pattern.reverseStart2);
    }

    void writePlacement(const Vor_String& module, const Vor_PrPl& placement) {
        const Vor_String& name = placement.name;
        text({"module", module, "placement", name}, placement.sectionName);
        textUnlessEmpty({"module", module, "placement", name, "material"}, placement.material);
        textUnlessEmpty({"module", module, "placement", name, "member"}, placement.memberName);
    }

    Vor_PropertyList m_properties;
    bool m_isComplete = true;
};

}  // namespace

ErrorStatus writeMacro(const Vor_DbMacro& dbMacro, Vor_PropertyList& properties,
                       Vor_String& message) {
    const Vor_Macro* macro = dbMacro.macroRead();
    if (!macro) {
        message = "there is no macro to write";
        return Acad::eInvalidInput;
    }
    MacroWriter writer;
    writer.write(dbMacro, *macro);
    if (!writer.isComplete()) {
        message = "the macro has more values than a file holds; split it into smaller macros";
        return Acad::eInvalidInput;
    }
    properties = std::move(writer.properties());
    return Acad::eOk;
}
