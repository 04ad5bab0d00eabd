// The pool of hidden dialogs and the runs that use it.
#include <gtest/gtest.h>

#include "core_api/macros/macro_data.h"
#include "core_api/timers.h"
#include "frame/tw_ss_dlgs_mgr.h"
#include "macros/sample_macro.h"
#include "mapping/start_dlg_standards_ss.h"
#include "platform/host/host.h"
#include "platform/window/message_box.h"
#include "standards/run_observer.h"
#include "standards/standards_dialog.h"
#include "support/standard_file.h"

namespace {

TEST(Pool, HandsOutTheFirstFreeDialogAndGrowsOnlyWhenAllAreInUse) {
    TwSSDlgsMgr pool;
    StandardsDialog* first = pool.getDlg();
    StandardsDialog* second = pool.getDlg();
    ASSERT_TRUE(first && second && first != second);
    EXPECT_EQ(first->number(), 253);
    EXPECT_EQ(pool.releaseDlg(first), Acad::eOk);
    EXPECT_EQ(pool.getDlg(), first);
    EXPECT_EQ(pool.length(), 2);
    int stranger = 0;
    EXPECT_EQ(pool.releaseDlg(&stranger), Acad::eInvalidInput);
    EXPECT_EQ(pool.releaseDlg(nullptr), Acad::eInvalidInput);
    EXPECT_EQ(pool.releaseDlg(second), Acad::eOk);
    EXPECT_EQ(pool.releaseDlg(first), Acad::eOk);
    EXPECT_EQ(pool.length(), 2);
    pool.destroyAll();
    EXPECT_EQ(pool.length(), 0);
    EXPECT_NE(pool.getDlg(), nullptr);
}

TwDlgStandardsData variablesRun(const std::string& name, std::initializer_list<TwVarCell> cells) {
    TwDlgStandardsData data;
    data.mode = TwDlgStandardsData::Mode::variables;
    data.standardsName = name;
    for (const TwVarCell& cell : cells) data.varCells.append(cell);
    return data;
}
TwVarCell in(const char* value, TwValueType type = TwValueType::Double) {
    return {"in", TwCellType::input, type, value};
}
TwVarCell out(const char* value = "") {
    return {"out", TwCellType::output, TwValueType::Double, value};
}

class Runs : public ::testing::Test {
  protected:
    TemporaryLibrary library;
};

TEST_F(Runs, VariablesAreBoundByPositionWithLocalsSkipped) {
    library.writeStandard("Sum", documentOf({{"Local"},
                                             {"Double L"},
                                             {"Input"},
                                             {"Double A", "String S"},
                                             {"Output"},
                                             {"Double Sum", "Int Whole", "String Text"},
                                             {"Calc"},
                                             {"L=A*2"},
                                             {"Sum=L+0.5"},
                                             {"Whole=A/2"},
                                             {"Text=S&\"!\""},
                                             {"Sum=Sum+L"}}));
    TwDlgStandardsData data =
        variablesRun("Sum", {in("2.5"), in("x"), out("7"), out(), out(), in("9")});
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(StartDlgStandardsSS(data)) << lastRunFailure().str();
        EXPECT_EQ(data.varCells[2].value(), "10.5");
        EXPECT_EQ(data.varCells[3].value(), "1.25");  // as the equation gave it
        EXPECT_EQ(data.varCells[4].value(), "x!");
        EXPECT_EQ(data.varCells[5].value(), "9");
    }
    EXPECT_TRUE(lastRunFailure().isEmpty());
}

// Its dialogs are hidden children of that window.
TEST_F(Runs, GoOnWithoutTheHostsMainWindow) {
    struct : Host {
        CWnd* mainWindow() override { return &window; }
        void print(std::string_view) override {}
        CWnd window;
    } host;
    const HostScope scope(host);
    gSSDlgsMgr.destroyAll();
    ASSERT_TRUE(host.window.create({"Host", "", {0, 0, 800, 600}, 0, 0, true}, nullptr));
    library.writeStandard(
        "Half",
        documentOf({{"Input"}, {"Double A"}, {"Output"}, {"Double H"}, {"Calc"}, {"H=A/2"}}));
    TwDlgStandardsData data = variablesRun("Half", {in("5"), out()});
    ASSERT_TRUE(StartDlgStandardsSS(data)) << lastRunFailure().str();
    host.window.destroy();
    data = variablesRun("Half", {in("7"), out()});
    ASSERT_TRUE(StartDlgStandardsSS(data)) << lastRunFailure().str();
    EXPECT_EQ(data.varCells[1].value(), "3.5");
    EXPECT_EQ(gSSDlgsMgr.length(), 1);
    gSSDlgsMgr.destroyAll();
}

