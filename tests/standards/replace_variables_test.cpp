// Names in equations become cell references, whole words only and one name after another.
#include "standards/replace_variables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

std::string translated(const Vor_StringArray& names, const Vor_StringArray& references,
                       std::string_view text) {
    std::string buffer;
    return std::string(VariableReferences(names, references).translate(text, buffer));
}

struct Case {
    const char* text;
    Vor_StringArray names;
    Vor_StringArray values;
    bool quoteTexts;
    const char* expected;
};

TEST(ReplaceVariables, TextsThatDoubleWithEveryNameStopGrowing) {
    Vor_StringArray names;
    Vor_StringArray values;
    for (int i = 0; i < 60; ++i) {
        names.append("gen" + std::to_string(i));
        const std::string next = "gen" + std::to_string(i + 1);
        values.append(next + " " + next);
    }
    Vor_String text = "gen0";
    EXPECT_TRUE(replaceVariables(text, names, values, false));
    EXPECT_LT(text.length(), 3'000'000);
}

TEST(ReplaceVariables, WholeWordsAreReplacedInTheOrderOfTheNames) {
    const Case cases[] = {
        {"A + AB", {"A", "AB"}, {"B3", "C3"}, false, "B3 + C3"},
        {"a+A+_A+A1+A_+1A", {"A"}, {"B3"}, false, "B3+B3+_A+A1+A_+1A"},
        {"A", {"A"}, {"B3"}, false, "B3"},
        {"AA A", {"A"}, {"B3"}, false, "AA B3"},
        {"LEN(Text)", {"Len", "Text"}, {"B1", "B2"}, false, "B1(B2)"},
        // What was put in for one name can be a later name, never the same or an earlier one.
        {"A", {"A", "B3"}, {"B3", "C9"}, false, "C9"},
        {"B3", {"A", "B3"}, {"B3", "A"}, false, "A"},
        {"A", {"A"}, {"A+A"}, false, "A+A"},
        // Letters outside ASCII are no part of a word.
        {"\xE9"
         "A\xE9",
         {"A"},
         {"B3"},
         false,
         "\xE9"
         "B3\xE9"},
        // Names with dots and blanks are taken as they are.
        {"gen.Gap+Gap.x", {"gen.Gap", "Gap"}, {"A1", "A2"}, false, "A1+A2.x"},
        {"Gap Width", {"Gap Width", "Gap"}, {"A1", "A2"}, false, "A1"},
        {"Gap Width", {"Gap", "Gap Width"}, {"A2", "A1"}, false, "A2 Width"},
        {"1.5*A.5", {"5"}, {"X"}, false, "1.X*A.X"},
        // Lists of different length; empty names.
        {"A B C", {"A", "B", "C"}, {"1", "2"}, false, "1 2 C"},
        {"A B", {"A"}, {"1", "2"}, false, "1 B"},
        {"A", {"", "A"}, {"9", "1"}, false, "1"},
        {"A", {}, {}, false, "A"},
        {"", {"A"}, {"1"}, false, ""},
        // Numbers go in bare, other values in quotes.
        {"L=gen_L/gen_S", {"gen_L", "gen_S"}, {"12.5", "S235"}, true, "L=12.5/\"S235\""},
        {"gen_E", {"gen_E"}, {""}, true, "\"\""},
    };
    for (const Case& row : cases) {
        Vor_String text(row.text);
        const bool replaced = replaceVariables(text, row.names, row.values, row.quoteTexts);
        EXPECT_EQ(text, row.expected) << row.text;
        EXPECT_EQ(replaced, !(text == row.text)) << row.text;
        if (row.quoteTexts || row.names.length() != row.values.length()) continue;
        EXPECT_EQ(translated(row.names, row.values, row.text), row.expected) << row.text;
    }
}

/// Random equations over names that collide with references, with each other and with functions.
TEST(VariableReferences, OnePassGivesWhatReplacingNameAfterNameGives) {
    std::mt19937 random(7);
    const auto pick = [&](auto count) {
        return static_cast<size_t>(random() % static_cast<unsigned>(count));
    };
    const std::string_view words[] = {"A", "B",   "a1", "B2", "B3",  "C3", "AB",  "Len", "x_1",
                                      "5", "c10", "D4", "d5", "gap", "E6", "LEN", "_",   "Zz"};
    const std::string_view oddWords[] = {"gen.Gap", "B2.x", "x y", "\xC9t", "\xE9T", "-", ""};
    const std::string_view between[] = {"+", " ", "*(", ")", ".", ",", "\"", "\xE9", "=", ""};
    for (int round = 0; round < 3000; ++round) {
        Vor_StringArray names;
        Vor_StringArray references;
        const bool allPlain = round % 2 == 0;
        const size_t count = pick(12);
        for (size_t i = 0; i < count; ++i) {
            const bool odd = !allPlain && pick(3) == 0;
            const Vor_String name(odd ? oddWords[pick(std::size(oddWords))]
                                      : words[pick(std::size(words))]);
            if (allPlain && names.contains(name)) continue;
            names.append(name);
            references.append(
                Vor_String(std::string(1, "ABCDE"[pick(5)]) + std::to_string(pick(11))));
        }
        std::string text;
        const size_t parts = pick(14);
        for (size_t i = 0; i < parts; ++i) {
            const bool odd = pick(6) == 0;
            text += odd ? oddWords[pick(std::size(oddWords))] : words[pick(std::size(words))];
            text += between[pick(std::size(between))];
        }
        Vor_String expected(text);
        replaceVariables(expected, names, references, false);
        EXPECT_EQ(translated(names, references, text), expected.str()) << text;
    }
}

