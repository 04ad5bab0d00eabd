// What holds for every function of every family, whoever wrote it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "spread/control/formula/function.h"
#include "support/formula_sheet.h"

namespace {

using formula::Area;
using formula::Calculation;
using formula::ErrorCode;
using formula::FunctionSpec;
using formula::Value;

TEST(AllFunctions, AreFoundAndExplained) {
    std::set<std::string_view> names;
    for (const FunctionSpec* spec : formula::allFunctions()) {
        EXPECT_TRUE(names.insert(spec->name).second) << spec->name << " comes twice";
        EXPECT_EQ(formula::findFunction(spec->name), spec);
        EXPECT_LE(spec->least, spec->most) << spec->name;
        EXPECT_EQ(spec->most == 0, spec->params.empty()) << spec->name;
        EXPECT_EQ(spec->most == 0, spec->arguments.empty()) << spec->name;
        EXPECT_EQ(spec->params.find_first_not_of("vrap()"), std::string_view::npos) << spec->name;
        EXPECT_TRUE(spec->summary.ends_with('.')) << spec->name;
        // Help names every argument that must be given, and marks those that need not be.
        const auto commas = std::count(spec->arguments.begin(), spec->arguments.end(), ',');
        EXPECT_GE(commas + 1, spec->least) << spec->name << "(" << spec->arguments << ")";
        const bool marksMore =
            spec->arguments.find('[') != std::string_view::npos || spec->arguments.ends_with("…");
        EXPECT_TRUE(spec->least == spec->most || marksMore) << spec->name;
    }
    EXPECT_GE(names.size(), 120U);
    EXPECT_EQ(formula::findFunction("NOSUCH"), nullptr);
    EXPECT_EQ(formula::findFunction(""), nullptr);
}

/// Any value may meet any function: a result must come back, and a number must be one.
TEST(AllFunctions, SurviveAnyArguments) {
    control::CellStore cells;
    const double numbers[] = {0, -1, 2.5, 1e308};
    for (int row = 1; row <= 4; ++row)
        cells.setValue(cells.obtain(1, row), Value(numbers[row - 1]));
    cells.setValue(cells.obtain(2, 2), Value::borrowedText("x"));
    cells.setValue(cells.obtain(2, 3), Value(ErrorCode::ref));
    Calculation c(cells);
    formula::Array* array = c.newArray(2, 2);
    array->at(0, 0) = Value(3.0);
    array->at(0, 1) = Value::borrowedText("3");
    array->at(1, 1) = Value::boolean(true);

    const Value pool[] = {Value(0.0),
                          Value(-0.0),
                          Value(1.0),
                          Value(2.0),
                          Value(-1.0),
                          Value(0.5),
                          Value(1e15),
                          Value(-1e15),
                          Value(1e308),
                          Value(-1e308),
                          Value(5e-324),
                          Value(2147483648.0),
                          Value(255.0),
                          Value::boolean(true),
                          Value::boolean(false),
                          Value::borrowedText(""),
                          Value::borrowedText("12"),
                          Value::borrowedText("~*?<>"),
                          Value::borrowedText("A1:B2"),
                          Value::borrowedText("2024-02-30"),
                          Value(ErrorCode::na),
                          Value(ErrorCode::circ),
                          Value::missing(),
                          Value(),
                          Value::area({1, 4, 1, 1}),
                          Value::area({1, 4, 1, 2}),
                          Value::area({1, formula::maxRows, 1, 1}),
                          Value::area({9, 9, 9, 9}),
                          Value::array(array)};
    std::mt19937 random(3);
    for (const FunctionSpec* spec : formula::allFunctions()) {
        for (int round = 0; round < 400; ++round) {
            const auto spread = static_cast<unsigned>(std::min(spec->most - spec->least, 4)) + 1;
            std::vector<Value> args(static_cast<size_t>(spec->least) + random() % spread);
            for (size_t i = 0; i < args.size(); ++i) {
                const char parameter = formula::parameterClass(spec->params, i);
                do args[i] = pool[random() % std::size(pool)];
                while (parameter == 'v' && !args[i].isSingle());
            }
            const Value result = spec->call(c, args);
            if (result.isNumber()) {
                EXPECT_TRUE(std::isfinite(result.number())) << spec->name << " round " << round;
            } else if (result.isArray()) {
                EXPECT_GT(result.array().rows * result.array().cols, 0) << spec->name;
            }
        }
    }
}

}  // namespace
