// Runs programs. One evaluator serves a sheet; its stack is kept between calculations, so that a
// formula over numbers allocates nothing.
#pragma once

#include <vector>

#include "platform/export.h"
#include "spread/control/formula/calculation.h"
#include "spread/control/formula/program.h"

namespace formula {

class VORMANT_API Evaluator {
  public:
    explicit Evaluator(Calculation& calculation) : m_calculation(calculation) {}

    /// The result of `program` in the cell (col, row), a single value that lives until the
    /// calculation ends. Null when the formula reads cells that are not calculated yet: then the
    /// calculation's dirtyAreas() hold them.
    const Value* run(const Program& program, int col, int row);

  private:
    using Args = std::span<const Value>;
    Value* execute(const Program& program);
    // Rare ways are kept out of line, so that the loop of execute() stays small.
    [[gnu::noinline]] bool operate(const Instruction& i, Value& a, const Value& b);
    template <Op op>
    bool compute(const Instruction& i, Value& a, const Value& b);
    template <Op op>
    bool compare(const Instruction& i, Value& a, const Value& b);
    Value area(const Instruction& first, const Instruction& second) const;
    [[gnu::noinline]] Value otherCell(const control::Cell* cell, int col, int row) const;
    Value single(const Value& value);
    Value plainOf(const Value& value);
    Value unary(const Instruction& i, const Value& a);
    Value binary(const Instruction& i, const Value& a, const Value& b);
    Value spanned(const Value& a, const Value& b);
    Value matrix(const Instruction& i, const Value* values);
    template <class Make>
    Value eachElement(Args operands, Make&& make);
    Calculation::Extent storedOf(Args operands, int rows, int cols) const;
    Value call(const FunctionSpec& function, const Instruction& i, Value* args);
    Value callLifted(const FunctionSpec& function, Args args);
    Value callCustom(const CustomFunction& function, std::span<Value> args);

    Calculation& m_calculation;
    std::vector<Value> m_stack;
    std::vector<Value> m_lifted;
    std::vector<Value> m_operands;  // those of the call that are arrays
};

}  // namespace formula
