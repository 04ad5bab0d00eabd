#include "bill/macro_parts.h"

#include <array>
#include <span>

#include "core_api/sections/section_tables.h"

namespace {

using Names = std::span<const std::string_view>;

// English, Dutch, German, French; Windows-1252.
constexpr std::array<std::string_view, 5> lengthNames = {"Length", "Lengte",
                                                         "L\xE4"
                                                         "nge",
                                                         "Laenge", "Longueur"};
constexpr std::array<std::string_view, 5> heightNames = {"Height", "Hoogte",
                                                         "H\xF6"
                                                         "he",
                                                         "Hoehe", "Hauteur"};
constexpr std::array<std::string_view, 4> widthNames = {"Width", "Breedte", "Breite", "Largeur"};
constexpr std::array<std::string_view, 5> thicknessNames = {"Thickness", "Dikte", "Dicke",
                                                            "\xC9"
                                                            "paisseur",
                                                            "Epaisseur"};

constexpr int nameDecimals = 3;  // of sizes in names: "PL 12.5"

/// 0 when the module has no variable of these names, or one that is no size.
double sizeOf(const Vor_Module& module, Names names) {
    for (const std::string_view name : names) {
        const ConstraintVariable* variable = module.findVariable(name);
        if (variable && variable->value > 0) return variable->value;
    }
    return 0;
}

class PartCollector {
  public:
    PartCollector(const Vor_DbMacro& macro, const MassPerMetre& massPerMetre)
        : m_macro(macro), m_massPerMetre(massPerMetre) {}

    std::vector<Vor_BillPart> collect() {
        const Vor_Macro* macro = m_macro.macroRead();
        for (int i = 0; macro && i < macro->moduleCount(); ++i) add(macro->module(i));
        return std::move(m_parts);
    }

  private:
    void add(const Vor_Module& module) {
        if (module.type() == Vor_ModuleType::plate) addPlate(module, module.name(), {});
        if (const Vor_ProfModule* profiles = asProfModule(&module)) addProfiles(*profiles);
        if (const Vor_BoltModule* bolts = asBoltModule(&module)) addBolts(*bolts);
    }

    void addPlate(const Vor_Module& module, const Vor_String& name, const Vor_String& material) {
        Vor_BillPart plate;
        plate.kind = BillPartKind::plate;
        plate.name = name;
        plate.material = material.isEmpty() ? plateMaterial() : material;
        plate.length = sizeOf(module, lengthNames);
        if (plate.length == 0) plate.length = sizeOf(module, heightNames);
        plate.width = sizeOf(module, widthNames);
        plate.thickness = sizeOf(module, thicknessNames);
        plate.section = "PL";
        if (plate.thickness > 0)
            plate.section += " " + Vor_String(plate.thickness, nameDecimals).str();
        plate.mass = plateMass(plate.length, plate.width, plate.thickness);
        m_parts.push_back(std::move(plate));
    }

    void addProfiles(const Vor_ProfModule& module) {
        for (const Vor_PrPl& placement : module.profArray()) {
            const Vor_String& name =
                placement.memberName.isEmpty() ? placement.name : placement.memberName;
            const bool isKnown = static_cast<bool>(gSectionTables.find(placement.sectionName));
            if (!isKnown && sizeOf(module, thicknessNames) > 0) {
                addPlate(module, name, placement.material);
                continue;
            }
            Vor_BillPart profile;
            profile.kind = BillPartKind::profile;
            profile.name = name;
            profile.section = placement.sectionName;
            profile.material = placement.material;
            profile.length = sizeOf(module, lengthNames);
            const std::optional<double> mass = m_massPerMetre(placement.sectionName);
            if (mass && profile.length > 0) profile.mass = *mass * profile.length / 1000;
            m_parts.push_back(std::move(profile));
        }
    }

    void addBolts(const Vor_BoltModule& module) {
        Vor_BillPart bolts;
        bolts.kind = BillPartKind::bolt;
        bolts.name = module.name();
        bolts.diameter = module.boltDiameter();
        bolts.section = "M" + Vor_String(bolts.diameter, nameDecimals);
        bolts.material = generalText("gen_BoltClass");
        bolts.length = sizeOf(module, lengthNames);
        bolts.mass = boltMass(bolts.diameter, bolts.length);
        bolts.count = 0;
        for (const AcDbObjectId id : module.getPatternIds()) {
            const Vor_BoltPattern& pattern = *module.getPattern(id);
            bolts.count += static_cast<long long>(pattern.nrBolts1) *
                           (pattern.hasSecondDirection() ? pattern.nrBolts2 : 1);
        }
        if (bolts.count > 0) m_parts.push_back(std::move(bolts));
    }

    Vor_String plateMaterial() const {
        const Vor_String grade = generalText("gen_SteelClass");
        if (!grade.isEmpty()) return "S" + grade;
        const Vor_PrPl* first = m_macro.baseProf(0);
        return first ? first->material : Vor_String();
    }

    /// Empty when there is no such variable or it was never set.
    Vor_String generalText(std::string_view name) const {
        const std::optional<double> value = m_macro.macroRead()->generalVariableValue(name);
        return value && *value > 0 ? Vor_String(*value, nameDecimals) : Vor_String();
    }

    const Vor_DbMacro& m_macro;
    const MassPerMetre& m_massPerMetre;
    std::vector<Vor_BillPart> m_parts;
};

}  // namespace

std::vector<Vor_BillPart> partsOfMacro(const Vor_DbMacro& macro, const MassPerMetre& massPerMetre) {
    return PartCollector(macro, massPerMetre).collect();
}
