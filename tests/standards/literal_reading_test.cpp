// The engine against the literal reading of a run, on random standards.
#include <gtest/gtest.h>

#include <random>

#include "support/compare_runs.h"
#include "support/random_standard.h"
#include "support/standard_file.h"

namespace {

TEST(LiteralReading, IsWhatHiddenAndShownRunsGive) {
    TemporaryLibrary library;
    library.writeData("table.txt", "3\tthree\nt\t1.5\nM20\t22\n");
    const char* const most = std::getenv("VORMANT_ROUNDS");
    const unsigned rounds = most ? static_cast<unsigned>(std::stoul(most)) : 1500;
    unsigned wentWell = 0;
    for (unsigned round = 0; round < rounds; ++round) {
        std::mt19937 random(round);
        const Choices choose = [&](unsigned n) { return static_cast<unsigned>(random() % n); };
        const RandomStandard children[] = {RandomStandard(choose), RandomStandard(choose)};
        for (int i = 0; i < 2; ++i)
            library.writeStandard("Child" + std::to_string(i), children[i].document());
        RandomStandard standard(choose);
        const std::string path = library.writeStandard("Sheet", standard.document());
        const GenValues gen = standard.gen();
        CompareRuns runs(path, standard.given(), gen, standard.others());
        const std::string difference = runs.difference();
        wentWell += runs.wentWell();
        std::string given;
        for (const LiteralVariable& variable : standard.given())
            given += variable.name.str() + "=" + variable.value.str() + "; ";
        ASSERT_TRUE(difference.empty())
            << difference << "round " << round << "\n"
            << given << "gen " << arrToStr(gen.values, ",").str() << "\n"
            << standard.document() << "Child0\n"
            << children[0].document() << "Child1\n"
            << children[1].document();
    }
    EXPECT_GT(wentWell, rounds / 2);
}

// The next run goes on with the sheet as this one left it; what gen values wrote there is none of
// its business.
TEST(LiteralReading, HoldsForRunsAfterOneWithGenValues) {
    TemporaryLibrary library;
    const std::string path = library.writeStandard(
        "Sheet",
        "vormant-sheet 1\nsize 2 6\ncells\nA1 \"Input\nB1 \"gen_X\nA2 \"Double Width\n"
        "A3 \"Output\nA4 \"String Note\nA5 \"Calc\nA6 \"Note=B1&Width\nend 7\n");
    const std::vector<LiteralVariable> given{
        {"Width", TwCellType::input, TwValueType::Double, "12.5"},
        {"Note", TwCellType::output, TwValueType::String, ""}};
    CompareRuns runs(path, given, {{"gen_X"}, {"changed"}}, {" 12.5", "#N/A"});
    EXPECT_EQ(runs.difference(), "");
    EXPECT_TRUE(runs.wentWell());
}

// Texts stay in the cells of their variables for a while: whatever looks at a variable meanwhile
// has to find them, and texts of errors are errors there.
TEST(LiteralReading, HoldsForTextsHandedFromEquationToEquation) {
    TemporaryLibrary library;
    library.writeStandard("Child", standardOf({"String In"}, {"String Out"}, {}, {"Out=In&\"!\""}));
    const std::string path =
        library.writeStandard("Sheet", standardOf({"String Mark", "Double Width"},
                                                  {"String Note", "String Same", "Double Length"},
                                                  {"String Size", "String Odd", "String Child"},
                                                  {"Size=\"M\"&Width",
                                                   "Size=\"N\"&Width",
                                                   "Same=Same&Size",
                                                   "Same=Same",
                                                   "Odd=\"#N/A\"",
                                                   "Note=Odd&\"x\"",
                                                   "Note=ISERROR(Odd)&Mark",
                                                   "Odd=\"#b\"",
                                                   "Odd=Odd&Size",
                                                   "CallChild(\"Child\",Odd,Child)",
                                                   "Odd=\"\"",
                                                   "Note=Note&Child&Odd&LEN(Odd)",
                                                   "Size=Width/2",
                                                   "Length=LEN(Size)",
                                                   "Odd=Width>3",
                                                   "Same=Same&Odd",
                                                   "Odd=\"12.50\"",
                                                   "Length=Length+Odd",
                                                   "Missing=1",
                                                   "Odd=Odd&Odd",
                                                   "Note=Note&Odd"}));
    for (const char* width : {"12.5", "2", ""}) {
        const std::vector<LiteralVariable> given{
            {"Mark", TwCellType::input, TwValueType::String, "HEA 200"},
            {"Width", TwCellType::input, TwValueType::Double, width},
            {"Note", TwCellType::output, TwValueType::String, ""},
            {"Same", TwCellType::output, TwValueType::String, "given"},
            {"Length", TwCellType::output, TwValueType::Double, ""}};
        const GenValues noGenVariables;  // borrowed for as long as `runs` lives
        CompareRuns runs(path, given, noGenVariables);
        EXPECT_EQ(runs.difference(), "") << width;
        EXPECT_TRUE(runs.wentWell());
    }
}

}  // namespace
