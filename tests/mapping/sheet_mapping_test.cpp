// Mappings of whole spreadsheets: their file, their comparison, their lists.
#include <gtest/gtest.h>

#include "core_api/macros/macro_data.h"
#include "core_api/settings.h"
#include "macros/sample_macro.h"
#include "mapping/mapping_file.h"
#include "mapping/tw_dlg_standards_data.h"
#include "mapping/tw_var_cells.h"
#include "support/temporary_folder.h"

namespace {

const TwObjectMap gap("Plate", TwMapType::distance, "D1", "Gap");
const TwObjectMap bolts("Bolts", TwMapType::patternNrBolts1, "Row", "Count");
const char gapItem[] =
    "Gap\x83Plate\x95"
    "Distance D1";
const char boltsItem[] =
    "Count\x83"
    "Bolts\x95PatternNrBolts1 Row";

TwSSMapping mappingOf(std::initializer_list<TwObjectMap> objects) {
    TwSSMapping mapping;
    for (const TwObjectMap& object : objects) mapping.mappedObjectsWrite().append(object);
    return mapping;
}

class MappingFile : public ::testing::Test {
  protected:
    MappingFile() {
        gSettings.setLibDir(library.inside());
        std::filesystem::create_directory(library.path() / "Connection Standards");
    }
    ~MappingFile() override { gSettings.setLibDir(""); }

    void write(const std::string& content) {
        library.write("Connection Standards/Plate.map", content);
    }
    std::string content() { return library.read("Connection Standards/Plate.map"); }

