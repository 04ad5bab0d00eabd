// Standards that call others: what is bound to what, where files are found, what is refused.
#include <gtest/gtest.h>

#include "mapping/start_dlg_standards_ss.h"
#include "standards/run_observer.h"
#include "support/standard_file.h"

namespace {

/// What an observer hears, one line an event.
class Log : public RunObserver {
  public:
    Log() { setRunObserver(this); }
    ~Log() override { setRunObserver(nullptr); }

    void runStarted(std::string_view path, int depth) override {
        add("run " + std::to_string(depth) + " " + name(path));
    }
    void equationDone(const EquationReport& report) override {
        add((report.ok ? "" : "failed ") + std::string(report.text) + " | " +
            std::string(report.formula) + " | " + std::string(report.value));
        if (!report.ok) message = report.message;
    }
    void childStarted(std::string_view path, int row, int) override {
        add("child " + name(path) + " from " + std::to_string(row));
    }
    void childEnded(bool ok) override { add(ok ? "child done" : "child failed"); }
    void warning(std::string_view text) override { add("warning " + std::string(text)); }
    void runEnded(bool ok) override { add(ok ? "done" : "not done"); }

    std::string text;
    std::string message;  ///< of the last equation that failed

  private:
    static std::string name(std::string_view path) {
        return std::string(path.substr(path.rfind('\\') + 1));
    }
    void add(const std::string& line) { text += line + "\n"; }
};

class ChildCalls : public ::testing::Test {
  protected:
    /// Runs the standard "Parent" with input T and output W. The value of W, "old" when it was not
    /// changed, "!" when the run failed.
    Vor_String run(const std::vector<std::string>& locals, const std::vector<std::string>& calc) {
        return runFile(library.writeStandard("Job/Parent",
                                             standardOf({"Double T"}, {"Double W"}, locals, calc)));
    }
    Vor_String runFile(const std::string& path) {
        TwDlgStandardsData data;
        data.mode = TwDlgStandardsData::Mode::variables;
        data.standardsName = path;
        data.varCells.append(TwVarCell("t", TwCellType::input, TwValueType::Double, "5"));
        data.varCells.append(TwVarCell("w", TwCellType::output, TwValueType::Double, "77"));
        if (!StartDlgStandardsSS(data)) return "!";
        return data.varCells[1].value() == Vor_String("77") ? Vor_String("old")
                                                            : data.varCells[1].value();
    }
    void writeDouble(const std::string& name, const char* factor = "2") {
        library.writeStandard(name, standardOf({"Double X"}, {"Double Y"}, {"Double Z"},
                                               {std::string("Z=X*") + factor, "Y=Z"}));
    }