/// Shared programs with the same instructions are one.
formula::ProgramRef parsed(std::string_view text) {
    formula::ParseError error;
    return formula::parse(text, {.hostCol = 3, .hostRow = 40}, error);
}

formula::ProgramRef parsedWithNames(const VariableReferences& names, std::string_view text) {
    return formula::parseWithNames(text, {.hostCol = 3, .hostRow = 40}, names);
}

TEST(VariableReferences, FormulasParsedWithNamesAreThoseWithReferences) {
    const VariableReferences names({"Gap", "b_1", "A7", "C2", "Sum"},
                                   {"B5", "C2", "B6", "D9", "E1"});
    ASSERT_TRUE(names.areCells());
    const struct {
        const char* text;
        const char* same;  ///< null: the caller has to replace the names
    } cases[] = {
        {"Gap*2+GAP", "B5*2+B5"},
        {"=-gap%", "=-B5%"},
        {"MAX(Gap:b_1,A7)", "MAX(B5:D9,B6)"},  // what b_1 becomes is a name again
        {"IF(Gap>1.5E3,\"no name\"&A1,$A$3)", nullptr},
        {"IF(Gap>1.5E3,\"no name\"&A1,B:B)", nullptr},
        {"IF(Gap>1.5E3,\"no name\"&A1,LOG10(3:4))", "IF(B5>1.5E3,\"no name\"&A1,LOG10(3:4))"},
        {"Gap&\"the gap\"", nullptr},
        {"Sum(1,2)", nullptr},
        {"Sum (1,2)", nullptr},
        {"Gap.x", nullptr},
        {"\xE9Gap", nullptr},
        {"Gap\xE9", nullptr},
        {"2Gap", nullptr},
        {"Gap!A1", nullptr},
        {"$Gap", nullptr},
        {"#Gap", nullptr},
        {"A:Gap", nullptr},
        {"Gap+", nullptr},
        {"CHOOSE(Gap,A7,b_1,TRUE)", "CHOOSE(B5,B6,D9,TRUE)"},
    };
    for (const auto& row : cases) {
        const formula::ProgramRef program = parsedWithNames(names, row.text);
        EXPECT_EQ(program.get(), row.same ? parsed(row.same).get() : nullptr) << row.text;
    }
    const VariableReferences exponents({"E5", "5"}, {"B5", "B6"});
    for (const char* text : {"1.E5", "2+5", "1.5*A1", "5:7", "\"a 5\""})
        EXPECT_FALSE(parsedWithNames(exponents, text)) << text;
    EXPECT_EQ(parsedWithNames(exponents, "15E5*e5").get(), parsed("15E5*B5").get());
}

TEST(VariableReferences, NamesAreCellsOnlyWhenAllAreSo) {
    EXPECT_FALSE(VariableReferences({"A", "B"}, {"A1", "A1+1"}).areCells());
    EXPECT_FALSE(VariableReferences({"A", "B"}, {"A1", "A0"}).areCells());
    EXPECT_FALSE(VariableReferences({"A", "b.c"}, {"A1", "A2"}).areCells());
    EXPECT_FALSE(VariableReferences({"A", "a"}, {"A1", "A2"}).areCells());
}

/// Random formulas, half of them sound, over names that collide with references, functions,
/// numbers and each other.
TEST(VariableReferences, RandomFormulasParsedWithNamesAreThoseWithReferences) {
    std::mt19937 random(11);
    const auto pick = [&](auto count) {
        return static_cast<size_t>(random() % static_cast<unsigned>(count));
    };
    const std::string_view words[] = {"A",  "B2",  "b3",  "AB", "Gap", "x_1", "5",
                                      "E5", "c10", "MAX", "_",  "1E3", "IF",  "TRUE"};
    const std::string_view operands[] = {"1.5",     "2",    "1.E5", "\"A\"", "\"x \"\"Gap\"",
                                         "$B2",     "A:AB", "1:5",  ".5",    "#N/A",
                                         "MAX(B2,", "IF(",  "(",    "Gap.x"};
    const std::string_view between[] = {"+", "*", ",", ":", ")", "<=", " ", "&", "%+", "-"};
    int parsedCount = 0;
    for (int round = 0; round < 40000; ++round) {
        Vor_StringArray names;
        Vor_StringArray references;
        for (size_t i = 0, count = pick(8); i < count; ++i) {
            const Vor_String name(words[pick(std::size(words))]);
            if (names.contains(name)) continue;
            names.append(name);
            references.append(std::string(1, "ABCDE"[pick(5)]) + std::to_string(1 + pick(11)));
        }
        std::string text;
        for (size_t i = 0, parts = 1 + pick(5); i < parts; ++i) {
            if (i > 0) text += between[pick(std::size(between))];
            text +=
                pick(4) == 0 ? operands[pick(std::size(operands))] : words[pick(std::size(words))];
        }
        for (auto open = std::count(text.begin(), text.end(), '('); open > 0; --open) text += ')';
        const VariableReferences variables(names, references);
        ASSERT_TRUE(variables.areCells());
        const formula::ProgramRef program = parsedWithNames(variables, text);
        if (!program) continue;
        ++parsedCount;
        const std::string replaced = translated(names, references, text);
        EXPECT_EQ(program.get(), parsed(replaced).get()) << text << " -> " << replaced;
    }
    EXPECT_GT(parsedCount, 5000);
}

TEST(VariableReferences, FindsTheFirstOfANameRegardlessOfCase) {
    const VariableReferences references({"Gap", "gen.Gap", "GAP"}, {"A1", "A2", "A3"});
    EXPECT_EQ(references.find("gap"), 0);
    EXPECT_EQ(references.find("Gen.gap"), 1);
    EXPECT_EQ(references.find("Ga"), -1);
}

}  // namespace
