// What an editor shows while a formula is typed. In the cases "^" is the cursor.
#include "spread/editor/formula_help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "core_api/text/text_helpers.h"
#include "spread/control/formula/function.h"
#include "spread/editor/block_statistics.h"
#include "spread/editor/function_words/function_words.h"

namespace {

using editor::FormulaPlace;

struct Typed {
    std::string text;
    size_t cursor;
    explicit Typed(std::string marked) : cursor(marked.find('^')) {
        marked.erase(cursor, 1);
        text = marked;
    }
};

TEST(FunctionList, HasEveryFunctionOnceInOrder) {
    const auto& list = editor::functionList();
    EXPECT_EQ(list.size(), formula::allFunctions().size());
    for (size_t i = 0; i < list.size(); ++i) {
        EXPECT_TRUE(i == 0 || list[i - 1].name < list[i].name) << list[i].name;
        const formula::FunctionSpec& spec = *formula::findFunction(list[i].name);
        EXPECT_GE(static_cast<int>(list[i].arguments.size()), spec.least) << spec.name;
        EXPECT_FALSE(list[i].summary.empty());
    }
    EXPECT_EQ(editor::functionHelp("fixed")->syntax(), "FIXED(number, [decimals], [no_commas])");
    EXPECT_EQ(editor::functionHelp("nothing"), nullptr);
}

/// The working language for the length of a test.
class Speaking {
  public:
    explicit Speaking(Language language) { gSettings.current().language = language; }
    ~Speaking() { gSettings.current().language = Language::english; }
};

TEST(FunctionList, SpeaksEveryLanguageWithTheSameArguments) {
    const auto& english = editor::functionList();
    const auto inDigits = [](const std::string& text) { return text.find_first_of("0123456789"); };
    for (const Language language : {Language::dutch, Language::german, Language::french}) {
        const Speaking speaking(language);
        const auto& list = editor::functionList();
        ASSERT_EQ(list.size(), english.size());
        for (size_t i = 0; i < list.size(); ++i) {
            const std::string where =
                std::string(list[i].name) + " in language " + std::to_string(int(language));
            EXPECT_EQ(list[i].name, english[i].name);
            EXPECT_NE(list[i].summary, english[i].summary) << where;
            EXPECT_TRUE(list[i].summary.ends_with('.')) << where;
            EXPECT_EQ(list[i].summary.find("\xC3"), std::string::npos) << where << ": no UTF-8";
            ASSERT_EQ(list[i].arguments.size(), english[i].arguments.size()) << where;
            for (size_t a = 0; a < list[i].arguments.size(); ++a) {
                const std::string& own = list[i].arguments[a];
                const std::string& other = english[i].arguments[a];
                EXPECT_EQ(own.front() == '[', other.front() == '[') << where << ": " << own;
                EXPECT_EQ(own.back() == ']', other.back() == ']') << where << ": " << own;
                EXPECT_EQ(inDigits(own) == own.npos, inDigits(other) == other.npos) << where;
                EXPECT_EQ(own.find(','), own.npos) << where;
            }
        }
    }
    const Speaking german(Language::german);
    EXPECT_EQ(editor::functionHelp("ROUND")->syntax(), "ROUND(Zahl, [Dezimalstellen])");
    EXPECT_EQ(editor::functionHelp("SUM")->syntax(), "SUM(Zahl1, [Zahl2], \x85)");
}

TEST(FunctionList, EveryRowOfWordsBelongsToSomething) {
    std::set<std::string, std::less<>> arguments, used;
    for (const editor::FunctionWords& row : editor::argumentWords()) {
        EXPECT_TRUE(arguments.insert(std::string(row.names)).second) << row.names << " twice";
        for (const std::string_view word : row.words) EXPECT_FALSE(word.empty()) << row.names;
    }
    for (const formula::FunctionSpec* spec : formula::allFunctions()) {
        for (const Vor_String& part : splitStringAtSymbol(spec->arguments, ',', true)) {
            if (part.isEmpty() || part == "\xE2\x80\xA6") continue;
            std::string name = part.str();
            std::erase_if(name, [](char c) { return c == '[' || c == ']'; });
            if (!arguments.contains(name)) name.erase(name.find_last_not_of("0123456789") + 1);
            EXPECT_TRUE(arguments.contains(name)) << spec->name << ": " << part.str();
            used.insert(name);
        }
    }
    EXPECT_EQ(used, arguments);
    using Words = std::span<const editor::FunctionWords> (*)();
    size_t count = 0;
    for (const Words family :
         {editor::mathWords, editor::trigonometryWords, editor::statisticsWords,
          editor::matrixWords, editor::logicWords, editor::lookupWords, editor::textWords,
          editor::informationWords, editor::dateWords, editor::engineeringWords}) {
        for (const editor::FunctionWords& row : family()) {
            for (const Vor_String& name : splitStringAtSymbol(row.names, ',', true)) {
                EXPECT_TRUE(formula::findFunction(name)) << name.str();
                ++count;
            }
        }
    }
    EXPECT_EQ(count, formula::allFunctions().size());
}

TEST(ArgumentHint, KnowsFunctionAndArgument) {
    const struct {
        const char* typed;
        const char* hint;
    } cases[] = {
        {"=ROUND(^", "ROUND 0"},
        {"=round( A1 , ^", "ROUND 1"},
        {"=ROUND(A1,2,^", "ROUND -1"},
        {"=1+IF(SUM(A1:A3,^B2)>(3", "SUM 1"},
        {"=IF(SUM(A1:A3,B2)>(3+^", "IF 0"},
        {"=IF(SUM(A1),^", "IF 1"},
        {"=CONCAT(\"a,(\",1,2,3,^4)", "CONCAT 1"},
        {"=SUM({1,2;3,4},^", "SUM 1"},
        {"=LOG10(^", "LOG10 0"},
        {"=ROUND^(1)", ""},
        {"=ROUND(1)^", ""},
        {"=(1+^", ""},
        {"=NOSUCH(^", ""},
        {"ROUND(^", ""},
    };
    for (const auto& each : cases) {
        const Typed typed(each.typed);
        const auto hint = editor::argumentHint(typed.text, typed.cursor);
        EXPECT_EQ(
            hint ? std::string(hint->function->name) + " " + std::to_string(hint->argument) : "",
            each.hint)
            << each.typed;
    }
}

TEST(Completion, OffersNamesThatBeginSo) {
    const struct {
        const char* typed;
        const char* first;
        size_t start;
    } cases[] = {
        {"=ro^", "ROMAN", 1},
        {"=1+Averagei^", "AVERAGEIF", 3},
        {"=SUM(vl^)", "VLOOKUP", 5},
        {"=LOG1^", "LOG10", 1},
        {"=\"ro^", "", 0},
        {"=3ro^", "", 0},
        {"=$ro^", "", 0},
        {"=r^ound", "", 0},
        {"ro^", "", 0},
        {"=^", "", 0},
        {"=zzz^", "", 0},
    };
    for (const auto& each : cases) {
        const Typed typed(each.typed);
        const auto completion = editor::completeFunction(typed.text, typed.cursor);
        EXPECT_EQ(completion ? completion->names[0] : "", each.first) << each.typed;
        EXPECT_EQ(completion ? completion->start : 0, each.start) << each.typed;
    }
}

TEST(References, AreMarkedInTheColoursOfTheirCells) {
    const struct {
        const char* typed;
        FormulaPlace place;
        const char* marks;
    } cases[] = {
        {"=A1+$B$2:C4*a1", {}, "1+2 1,1,1,1 #0; 4+7 2,2,3,4 #1; 12+2 1,1,1,1 #0; "},
        {"=SUM(B:C)+3:3+\"A1\"", {}, "5+3 2,1,3,-1 #0; 10+3 1,3,-1,3 #1; "},
        {"=C4:A1+LOG10(", {}, "1+5 1,1,3,4 #0; "},
        {"=R[-1]C+R2C3:RC", {2, 5, 2}, "1+6 2,4,2,4 #0; 8+7 2,2,3,5 #1; "},
        {"A1", {}, ""},
    };
    for (const auto& each : cases) {
        std::string marks;
        for (const auto& mark : editor::referenceMarks(each.typed, each.place)) {
            const auto& [col1, row1, col2, row2] = mark.block;
            marks += std::to_string(mark.start) + "+" + std::to_string(mark.length) + " ";
            marks += std::to_string(col1) + "," + std::to_string(row1) + "," +
                     std::to_string(col2) + "," + std::to_string(row2) + " #" +
                     std::to_string(mark.colour) + "; ";
        }
        EXPECT_EQ(marks, each.marks) << each.typed;
    }
}

TEST(References, CycleThroughTheirDollars) {
    const struct {
        const char* typed;
        FormulaPlace place;
        std::vector<const char*> turns;
    } cases[] = {
        {"=A1^+B2", {}, {"=$A$1+B2", "=A$1+B2", "=$A1+B2", "=A1+B2"}},
        {"=1+^b2:C4*2", {}, {"=1+$B$2:$C$4*2", "=1+B$2:C$4*2", "=1+$B2:$C4*2", "=1+B2:C4*2"}},
        {"=SUM(A^:C)", {}, {"=SUM($A:$C)", "=SUM(A:C)"}},
        {"=RC[-1]^", {3, 2, 2}, {"=R2C2", "=R2C[-1]", "=RC2", "=RC[-1]"}},
        {"=1+^2", {}, {}},
    };
    for (const auto& each : cases) {
        Typed typed(each.typed);
        for (const char* turn : each.turns) {
            const auto edited = editor::cycleReference(typed.text, typed.cursor, each.place);
            ASSERT_TRUE(edited) << typed.text;
            EXPECT_EQ(edited->text, turn);
            typed.text = edited->text;
            typed.cursor = edited->start + edited->length;
        }
        const bool turns = editor::cycleReference(typed.text, typed.cursor, each.place).has_value();
        EXPECT_EQ(turns, !each.turns.empty()) << each.typed;
    }
    EXPECT_EQ(editor::referenceTo({2, 3, 2, 3}, {}), "B3");
    EXPECT_EQ(editor::referenceTo({2, 3, 4, 5}, {}), "B3:D5");
    EXPECT_EQ(editor::referenceTo({2, 1, 3, -1}, {}), "B:C");
    EXPECT_EQ(editor::referenceTo({2, 3, 2, 3}, {1, 3, 2}), "RC[1]");
}

TEST(BlockStatistics, CountWhatIsThere) {
    control::Grid grid;
    grid.setCols(3);
    grid.setRows(100000);
    for (int row = 1; row <= 100000; ++row) grid.writeValue(1, row, row * 0.5);
    grid.setData(2, 7, "text");
    grid.setFormula(2, 8, "-A2*3");
    grid.setFormula(2, 9, "1/0");
    const auto all = editor::blockStatistics(grid, {1, 1, -1, -1});
    EXPECT_EQ(all.filled, 100003);
    EXPECT_EQ(all.numbers, 100001);
    EXPECT_EQ(all.sum, 2500025000.0 - 3);
    EXPECT_EQ(all.least, -3);
    EXPECT_EQ(all.most, 50000);
    const auto few = editor::blockStatistics(grid, {2, 7, 3, 9});
    EXPECT_EQ(few.filled, 3);
    EXPECT_EQ(few.average(), -3);
    EXPECT_EQ(editor::blockStatistics(grid, {3, 1, 3, 5}).average(), 0);
}

}  // namespace
