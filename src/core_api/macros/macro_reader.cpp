// Builds a macro from its properties, one line after the other. The model checks what it is given;
// the reader says in words what was refused.
#include <string>

#include "core_api/macros/macro_file.h"
#include "core_api/macros/macro_item_kinds.h"
#include "core_api/macros/macro_key.h"
#include "core_api/text/text_helpers.h"

namespace macro_file {

namespace {

/// An index as it stands in a key: whole, without leading zeros. -1 for anything else.
int indexFrom(const std::string& text) {
    const int index = textToInt(text);
    return index >= 0 && text == std::to_string(index) ? index : -1;
}

std::unique_ptr<Vor_Module> makeModule(Vor_ModuleType type, const std::string& name) {
    if (type == Vor_ModuleType::bolt) return std::make_unique<Vor_BoltModule>(name);
    if (type == Vor_ModuleType::profile) return std::make_unique<Vor_ProfModule>(name);
    return std::make_unique<Vor_PlainModule>(name, type);
}

class MacroReader {
  public:
    Damage take(const Property& property) {
        const std::vector<std::string> names = splitMacroKey(property.key);
        if (names.empty()) return "a name in the key is empty; write a dot inside a name twice";
        if (names[0] == "general" && names.size() == 2) return takeGeneral(names[1], property);
        if (names[0] == "profile") return takeBaseProfile(names, property);
        if (names[0] == "standard") return takeStandard(names, property);
        if (names[0] == "module") return takeModule(names, property);
        return unknownKey();
    }

    Vor_DbMacro result() {
        m_macro.setStandards(m_standards);
        m_dbMacro.setMacro(std::move(m_macro));
        return std::move(m_dbMacro);
    }

  private:
    Damage takeGeneral(const std::string& name, const Property& property) {
        double value = 0;
        if (Damage damage = readNumber(property, value); !damage.empty()) return damage;
        return refusedAs(m_macro.addGeneralVariable(name, value),
                         nameDamage("the general variable", name));
    }

    /// Whether `names` declares the row that comes next (two names) or continues one (three).
    static Damage checkRow(Names names, int rows) {
        if (names.size() != 2 && names.size() != 3) return unknownKey();
        const int index = indexFrom(names[1]);
        const bool good = names.size() == 2 ? index == rows : index >= 0 && index < rows;
        if (good) return {};
        return names[0] + "s are numbered from 0 without gaps; the next new one is " +
               std::to_string(rows);
    }

    Damage takeBaseProfile(Names names, const Property& property) {
        const int rows = m_dbMacro.mapBaseProfIds().length();
        if (Damage damage = checkRow(names, rows); !damage.empty()) return damage;
        if (names.size() == 2) {
            Vor_PrPl profile;
            if (Damage damage = readText(property, profile.sectionName); !damage.empty()) {
                return damage;
            }
            return refusedAs(m_dbMacro.addBaseProf(profile),
                             "there are too many base profiles; remove some");
        }
        const int index = indexFrom(names[1]);
        Vor_PrPl profile = *m_dbMacro.baseProf(index);
        if (Damage damage = readPlacementText(property, names[2], profile); !damage.empty()) {
            return damage;
        }
        return refusedAs(m_dbMacro.setBaseProf(index, profile), outOfRange);
    }

    Damage takeStandard(Names names, const Property& property) {
        if (Damage damage = checkRow(names, m_standards.length()); !damage.empty()) return damage;
        Vor_String text;
        if (Damage damage = readText(property, text); !damage.empty()) return damage;
        if (names.size() == 2) {
            return refusedAs(m_standards.insertRow(m_standards.length(), text),
                             "there are too many standards; remove some");
        }
        if (names[2] != "key") return unknownKey();
        const int row = indexFrom(names[1]);
        return refusedAs(m_standards.setRow(row, m_standards.standardsNames()[row], text),
                         outOfRange);
    }

    Damage takeModule(Names names, const Property& property) {
        if (names.size() == 2) return declareModule(names[1], property);
        if (names.size() < 3 || names.size() > 5) return unknownKey();
        // The lines of a module stand together as a rule, so the one before is asked first.
        if (!m_module || !m_module->name().equal(names[1])) {
            m_module = m_macro.findModuleWrite(names[1]);
        }
        if (!m_module) {
            return "there is no module " + quoted(names[1]) +
                   " above; write the line with its kind first";
        }
        if (names.size() == 3) return takeModuleField(names[2], property);
        return takeItem(names.subspan(2), property);
    }

    Damage declareModule(const std::string& name, const Property& property) {
        Vor_ModuleType type{};
        if (Damage damage = readWord(property, moduleWords, type); !damage.empty()) return damage;
        return refusedAs(m_macro.addModule(makeModule(type, name)), nameDamage("the module", name));
    }

    Damage takeModuleField(const std::string& field, const Property& property) {
        if (field == "group") {
            Vor_String group;
            if (Damage damage = readText(property, group); !damage.empty()) return damage;
            return refusedAs(m_module->setGroupName(group), nameDamage("the group", group));
        }
        Vor_BoltModule* bolts = asBoltModule(m_module);
        if (!bolts || (field != "diameter" && field != "holeOffset")) return unknownKey();
        double value = 0;
        if (Damage damage = readNumber(property, value); !damage.empty()) return damage;
        return field == "diameter" ? refusedAs(bolts->setBoltDiameter(value),
                                               "a bolt diameter is above 0; correct it")
                                   : refusedAs(bolts->setHoleOffset(value),
                                               "a hole offset is 0 or more; correct it");
    }

    /// `names` is the kind of item, its name and perhaps a field of it.
    Damage takeItem(Names names, const Property& property) {
        const ItemKind* kind = itemKindOf(names[0]);
        if (!kind) return unknownKey();
        if (!kind->fits(*m_module)) {
            return "a " + std::string(macroWordOf(moduleWords, m_module->type())) +
                   " module has no " + names[0] + "; remove the line or change the kind";
        }
        if (names.size() == 2) return kind->declare(*m_module, names[1], property);
        if (!kind->has(*m_module, names[1])) {
            return "there is no " + names[0] + " " + quoted(names[1]) +
                   " above; write the line that ends in this name first";
        }
        return kind->takePart(*m_module, names[1], names[2], property);
    }

    Vor_DbMacro m_dbMacro;
    Vor_Macro m_macro;
    TabMappingData m_standards;
    Vor_Module* m_module = nullptr;  // the one that the line before belonged to
};

Damage checkVersion(const Vor_PropertyList& properties) {
    if (properties.length() == 0 || !(properties[0].key == "macro.version")) {
        return "this is not a macro file; its first property is macro.version";
    }
    if (!(properties[0].value == "1")) {
        return "this version of macro files is not known; use a newer program";
    }
    return {};
}

}  // namespace

}  // namespace macro_file

ErrorStatus readMacro(const Vor_PropertyList& properties, std::string_view source,
                      Vor_DbMacro& macro, Vor_String& message) {
    using namespace macro_file;
    const auto fail = [&](int line, const Damage& damage) {
        message = std::string(source) + ":" + std::to_string(line) + ": " + damage;
        return Acad::eInvalidInput;
    };
    if (const Damage damage = checkVersion(properties); !damage.empty()) return fail(2, damage);
    MacroReader reader;
    for (int index = 1; index < properties.length(); ++index) {
        const Property& property = properties[index];
        const Damage damage = reader.take(property);
        if (!damage.empty()) return fail(property.line, damage);
    }
    macro = reader.result();
    return Acad::eOk;
}