    TemporaryFolder library;
};

TEST_F(MappingFile, TheLineOfTheKeyIsReadAndEverythingElsePassedOver) {
    const std::string items = std::string(gapItem) +
                              "\xBFnonsense\xBFX\x83Plate\x95"
                              "Odd D\xBF" +
                              boltsItem;
    struct Case {
        std::string file;
        const char* key;
        bool found;
        int objects;  // one is there before
    };
    const Case cases[] = {
        {"Mapping version 1.0\nk=" + items + "\n", "k", true, 2},
        {"k=" + items, "k", true, 2},
        {"some MAPPING of VERSION 9\r\nk=" + items + "\r\n", "k", true, 2},
        {"Mapping version 1.0\nk=" + items + "\n", "K", false, 1},
        {"Mapping version 1.0\nk=\n", "k", true, 0},
        {"Mapping version 1.0\nno equals sign\n", "", false, 0},
        {"Mapping version 1.0\n", "k", true, 1},
        {"", "k", true, 1},
        {"h\n" + std::string("a=b=") + gapItem, "a", true, 1},
    };
    for (const Case& row : cases) {
        write(row.file);
        TwSSMapping mapping = mappingOf({gap});
        EXPECT_EQ(mapping.getMappingFromFile("Plate", row.key) == Acad::eOk, row.found) << row.file;
        EXPECT_EQ(mapping.mappedObjects().length(), row.objects) << row.file;
    }
    TwSSMapping mapping = mappingOf({gap});
    EXPECT_EQ(mapping.getMappingFromFile("Missing", "k"), Acad::eInvalidInput);
    EXPECT_EQ(mapping.mappedObjects().length(), 1);
}

TEST_F(MappingFile, SavingMovesAChangedLineToTheEndAndLeavesAnEqualOneAlone) {
    ASSERT_EQ(mappingOf({gap}).setMappingToFile("Plate", "first"), Acad::eOk);
    ASSERT_EQ(mappingOf({bolts}).setMappingToFile("Plate", "second"), Acad::eOk);
    const std::string header = "Mapping version 1.0\n";
    const std::string first = std::string("first=") + gapItem + "\n";
    const std::string second = std::string("second=") + boltsItem + "\n";
    EXPECT_EQ(content(), header + first + second);

    write("odd header\n" + first + second);
    ASSERT_EQ(mappingOf({gap}).setMappingToFile("Plate", "first"), Acad::eOk);
    EXPECT_EQ(content(), "odd header\n" + first + second);

    const std::string both = std::string("first=") + gapItem + "\xBF" + boltsItem + "\n";
    write(header + first + second);
    ASSERT_EQ(mappingOf({gap, bolts}).setMappingToFile("Plate", "first"), Acad::eOk);
    EXPECT_EQ(content(), header + second + both);
    ASSERT_EQ(mappingOf({gap}).setMappingToFile("Plate", "first"), Acad::eOk);
    EXPECT_EQ(content(), header + second + first);
}

TEST_F(MappingFile, AmbiguousAndUnusableVariablesAreLeftOut) {
    const TwObjectMap other("Plate", TwMapType::distance, "D2", "GAP");
    const TwObjectMap colon("Plate", TwMapType::distance, "D3", "a:b");
    const TwObjectMap question("Plate", TwMapType::distance, "D3", "why?");
    const TwObjectMap none("Plate", TwMapType::none, "D4", "None");
    ASSERT_EQ(mappingOf({gap, colon, bolts, other, question, none}).setMappingToFile("Plate", "k"),
              Acad::eOk);
    EXPECT_EQ(content(), std::string("Mapping version 1.0\nk=") + boltsItem + "\n");
}

TEST_F(MappingFile, AFileThatCannotBeReadIsNotOverwritten) {
    const std::string big(40 << 20, 'x');  // beyond what text files may be
    write(big);
    EXPECT_EQ(mappingOf({gap}).setMappingToFile("Plate", "k"), Acad::eInvalidInput);
    EXPECT_EQ(content().size(), big.size());
}

TEST_F(MappingFile, TheFirstLineWithTheSameMappingNamesTheKey) {
    write(std::string("Mapping version 1.0\nbad line\na=") + boltsItem + "\nb=" + gapItem +
          "\nc=" + gapItem + "\n");
    Vor_String key = "none";
    EXPECT_TRUE(mappingOf({gap}).hasSameMapping("Plate", key));
    EXPECT_EQ(key, "b");
    key = "kept";
    EXPECT_FALSE(mappingOf({}).hasSameMapping("Missing", key));
    EXPECT_EQ(key, "kept");
}

TEST(SheetMapping, ComparesEntriesByVariableTypeAndPlace) {
    const TwObjectMap elsewhere("Plate", TwMapType::distance, "D9", "Gap");
    const TwObjectMap kindless("Plate", TwMapType::none, "D1", "Gap");
    EXPECT_TRUE(mappingOf({gap}).isEqual(mappingOf({bolts, gap})));
    EXPECT_FALSE(mappingOf({bolts, gap}).isEqual(mappingOf({gap})));
    EXPECT_FALSE(mappingOf({gap}).isEqual(mappingOf({elsewhere})));
    EXPECT_FALSE(mappingOf({kindless}).isEqual(mappingOf({kindless})));
    int missing = -1;
    EXPECT_EQ(mappingOf({gap, bolts, elsewhere}).isCompatible(mappingOf({bolts}), missing),
              Acad::eOk);
    EXPECT_EQ(missing, 2);
    int index = 7;
    EXPECT_EQ(mappingOf({bolts, gap}).findSSVar("gap", TwValueType::Double, index), Acad::eOk);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(mappingOf({bolts, gap}).findSSVar("gap", TwValueType::Int, index),
              Acad::eInvalidInput);
    EXPECT_EQ(index, 1);
}

TEST(SheetMapping, SortsByCategoryWithABoundaryBeforeEachGroup) {
    TwSSMapping mapping;
    for (const int category : {0, 3, 2})
        mapping.mappedObjectsWrite().append(
            TwObjectMap("G", TwMapType::distance, "D", {}, category));
    AcArray<int> indexes{0, 1, 2};
    EXPECT_EQ(mapping.sortValidVars(indexes, {2, 0}), Acad::eOk);
    EXPECT_EQ(indexes, (AcArray<int>{-1, 2, -1, 0, 1}));
    EXPECT_EQ(mapping.sortValidVars(indexes, {}), Acad::eInvalidInput);
}

TEST(SheetMapping, ListsEverythingInAMacroThatCanBeMapped) {
    Vor_DbMacro macro = sampleMacro();
    TwSSMapping all;
    ASSERT_EQ(all.initAllVarsFromMacro(&macro, nullptr), Acad::eOk);
    std::string listed;
    for (const TwObjectMap& object : all.mappedObjects())
        listed += object.group().str() + "/" + std::string(mapTypeName(object.kind())) + "/" +
                  object.objectName().str() + "/" + std::to_string(object.category()) + "\n";
    EXPECT_EQ(listed,
              "Plates/Distance/D1/0\nPlates/Distance/D2/1\nPlates/Distance/Dist.x/3\n"
              "Plates/CutOffset/Cope/0\nPlates/CutLengthOffset/Cope/0\nPlates/CutRadius/Cope/0\n"
              "Plates/CutChamferOffset1/Edge/0\nPlates/CutChamferOffset2/Edge/0\n"
              "Bolts/BoltsDiameter//0\nBolts/BoltsHoleOffset//0\n"
              "Bolts/PatternNrBolts1/Grid/0\nBolts/PatternReverseStart1/Grid/0\n"
              "Bolts/PatternNrBolts2/Grid/0\nBolts/PatternReverseStart2/Grid/0\n"
              "Bolts/PatternNrBolts1/Row/0\nBolts/PatternReverseStart1/Row/0\n"
              "Bolts/BoltsDiameter//0\nBolts/BoltsHoleOffset//0\n"
              "Bolts/PatternNrBolts1/Grid/0\nBolts/PatternReverseStart1/Grid/0\n"
              "Bolts/PatternNrBolts2/Grid/0\nBolts/PatternReverseStart2/Grid/0\n"
              "Bolts/PatternNrBolts1/Row/0\nBolts/PatternReverseStart1/Row/0\n"
              "Braces/OwnedMemberName/Left/0\nBraces/OwnedMemberName/Right/0\n"
              "/PrPlName/Prof0/3\n/PrPlMaterial/Prof0/3\n"
              "/PrPlName/Prof1/3\n/PrPlMaterial/Prof1/3\n"
              "/GenVar/gen_Gap/0\n");
    AcArray<int> texts;
    all.getValidVars(true, TwValueType::String, texts);
    EXPECT_EQ(texts.length(), 6 + 2 + 4);
    Vor_DbMacro empty;
    EXPECT_EQ(all.initAllVarsFromMacro(&empty, nullptr), Acad::eInvalidInput);
    EXPECT_EQ(all.initAllVarsFromMacro(nullptr, nullptr), Acad::eInvalidInput);
}

TEST(VariableCells, TakeInputsFromTheGroupAndLeaveLocalsEmpty) {
    Vor_DbMacro macro = sampleMacro();
    MacroData dialogData = makeMacroData(macro);
    TwDlgStandardsData data;
    ASSERT_EQ(data.initialize(&macro, "Plate", "Module.Plates", &dialogData), Acad::eOk);
    TwVarCells cells;
    for (const auto& [name, type] :
         {std::pair("D1", TwCellType::input), std::pair("D9", TwCellType::input),
          std::pair("D9", TwCellType::output), std::pair("D2", TwCellType::local)})
        cells.append(TwVarCell(name, type, TwValueType::Double, "5"));
    Vor_StringArray unread;
    ASSERT_EQ(cells.getFromMacro(data, &unread), Acad::eOk);
    EXPECT_EQ(unread, Vor_StringArray{"D9"});
    EXPECT_EQ(cells[0].value(), "120.5");
    EXPECT_EQ(cells[1].value(), "5");
    EXPECT_EQ(cells[3].value(), "") << "not the distance of the same name";
}

TEST(StandardsData, AModuleKeyNamesItsGroup) {
    Vor_DbMacro macro = sampleMacro();
    MacroData dialogData;
    struct Case {
        const char* key;
        const char* group;
    };
    for (const Case& row : {Case{"Module.Plates", "Plates"}, Case{"Module.", ""},
                            Case{"Module.a.b", "a.b"}, Case{"Modules", ""}, Case{"xyz", ""}}) {
        TwDlgStandardsData data;
        data.moduleName = "old";
        ASSERT_EQ(data.initialize(&macro, "Plate", row.key, &dialogData), Acad::eOk);
        EXPECT_EQ(data.moduleName, row.group) << row.key;
        EXPECT_EQ(data.mappingKey, row.key);
    }
    TwDlgStandardsData data;
    EXPECT_EQ(data.initialize(nullptr, "Plate", "k", &dialogData), Acad::eInvalidInput);
    EXPECT_EQ(data.initialize(&macro, "Plate", "k", nullptr), Acad::eInvalidInput);
    EXPECT_TRUE(data.standardsName.isEmpty());
}

}  // namespace