TEST_F(Runs, NothingOfOneRunIsLeftInTheNext) {
    library.writeStandard("Maybe", standardOf({"String A"}, {"String B"}, {"String L"},
                                              {"B=IF(L=\"\",B&A,\"left over\")", "L=A"}));
    TwDlgStandardsData data = variablesRun("Maybe", {in("1"), out("b")});
    ASSERT_TRUE(StartDlgStandardsSS(data));
    EXPECT_EQ(data.varCells[1].value(), "b1");
    data = variablesRun("Maybe", {in("2"), out("c")});
    ASSERT_TRUE(StartDlgStandardsSS(data));
    EXPECT_EQ(data.varCells[1].value(), "c2");
    // A standard that is changed on disk is read again.
    library.writeStandard("Maybe", standardOf({"String A"}, {"String B"}, {}, {"B=\"new\""}));
    ASSERT_TRUE(StartDlgStandardsSS(data));
    EXPECT_EQ(data.varCells[1].value(), "new");
}

TEST_F(Runs, AFailedRunLeavesTheDataAndSaysWhy) {
    library.writeStandard("Two", standardOf({"Double A"}, {"Double B"}, {}, {"B=A"}));
    library.writeStandard("NoCalc", documentOf({{"Input"}, {"Output"}, {"Double B"}}));
    struct Case {
        TwDlgStandardsData data;
        const char* reason;
    };
    TwDlgStandardsData noMacro = variablesRun("Two", {in("1"), out("2")});
    noMacro.mode = TwDlgStandardsData::Mode::macro;
    const Case cases[] = {
        {variablesRun("Missing", {in("1"), out("2")}), "Missing.tws"},
        {variablesRun("Two", {in("1")}), "no value is given for \"B\""},
        {variablesRun("Two", {in("1"), in("2")}), "the input \"in\" stands in the place"},
        {variablesRun("Two", {in("abc"), out("2")}), "\"A\" (A2) takes no value \"abc\""},
        {variablesRun("Two", {in("1"), out("abc")}), "\"B\" (A4) takes no value \"abc\""},
        {variablesRun("NoCalc", {out("2")}), "\"Calc\""},
        {noMacro, "needs the macro"},
    };
    gSSDlgsMgr.destroyAll();
    for (const Case& row : cases) {
        TwDlgStandardsData data = row.data;
        EXPECT_FALSE(StartDlgStandardsSS(data)) << row.reason;
        EXPECT_TRUE(lastRunFailure().hasSubString(row.reason, true)) << lastRunFailure().str();
        EXPECT_EQ(data.standardsName, row.data.standardsName);
        EXPECT_EQ(data.varCells.length(), row.data.varCells.length());
        for (int i = 0; i < data.varCells.length(); ++i)
            EXPECT_EQ(data.varCells[i].value(), row.data.varCells[i].value());
    }
    EXPECT_EQ(gSSDlgsMgr.length(), 1);  // given back on every exit
}

TEST_F(Runs, WithoutDeclarationsARunInVariablesModeStillCalculates) {
    struct Warnings : RunObserver {
        void warning(std::string_view text) override { last = text; }
        std::string last;
    } warnings;
    setRunObserver(&warnings);
    library.writeStandard("Odd", documentOf({{"Calc"}, {"A=1"}}));
    TwDlgStandardsData data = variablesRun("Odd", {});
    EXPECT_TRUE(StartDlgStandardsSS(data));
    setRunObserver(nullptr);
    EXPECT_NE(warnings.last.find("\"Input\""), std::string::npos);
}

TEST_F(Runs, TheFixedExampleOfTheSelfTestNeedsItsFile) {
    EXPECT_FALSE(StartDlgStandardsSStest());
    EXPECT_TRUE(lastRunFailure().hasSubString("c:\\a\\a\\a\\test.tws")) << lastRunFailure().str();
}

class MacroRuns : public Runs {
  protected:
    MacroRuns() {
        std::filesystem::create_directories(library.path() / "Connection Standards");
        TwSSMapping mapping;
        for (const TwObjectMap& object :
             {TwObjectMap("Plates", TwMapType::distance, "D1", "Width"),
              TwObjectMap("", TwMapType::genVar, "gen_Gap", "Gap"),
              TwObjectMap("Plates", TwMapType::distance, "D2", "Result"),
              TwObjectMap("Plates", TwMapType::cutRadius, "Cope", "Radius"),
              TwObjectMap("Bolts", TwMapType::patternNrBolts1, "Grid", "Count")})
            mapping.mappedObjectsWrite().append(object);
        mapping.setMappingToFile("Plate", "key");
        gSettings.current().diagnostics = true;
    }
    bool run(const std::string& key, const std::vector<std::string>& calc) {
        library.writeStandard(
            "Plate",
            standardOf({"Double Width", "Double Gap", "Double Unmapped"},
                       {"Double Result", "Double Radius", "String Count"}, {"Double Half"}, calc));
        data = TwDlgStandardsData();
        EXPECT_EQ(data.initialize(&macro, "Plate", key, &dialogData), Acad::eOk);
        data.transaction = &transaction;
        return StartDlgStandardsSS(data);
    }
    double distance(const char* name) {
        return macro.macroRead()->findModule("Plate1")->findVariable(name)->value;
    }

    Vor_DbMacro macro = sampleMacro();
    MacroData dialogData = makeMacroData(macro);
    AcTransaction transaction;
    TwDlgStandardsData data;
    std::vector<MessageBox> boxes;
    MessageListenerScope listener{[this](const MessageBox& box) {
        boxes.push_back(box);
        return true;
    }};
};

