// Which pieces a macro gives, and how heavy they are.
#include "bill/macro_parts.h"

#include <gtest/gtest.h>

#include "core_api/macros/macro_file.h"
#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "macros/sample_macro.h"
#include "sections/section_area.h"
#include "test_folders.h"

namespace {

std::optional<double> massOf(std::string_view section) {
    return sectionMass(section);
}

class MacroParts : public testing::Test {
  protected:
    MacroParts() : m_before(gSettings) {
        gSettings.setLibDir(VORMANT_SOURCE_DIR "/library");
        gSectionTables.reload();
    }
    ~MacroParts() override { gSettings = m_before; }

    /// "kind|name|section|material|length x width|count|mass to a thousandth" a line.
    static std::string lines(const Vor_DbMacro& macro) {
        std::string text;
        for (const Vor_BillPart& part : partsOfMacro(macro, massOf)) {
            const auto number = [](double value) { return Vor_String(value, 3).str(); };
            text += number(static_cast<int>(part.kind)) + '|' + part.name.str() + '|' +
                    part.section.str() + '|' + part.material.str() + '|' + number(part.length) +
                    'x' + number(part.width) + '|' + std::to_string(part.count) + '|' +
                    (part.mass ? number(*part.mass) : "?") + '\n';
        }
        return text;
    }
    static Vor_DbMacro librarySample(const char* name) {
        Vor_DbMacro macro;
        Vor_String message;
        EXPECT_EQ(loadMacro(gSettings.libDir() + "Macros\\" + name + ".macro", macro, message),
                  Acad::eOk)
            << message.str();
        return macro;
    }

  private:
    Vor_Settings m_before;
};

TEST_F(MacroParts, PlatesProfilesAndBoltsAreFoundWeldsAreNone) {
    EXPECT_EQ(lines(librarySample("EndPlate")),
              "0|Plate|PL 10|S275|200x150|1|2.355\n"
              "2|Bolts|M20|8.8|0x0|4|?\n");
    EXPECT_EQ(lines(librarySample("FinPlate")),
              "0|PL 8x100x200|PL 8|S275|200x100|1|1.256\n"
              "2|Bolts|M20|8.8|0x0|2|?\n");
    EXPECT_EQ(lines(librarySample("BasePlate")),
              "0|Plate|PL 20|S235|300x300|1|14.13\n"
              "2|Anchors|M20||0x0|4|?\n");
}

TEST_F(MacroParts, SizesAreFoundByTheirNamesInEveryLanguage) {
    Vor_Macro macro;
    const auto plate = [&](const char* name, const char* length, const char* width,
                           const char* thickness) {
        auto module = std::make_unique<Vor_PlainModule>(name, Vor_ModuleType::plate);
        module->addVariable({length, 1000});
        module->addVariable({width, 100});
        module->addVariable({thickness, 12.5});
        macro.addModule(std::move(module));
    };
    plate("a", "Lengte", "Breedte", "DIKTE");
    plate("b", "H\xF6he", "Breite", "Dicke");
    plate("c", "Longueur", "Largeur", "\xC9paisseur");
    plate("d", "Length", "Width", "Tickness");
    auto braces = std::make_unique<Vor_ProfModule>("Braces");
    braces->addPlacement({"Left", "IPE-200", "S235", ""});
    braces->addPlacement({"Right", "IPE 200", "", "Brace"});
    braces->addPlacement({"Odd", "NOSUCH-1", "", ""});
    braces->addVariable({"length", 2000});
    macro.addModule(std::move(braces));
    auto bolts = std::make_unique<Vor_BoltModule>("Bolts");
    bolts->setBoltDiameter(20);
    bolts->addVariable({"Length", 60});
    bolts->addPattern({{}, "Grid", Vor_PatternType::grid, 10000, 10000, false, false});
    bolts->addPattern({{}, "Grid 2", Vor_PatternType::grid, 10000, 10000, false, false});
    bolts->addPattern({{}, "Grid 3", Vor_PatternType::grid, 10000, 10000, false, false});
    bolts->addPattern({{}, "Circle", Vor_PatternType::circle, 3, 0, false, false});
    for (int i = 0; i < 20; ++i)
        bolts->addPattern(
            {{}, std::to_string(i), Vor_PatternType::grid, 10000, 10000, false, false});
    macro.addModule(std::move(bolts));
    auto none = std::make_unique<Vor_BoltModule>("None");
    macro.addModule(std::move(none));
    Vor_DbMacro dbMacro(macro);
    dbMacro.addBaseProf({"", "HEA-200", "S460", ""});
    EXPECT_EQ(lines(dbMacro),
              "0|a|PL 12.5|S460|1000x100|1|9.813\n"
              "0|b|PL 12.5|S460|1000x100|1|9.813\n"
              "0|c|PL 12.5|S460|1000x100|1|9.813\n"
              "0|d|PL|S460|1000x100|1|?\n"
              "1|Left|IPE-200|S235|2000x0|1|44.8\n"
              "1|Brace|IPE 200||2000x0|1|44.8\n"
              "1|Odd|NOSUCH-1||2000x0|1|?\n"
              "2|Bolts|M20||60x0|2300000003|0.307\n");
}

TEST_F(MacroParts, AMacroWithoutContentGivesNothing) {
    EXPECT_EQ(lines(Vor_DbMacro()), "");
    EXPECT_EQ(lines(sampleMacro()).substr(0, 3), "0|P");
}

TEST(PartMass, OfBoltsIsThatOfTheirBodies) {
    // By hand for M16 x 50: shank 10053, head 0.8660 x 576 x 10 = 4988, nut (498.8 - 201.1) x 14.8
    // = 4407, washer pi/4 (900 - 289) x 3 = 1440; together 20888 mm3.
    EXPECT_NEAR(*boltMass(16, 50), 0.16397, 0.0001);
    EXPECT_FALSE(boltMass(16, 0));
    EXPECT_FALSE(boltMass(17, 50)) << "no such bolt";
    EXPECT_FALSE(plateMass(100, 0, 10));
    EXPECT_DOUBLE_EQ(*plateMass(1000, 1000, 1), 7.85);
}

}  // namespace
