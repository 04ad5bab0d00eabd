// Names in equations become cell references, whole words only and one name after another.
#include "standards/replace_variables.h"

#include <gtest/gtest.h>

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

TEST(VariableReferences, FindsTheFirstOfANameRegardlessOfCase) {
    const VariableReferences references({"Gap", "gen.Gap", "GAP"}, {"A1", "A2", "A3"});
    EXPECT_EQ(references.find("gap"), 0);
    EXPECT_EQ(references.find("Gen.gap"), 1);
    EXPECT_EQ(references.find("Ga"), -1);
}

}  // namespace
