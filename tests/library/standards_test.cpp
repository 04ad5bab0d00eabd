// The sample standards are sound, and the sample macros get from them what the sheets promise.
#include "cli/standards/library.h"
#include "cli/standards/standards_commands.h"
#include "core_api/files.h"
#include "core_api/macros/macro_access.h"
#include "core_api/macros/macro_data.h"
#include "core_api/macros/macro_file.h"
#include "core_api/text/text_helpers.h"
#include "library/sample_library.h"
#include "mapping/start_dlg_standards_ss.h"
#include "standards/check/standards_check.h"
#include "standards/run_observer.h"
#include "support/test_user.h"
#include "test_folders.h"

namespace {

class SampleStandards : public SampleLibrary {
  protected:
    static Vor_StringArray files() {
        return ObjectExportFindFilesRecursive(path("Connection Standards\\"), "*.tws");
    }
};

TEST_F(SampleStandards, HaveNothingThatTheCheckFinds) {
    const Vor_StringArray standards = files();
    EXPECT_GE(standards.length(), 8);
    for (const Vor_String& file : standards)
        for (const StandardsFinding& finding : checkStandard(file))
            ADD_FAILURE() << file.view() << ":" << finding.row << ": " << finding.message.view();
}

TEST_F(SampleStandards, AllHaveCheckProblemsWithTheirHandCalculation) {
    for (const Vor_String& file : files()) {
        Vor_StringArray lines;
        ObjectExportReadFile(changeExtension(file, "cases.csv"), lines);
        EXPECT_GE(lines.length(), 1 + 3) << file.view();
        EXPECT_TRUE(ObjectExportFileExists(changeExtension(file, "notes.md"))) << file.view();
    }
}

TEST_F(SampleStandards, SolveTheirCheckProblems) {
    ASSERT_TRUE(cli::openLibrary(VORMANT_SOURCE_DIR "/library"));
    EXPECT_EQ(cli::testStandards({{}, true}), cli::ExitCode::done);
}

/// Everything that a run has to say besides its results.
class Complaints : public RunObserver {
  public:
    Complaints() { setRunObserver(this); }
    ~Complaints() override { setRunObserver(nullptr); }
    void equationDone(const EquationReport& equation) override {
        if (!equation.ok) ADD_FAILURE() << equation.text << ": " << equation.message;
    }
    void warning(std::string_view text) override { ADD_FAILURE() << text; }
};

class SampleMacros : public SampleLibrary {
  protected:
    /// Runs the standard that is attached to the macro. A variable that has no place in the macro
    /// asks the user, who is not there.
    void run(const char* name) {
        Vor_String message;
        ASSERT_EQ(loadMacro(path("Macros\\") + name + ".macro", macro, message), Acad::eOk)
            << message.view();
        const TabMappingData standards = macro.macroRead()->standards();
        ASSERT_EQ(standards.length(), 1);
        MacroData data = makeMacroData(macro);
        AcTransaction transaction;
        TwDlgStandardsData request;
        request.initialize(&macro, standards.standardsNames()[0], standards.mappingKeys()[0],
                           &data);
        request.transaction = &transaction;
        TestUser user;
        Complaints complaints;
        ASSERT_TRUE(StartDlgStandardsSS(request)) << lastRunFailure().view();
        transaction.commit();
        ASSERT_EQ(data.setAllToMacro(&macro), Acad::eOk);
    }
    double distance(const char* module, const char* variable) {
        const Vor_Module* found = macro.macroRead()->findModule(module);
        return found ? found->findVariable(variable)->value : -1;
    }
    const Vor_BoltModule& bolts(const char* module) {
        return *asBoltModule(macro.macroRead()->findModule(module));
    }
    double general(const char* name) {
        return macro.macroRead()->generalVariableValue(name).value_or(-1);
    }

    Vor_DbMacro macro;
};

// The figures are those of the first check problem of each standard, which has the macro's inputs.

TEST_F(SampleMacros, EndPlateGetsItsPlateBoltsAndWeld) {
    run("EndPlate");
    EXPECT_EQ(distance("Plate", "Height"), 220);
    EXPECT_EQ(distance("Plate", "Width"), 140);
    EXPECT_EQ(distance("Plate", "Thickness"), 12);
    EXPECT_EQ(distance("Bolts", "Gauge"), 80);
    EXPECT_EQ(distance("Bolts", "Pitch"), 70);
    EXPECT_EQ(distance("Weld", "Throat"), 5);
    EXPECT_EQ(bolts("Bolts").findPattern("Rows")->nrBolts1, 3);
    EXPECT_EQ(bolts("Bolts").findPattern("Rows")->nrBolts2, 2);
    EXPECT_NEAR(general("gen_Utilisation"), 0.605, 0.001);
}

TEST_F(SampleMacros, FinPlateGetsItsBoltsAndTheNameOfItsPlate) {
    run("FinPlate");
    EXPECT_EQ(distance("Fin", "Height"), 220);
    EXPECT_EQ(distance("Fin", "Width"), 90);
    EXPECT_EQ(distance("Weld", "Throat"), 6);
    EXPECT_EQ(bolts("Bolts").findPattern("Line")->nrBolts1, 3);
    const Vor_PrPl* plate = nullptr;
    ASSERT_EQ(getNamedPrpl(macro.macroRead()->findModule("Fin"), "Plate", plate), Acad::eOk);
    EXPECT_EQ(plate->memberName.str(), "PL 10x90x220");
    EXPECT_NEAR(general("gen_Resistance"), 151.499, 0.001);
}

TEST_F(SampleMacros, BasePlateGetsItsAnchorsAndTheirWiderHoles) {
    run("BasePlate");
    EXPECT_EQ(distance("Plate", "Length"), 340);
    EXPECT_EQ(distance("Plate", "Width"), 270);
    EXPECT_EQ(distance("Plate", "Thickness"), 15);
    EXPECT_EQ(distance("Anchors", "Pitch"), 280);
    EXPECT_EQ(bolts("Anchors").boltDiameter(), 20);
    EXPECT_EQ(bolts("Anchors").holeOffset(), 4);
    EXPECT_NEAR(general("gen_Cantilever"), 30.9888, 0.0001);
}

}  // namespace
