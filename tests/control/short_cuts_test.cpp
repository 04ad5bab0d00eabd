// What is done in fewer steps than it might: functions found as numbers, texts written over texts.
#include <cctype>
#include <string>

#include <gtest/gtest.h>

#include "spread/control/cell_text.h"
#include "spread/control/sheet.h"

namespace {

using control::Sheet;
using formula::Value;

Value resultOf(Sheet& sheet, const std::string& text) {
    formula::ParseError error;
    EXPECT_TRUE(sheet.setFormula(30, 1, text, error)) << text << ": " << error.message;
    return sheet.value(30, 1);
}

TEST(ShortCuts, FunctionsAreFoundByTheirNamesAlone) {
    for (const formula::FunctionSpec* spec : formula::allFunctions()) {
        EXPECT_EQ(formula::findFunction(spec->name), spec);
        std::string lower(spec->name);
        for (char& c : lower) c = static_cast<char>(std::tolower(c));
        EXPECT_EQ(formula::findFunction(lower), spec);
        for (const char* more : {"X", "_", "1"})
            if (const auto* other = formula::findFunction(lower + more)) {
                EXPECT_EQ(other->name.size(), lower.size() + 1);
            }
        lower[0] ^= 0x40;
        EXPECT_EQ(formula::findFunction(lower), nullptr) << lower;
    }
    EXPECT_EQ(formula::findFunction(""), nullptr);
    EXPECT_EQ(formula::findFunction(std::string(300, 'A')), nullptr);
}

// A function of the host with the name of one of ours goes before it.
TEST(ShortCuts, RegisteredFunctionsGoBeforeOnesOfTheSameName) {
    Sheet sheet;
    EXPECT_EQ(resultOf(sheet, "ABS(-2)").number(), 2);
    static const int identity = 0;
    formula::CustomFunction function;
    function.name = "ABS";
    function.least = function.most = 1;
    function.call = [](formula::Calculation&, std::span<const Value>) { return Value(42.0); };
    sheet.addCustomFunction(control::internCustomFunction(function, &identity));
    EXPECT_EQ(resultOf(sheet, "abs(-2)").number(), 42);
    EXPECT_EQ(resultOf(sheet, "MAX(ABS(-2),3)").number(), 42);
    const Sheet copy(sheet);
    Sheet other(copy);
    EXPECT_EQ(resultOf(other, "ABS(-3)").number(), 42);
}

TEST(ShortCuts, TextsWrittenOverTextsLeaveThoseThatShareThemAlone) {
    control::CellStore store;
    control::Cell& cell = store.obtain(1, 1);
    control::Cell& shares = store.obtain(1, 2);
    const auto holds = [](const control::Cell& c) { return std::string(c.value().text()); };
    store.setValue(cell, Value(1.0));
    control::setText(cell, "first");
    EXPECT_EQ(holds(cell), "first");
    control::setText(cell, "other");
    EXPECT_EQ(holds(cell), "other");
    control::CellStore::shareValue(shares, cell);
    control::setText(cell, "third");
    EXPECT_EQ(holds(cell), "third");
    EXPECT_EQ(holds(shares), "other");
    control::setText(cell, cell.value().text());
    control::setText(cell, cell.value().text().substr(1));
    EXPECT_EQ(holds(cell), "hird");
    control::setText(cell, "");
    EXPECT_TRUE(cell.value().isEmpty());
}

}  // namespace