TEST_F(MacroRuns, InputsComeFromTheMacroAndOutputsGoBack) {
    ASSERT_TRUE(run("key", {"Half=Width/2", "Result=Half+Gap", "Radius=Width", "Count=\"6\""}))
        << lastRunFailure().str();
    EXPECT_NEAR(distance("D2"), 120.5 / 2 + 10.12345679, 1e-7);
    EXPECT_EQ(macro.macroRead()->findModule("Plate1")->findCut("Cope")->offsets[cutRadius], 120.5);
    int tab = 0;
    int pattern = 0;
    ASSERT_TRUE(dialogData.findTab("Bolts", tab));
    ASSERT_TRUE(dialogData.getTab(tab)->findPatternWithName("Grid", pattern));
    EXPECT_EQ(dialogData.getTab(tab)->patterns()[pattern].nrBolts(true), 6);

    ASSERT_EQ(data.varCells.length(), 7);
    EXPECT_EQ(data.varCells[0].value(), "120.5");
    EXPECT_EQ(data.varCells[6].value(), "60.25");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "The following Input variable couldn't be retrieved : \nUnmapped\nMake sure the "
              "variable exists in the macro or module.\nSpreadsheet : Plate");
}

TEST_F(MacroRuns, WithoutAMappingTheRunIsMadeWithEmptyValuesAndNothingIsWritten) {
    ASSERT_TRUE(run("key", {"Result=Width"}));  // leaves a mapping in the pooled dialog
    boxes.clear();
    ASSERT_TRUE(run("no such key", {"Result=Width+1", "Radius=5"})) << lastRunFailure().str();
    EXPECT_EQ(distance("D2"), 120.5);
    EXPECT_EQ(data.varCells[0].value(), "");
    EXPECT_EQ(data.varCells[3].value(), "1");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(MacroRuns, AnErrorInAnOutputIsToldAndTheMacroKeepsItsValue) {
    struct Output : Host {
        void print(std::string_view text) override { printed += text; }
        std::string printed;
    } host;
    const HostScope scope(host);
    ASSERT_TRUE(run("key", {"Result=1/0", "Radius=Result*2", "Count=\"8\""}));
    EXPECT_EQ(distance("D2"), 40);
    EXPECT_EQ(macro.macroRead()->findModule("Plate1")->findCut("Cope")->offsets[cutRadius], 12);
    EXPECT_NE(host.printed.find("Plate.tws:12: output \"Result\" is #DIV/0!"), std::string::npos)
        << host.printed;
    EXPECT_NE(host.printed.find("Plate.tws:13: output \"Radius\" is #DIV/0!"), std::string::npos);
}

TEST_F(MacroRuns, AModuleGroupIsReadByNameFromTheFirstAndWrittenInAllOfItsModules) {
    library.writeStandard(
        "Group",
        standardOf({"Int Grid.NrBolts1", "Double Any.Diameter"},
                   {"Double Any.HoleOffset", "Int Grid.ReverseStart2"}, {},
                   {"Any.HoleOffset=Any.Diameter/8+Grid.NrBolts1", "Grid.ReverseStart2=1"}));
    ASSERT_EQ(data.initialize(&macro, "Group", "Module.Bolts", &dialogData), Acad::eOk);
    data.transaction = &transaction;
    ASSERT_TRUE(StartDlgStandardsSS(data)) << lastRunFailure().str();
    int tab = 0;
    ASSERT_TRUE(dialogData.findTab("Bolts", tab));
    EXPECT_EQ(dialogData.getTab(tab)->getBoltData()->holeOffset(), "6");
    for (const char* module : {"Bolts1", "Bolts2"}) {
        const auto* bolts = asBoltModule(macro.macroRead()->findModule(module));
        EXPECT_TRUE(bolts->findPattern("Grid")->reverseStart2) << module;
    }
    EXPECT_TRUE(boxes.empty());
}

TEST_F(MacroRuns, ATransactionIsNeeded) {
    library.writeStandard("Plate", standardOf({}, {"Double Result"}, {}, {"Result=1"}));
    ASSERT_EQ(data.initialize(&macro, "Plate", "key", &dialogData), Acad::eOk);
    EXPECT_FALSE(StartDlgStandardsSS(data));
    EXPECT_EQ(distance("D2"), 40);
}

TEST_F(MacroRuns, ProfilingMeasuresEveryPhase) {
    resetTimers();
    gProfiling = true;
    ASSERT_TRUE(run("key", {"Half=Width/2", "Result=Half"}));
    TwDlgStandardsData variables =
        variablesRun("Plate", {in("1"), in("1"), in("1"), out(), out(), out()});
    ASSERT_TRUE(StartDlgStandardsSS(variables));
    gProfiling = false;
    const std::string inside[] = {"gCalcCellCalcNativeFunctions"};  // no child was called
    for (const Vor_Timer* timer : allTimers())
        EXPECT_EQ(timer->count() > 0, timer->name() != inside[0]) << timer->name();
}

}  // namespace
