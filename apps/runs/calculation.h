// A run as a calculation that an engineer can check by hand: every equation with its symbols,
// with its numbers, and its result; the equations of called standards inside the call.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "runs/declared_standard.h"
#include "runs/run_report.h"

namespace runs {

struct CalculationLine {
    int row = 0;
    int column = 0;
    std::string name;     ///< what gets the result; empty for a call
    std::string symbols;  ///< the expression as it is written, or the call
    std::string numbers;  ///< with the values of that moment for names; the same without names
    std::string result;
    std::string unit;
    std::string rule;  ///< that the target follows
    bool ok = true;
    std::string message;   ///< why it failed
    bool isError = false;  ///< the result is an error such as #DIV/0!
    std::unique_ptr<struct Calculation> child;
};

struct Calculation {
    DeclaredStandard standard;  ///< without variables when its file cannot be read any more
    std::vector<RunReport::Variable> inputs;
    std::vector<RunReport::Variable> outputs;
    std::vector<CalculationLine> lines;
    bool ok = true;
    std::string failure;
    std::vector<std::vector<std::string>> messages;
};

/// A value as people read it: numbers with six figures, never an exponent; the unit behind.
std::string shownValue(const std::string& value, const std::string& unit);

/// `known`, when given, is what the sheet of the report says about itself; else its file is read.
Calculation makeCalculation(const RunReport& report, const DeclaredStandard* known = nullptr);

}  // namespace runs