    TemporaryLibrary library;
    Log log;
};

TEST_F(ChildCalls, ResultsReachTheOutputsOfTheParentInEveryWriting) {
    writeDouble("Base");
    for (const char* call :
         {"CallChild(\"Base.tws\", T, W)", "CallChild(Base.tws,T,W)",
          "W=CallChild( Base.tws , t , w )", "anything = callchild (Base.tws, T, W) + 1",
          "CallChild(\"Base.tws\", T, W, T, T)"})
        EXPECT_EQ(run({}, {call}), "10") << call << log.message;
    EXPECT_EQ(run({}, {"CallChild(Base.tws, T, W)", "W=W+1"}), "11");
}

TEST_F(ChildCalls, TheObserverHearsTheChildInsideItsCall) {
    writeDouble("Base");
    EXPECT_EQ(run({"Double L"}, {"L=1", "CallChild(Base.tws,T,W)"}), "10");
    EXPECT_EQ(log.text,
              "run 0 Parent.tws\n"
              "L=1 | 1 | 1\n"
              "child Base.tws from 9\n"
              "run 1 Base.tws\n"
              "Z=X*2 | A2*2 | 10\n"
              "Y=Z | A6 | 10\n"
              "done\n"
              "child done\n"
              "CallChild(Base.tws,T,W) | CallChild(Base.tws,T,W) | \n"
              "done\n");
}

TEST_F(ChildCalls, OnlyOutputsOfTheParentTakeResults) {
    writeDouble("Base");
    EXPECT_EQ(run({"Double L"}, {"L=3", "CallChild(Base.tws,T,L)", "W=L"}), "3");
    // A local or an output may serve as an input of the child.
    EXPECT_EQ(run({"Double L"}, {"L=3", "CallChild(Base.tws,L,W)"}), "6");
    EXPECT_EQ(run({"Double L"}, {"L=3", "W=4", "CallChild(Base.tws,W,W)"}), "8");
}

TEST_F(ChildCalls, AnErrorOfTheChildIsToldWithTheRowOfTheCall) {
    library.writeStandard("Bad", standardOf({"Double X"}, {"Double Y"}, {}, {"Y=X/0"}));
    EXPECT_EQ(run({}, {"W=1", "CallChild(Bad.tws, T, W)"}), "#DIV/0!");
    EXPECT_NE(log.text.find("Bad.tws:7: output \"Y\" is #DIV/0!"), std::string::npos) << log.text;
    EXPECT_NE(log.text.find("Parent.tws:8: output \"W\" is #DIV/0!"), std::string::npos);
}

TEST_F(ChildCalls, AnErrorIsToldWithTheRowThatMadeItNotWithACallThatPassesItOn) {
    writeDouble("Base");
    library.writeStandard(
        "Two", standardOf({"Double X"}, {"Double Y", "Double Z"}, {}, {"Y=1", "Z=X*0+7"}));
    const std::string path = library.writeStandard(
        "Parent",
        standardOf({"Double T"}, {"Double W", "Double E"}, {},
                   {"E=1/0", "CallChild(Two.tws, E, W, W)", "CallChild(Base.tws, T, W)"}));
    TwDlgStandardsData data;
    data.mode = TwDlgStandardsData::Mode::variables;
    data.standardsName = path;
    for (const TwCellType kind : {TwCellType::input, TwCellType::output, TwCellType::output})
        data.varCells.append(TwVarCell("v", kind, TwValueType::Double, "5"));
    EXPECT_TRUE(StartDlgStandardsSS(data));
    EXPECT_NE(log.text.find("Parent.tws:8: output \"E\" is #DIV/0!"), std::string::npos)
        << log.text;
}

TEST_F(ChildCalls, AChildThatDeclaresANameAgainIsToldAsItsResultsShift) {
    library.writeStandard("Again",
                          standardOf({"Double X", "Double x"}, {"Double Y"}, {}, {"Y=X*2"}));
    const std::vector<std::string> calls{"CallChild(Again.tws, T, W, W)"};
    EXPECT_EQ(run({}, calls), "old");
    EXPECT_NE(log.text.find("Again.tws: declared more than once: x: the results of the call come "
                            "back in wrong places"),
              std::string::npos)
        << log.text;
    log.text.clear();
    library.writeStandard("Again", standardOf({"Double X"}, {"Double Y"}, {"Double x"}, {"Y=X*2"}));
    EXPECT_EQ(run({}, {"CallChild(Again.tws, T, W)"}), "10");  // a local takes no place
    EXPECT_EQ(log.text.find("wrong places"), std::string::npos) << log.text;
}

TEST_F(ChildCalls, RefusedCallsLeaveTheValuesAndSayWhy) {
    writeDouble("Base");
    library.writeStandard("Broken", "no document");
    library.writeStandard("NoCalc", documentOf({{"Input"}, {"Output"}, {"Double Y"}}));
    struct Case {
        const char* call;
        const char* reason;
    };
    const Case cases[] = {
        {"CallChild", "parentheses"},
        {"CallChild Base.tws, T, W)", "parentheses"},
        {"CallChild(Base.tws, T, W", "parentheses"},
        {"CallChild)Base.tws, T, W(", "parentheses"},
        {"CallChild()", "at least one variable"},
        {"CallChild(Base.tws)", "at least one variable"},
        {"CallChild(Nowhere.tws, T, W)", "Nowhere.tws"},
        {"CallChild(Base, T, W)", "\"Base\""},
        {"CallChild(, T, W)", "\"\""},
        {"CallChild(Base.tws, T, Foo)", "\"Foo\""},
        {"CallChild(Base.tws, T, )", "\"\""},
        {"CallChild(Base.tws, W)", "no value is given for \"Y\""},
        {"CallChild(Base.tws, T, T)", "the input \"T\" stands in the place of the output \"Y\""},
        {"CallChild(Parent.tws, T, W)", "may not call itself"},
        {"CallChild(Broken.tws, T, W)", "Broken.tws:1"},
        {"CallChild(NoCalc.tws, W)", "\"Calc\""},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(run({}, {row.call}), "old") << row.call;
        EXPECT_NE(log.message.find(row.reason), std::string::npos) << row.call << log.message;
        EXPECT_TRUE(lastRunFailure().isEmpty()) << row.call;
    }
}

TEST_F(ChildCalls, TheNearestFileOfAChildIsTaken) {
    const std::string folders[] = {"Parents", "Data", "Childs", ".", "Job"};
    for (size_t i = 0; i < std::size(folders); ++i) {
        const std::string factor = std::to_string(i + 2);
        writeDouble(folders[i] + "/Near", factor.c_str());
        const std::string parent = library.writeStandard(
            "Job/Parent",
            standardOf({"Double T"}, {"Double W"}, {}, {"CallChild(Near.tws, T, W)"}));
        library.ageFolders();
        // Twice: the second run remembers where the first one found the file.
        for (int round = 0; round < 2; ++round)
            EXPECT_EQ(runFile(parent), std::to_string(5 * (i + 2)).c_str());
    }
    EXPECT_EQ(run({}, {"CallChild(\\Near.tws, T, W)"}), "30");
    const std::string elsewhere =
        library.write("Else/Far.tws", standardOf({"Int X"}, {"Int Y"}, {}, {"Y=X+1"}));
    EXPECT_EQ(run({}, {"CallChild(" + elsewhere + ", T, W)"}), "6");
}

TEST_F(ChildCalls, CirclesAndEndlessChainsEnd) {
    const auto calls = [&](const std::string& name, const std::string& child) {
        library.writeStandard(name, standardOf({"Double X"}, {"Double Y"}, {},
                                               {"Y=X", "CallChild(" + child + ".tws, X, Y)"}));
    };
    calls("A", "B");
    calls("B", "A");
    EXPECT_EQ(run({}, {"CallChild(A.tws, T, W)"}), "5");
    EXPECT_NE(log.text.find("failed CallChild(A.tws, X, Y)"), std::string::npos);
    EXPECT_NE(log.message.find("is running already"), std::string::npos);

    for (int i = 1; i <= 40; ++i) calls("Deep" + std::to_string(i), "Deep" + std::to_string(i + 1));
    EXPECT_EQ(run({}, {"CallChild(Deep1.tws, T, W)"}), "5");
    EXPECT_NE(log.text.find("run 32 Deep32.tws"), std::string::npos);
    EXPECT_EQ(log.text.find("run 33 "), std::string::npos);
    EXPECT_NE(log.message.find("32"), std::string::npos);

    calls("Childs/Detour", ".\\..\\Childs\\Detour");
    EXPECT_EQ(run({}, {"CallChild(Detour.tws, T, W)"}), "5");
    EXPECT_NE(log.message.find("is running already"), std::string::npos);
}

TEST_F(ChildCalls, CallsThatBranchAndBranchAgainEnd) {
    for (int i = 1; i <= 25; ++i) {
        const std::string call = "CallChild(Twice" + std::to_string(i + 1) + ".tws, X, Y)";
        library.writeStandard("Twice" + std::to_string(i),
                              standardOf({"Double X"}, {"Double Y"}, {}, {"Y=X", call, call}));
    }
    library.writeStandard("Twice26", standardOf({"Double X"}, {"Double Y"}, {}, {"Y=X"}));
    EXPECT_EQ(run({}, {"CallChild(Twice1.tws, T, W)"}), "5");
    EXPECT_NE(log.message.find("10000 times"), std::string::npos) << log.message;
}

TEST_F(ChildCalls, GenVariablesReachTheChildren) {
    library.writeStandard("Base", standardOf({"Double X"}, {"Double Y"}, {}, {"Y=X*gen_Factor"}));
    const std::string path = library.writeStandard(
        "Parent", standardOf({"Double T"}, {"Double W"}, {}, {"CallChild(Base.tws, T, W)"}));
    TwDlgStandardsData data;
    data.mode = TwDlgStandardsData::Mode::variables;
    data.standardsName = path;
    data.genNames = {"gen_Factor"};
    data.genValues = {"3"};
    data.varCells.append(TwVarCell("T", TwCellType::input, TwValueType::Double, "5"));
    data.varCells.append(TwVarCell("W", TwCellType::output, TwValueType::Double));
    ASSERT_TRUE(StartDlgStandardsSS(data));
    EXPECT_EQ(data.varCells[1].value(), "15");
}

}  // namespace
