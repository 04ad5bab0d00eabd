// The manual's page of functions says what the program has: its lists are made from the tables of
// functions, its examples are calculated.
#include <gtest/gtest.h>

#include <fstream>

#include "core_api/text/text_helpers.h"
#include "manual/page.h"
#include "spread/control/formula/functions/families.h"
#include "support/formula_sheet.h"
#include "test_folders.h"

namespace {

using formula::FunctionSpec;

constexpr std::string_view listsBegin = "test_manual compares them. -->\n";

struct Family {
    const char* heading;
    std::span<const FunctionSpec> (*functions)();
};
constexpr Family families[] = {
    {"Mathematics", formula::mathFunctions},
    {"Trigonometry", formula::trigonometryFunctions},
    {"Statistics", formula::statisticsFunctions},
    {"Matrices", formula::matrixFunctions},
    {"Logic", formula::logicFunctions},
    {"Looking up", formula::lookupFunctions},
    {"Texts", formula::textFunctions},
    {"Information", formula::informationFunctions},
    {"Dates and times", formula::dateFunctions},
    {"Engineering", formula::engineeringFunctions},
};

std::string escaped(std::string_view text) {
    std::string safe;
    for (const char c : text) {
        if (std::string_view("*_<>|").find(c) != std::string_view::npos) safe += '\\';
        safe += c;
    }
    return safe;
}

std::string lists() {
    std::string text;
    size_t count = 0;
    for (const Family& family : families) {
        text +=
            std::string("\n## ") + family.heading + "\n\n| Function | What it gives |\n|---|---|\n";
        count += family.functions().size();
        for (const FunctionSpec& spec : family.functions())
            text += "| `" + std::string(spec.name) + "(" + std::string(spec.arguments) + ")` | " +
                    escaped(spec.summary) + " |\n";
    }
    EXPECT_EQ(count, formula::allFunctions().size()) << "a family has no heading here";
    return text;
}

TEST(FunctionsManual, ListsEveryFunctionAsItIs) {
    const std::string page = manual::read("docs/functions.md");
    const size_t begin = page.find(listsBegin) + listsBegin.size();
    ASSERT_LT(begin, page.size());
    const std::string expected = page.substr(0, begin) + lists();
    if (page == expected) return;
    std::ofstream(VORMANT_BINARY_DIR "/functions.md") << expected;
    ADD_FAILURE() << "docs/functions.md is out of date. The new text is in the build folder:\n  cp "
                  << VORMANT_BINARY_DIR "/functions.md docs/functions.md";
}

TEST(FunctionsManual, ExamplesGiveTheResultsShown) {
    FormulaSheet sheet;
    int examples = 0;
    for (const auto& row : manual::tableRows(manual::read("docs/functions.md"))) {
        if (isNumber(row[0])) {
            for (size_t col = 1; col < row.size(); ++col) {
                const formula::Value value = isNumber(row[col])
                                                 ? formula::Value(textToDouble(row[col]))
                                                 : formula::Value::borrowedText(row[col]);
                if (!row[col].empty()) sheet.set(static_cast<int>(col), textToInt(row[0]), value);
            }
        } else if (const auto example = manual::exampleIn(row); !example.formula.empty()) {
            EXPECT_EQ(sheet(example.formula), example.result) << example.formula;
            ++examples;
        }
    }
    EXPECT_GE(examples, 15);
}

}  // namespace
