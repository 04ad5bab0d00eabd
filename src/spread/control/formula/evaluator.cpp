#include "spread/control/formula/evaluator.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "spread/control/formula/coerce.h"
#include "spread/control/formula/operators.h"
#include "spread/control/formula/places.h"

namespace formula {

namespace {

/// Whether a comparison of two numbers holds; nothing when they are so close that only
/// compareValues can tell whether they count as equal.
inline std::optional<bool> compared(Op op, double a, double b) {
    const double difference = a - b;
    if (!(std::abs(difference) > 1e-13 * std::abs(a))) return std::nullopt;
    const bool isLess = difference < 0;
    switch (op) {
        case Op::equal:
            return false;
        case Op::notEqual:
            return true;
        case Op::less:
        case Op::lessEqual:
            return isLess;
        default:
            return !isLess;
    }
}

/// Not finite where arithmetic() gives an error.
template <Op op>
inline double plainResult(double a, double b) {
    if constexpr (op == Op::add) return a + b;
    if constexpr (op == Op::subtract) return a - b;
    if constexpr (op == Op::multiply) return a * b;
    if constexpr (op == Op::divide) return a / b;
    return b == 2 ? a * a : std::numeric_limits<double>::infinity();
}

/// toBoolean, with the result of a comparison in line.
inline Result<bool> truthOf(const Value& value) {
    return value.isBoolean() ? Result<bool>(value.truth()) : toBoolean(value);
}

inline Value areaOfOne(control::CellAddress cell) {
    const auto col = static_cast<uint16_t>(cell.col);
    return Value::area({cell.row, cell.row, col, col});
}

}  // namespace

const Value* Evaluator::run(const Program& program, int col, int row) {
    const auto needed = static_cast<size_t>(program.stackDepth()) + 1;
    if (m_stack.size() < needed) m_stack.resize(std::max<size_t>(needed, 64));
    m_calculation.m_hostCol = col;
    m_calculation.m_hostRow = row;
    m_calculation.m_dirtyAreas.clear();
    m_calculation.m_workLeft = Calculation::mostWork;
    const Value* end = execute(program);
    if (!end) return nullptr;
    Value& result = m_stack[0];
    if (m_calculation.m_workLeft < 0) [[unlikely]] {
        result = ErrorCode::num;
    } else if (!result.isSingle()) {
        result = single(result);
        if (!m_calculation.m_dirtyAreas.empty()) return nullptr;
    }
    if (result.isEmpty() || result.isMissing()) result = 0.0;  // a cell shows nothing as 0
    return &result;
}

inline Value Evaluator::area(const Instruction& first, const Instruction& second) const {
    const Corners corners =
        cornersOf(first, second, m_calculation.m_hostCol, m_calculation.m_hostRow);
    if (!corners.areInside()) [[unlikely]]
        return ErrorCode::ref;
    return Value::area(corners.area());
}

// A cell that holds no plain number, or a formula's.
Value Evaluator::otherCell(const control::Cell* cell, int col, int row) const {
    if (!cell) return isInside(col, row) ? Value() : Value(ErrorCode::ref);
    return m_calculation.valueOf(*cell, col, row);
}

// The binary operators: `a` becomes the result. False when a cell was met that has to be calculated
// first. Each of arithmetic and comparison has its own code for two numbers; errors go the long
// way.
bool Evaluator::operate(const Instruction& i, Value& a, const Value& b) {
    if (a.isSingle() && b.isSingle()) [[likely]] {
        a = applyBinary(m_calculation, i.op, a, b);
        return true;
    }
    a = binary(i, a, b);
    return m_calculation.m_dirtyAreas.empty();
}

template <Op op>
inline bool Evaluator::compute(const Instruction& i, Value& a, const Value& b) {
    if (a.isNumber() && b.isNumber()) [[likely]] {
        const double result = plainResult<op>(a.number(), b.number());
        if (std::isfinite(result)) [[likely]] {
            a = result;
            return true;
        }
    }
    return operate(i, a, b);
}

template <Op op>
inline bool Evaluator::compare(const Instruction& i, Value& a, const Value& b) {
    if (a.isText() && b.isText()) {
        a = Value::boolean(orderHolds(op, compareTexts(a.text(), b.text())));
        return true;
    }
    const auto is =
        a.isNumber() && b.isNumber() ? compared(op, a.number(), b.number()) : std::optional<bool>();
    if (!is) [[unlikely]]
        return operate(i, a, b);
    a = Value::boolean(*is);
    return true;
}

// The end of the stack, with the result below it; null when a cell was met that has to be
// calculated first. The stack grows upwards from m_stack; `top` is one past its last value.
Value* Evaluator::execute(const Program& program) {
    const auto& dirty = m_calculation.m_dirtyAreas;
    const control::CellStore& cells = *m_calculation.m_cells;
    const int hostCol = m_calculation.m_hostCol;
    const int hostRow = m_calculation.m_hostRow;
    const Constant* const constants = program.constants().data();
    const Instruction* const begin = program.code().data();
    const Instruction* const end = begin + program.code().size();
    Value* top = m_stack.data();
    for (const Instruction* i = begin; i != end;) {
        switch (i->op) {
            case Op::number:
                *top++ = constants[i->a].number;
                break;
            case Op::text:
                *top++ = Value::borrowedText(constants[i->a].text->view());
                break;
            case Op::boolean:
                *top++ = Value::boolean(i->a != 0);
                break;
            case Op::error:
                *top++ = static_cast<ErrorCode>(i->a);
                break;
            case Op::missing:
                *top++ = Value::missing();
                break;
            case Op::cell: {
                const int row = rowOf(*i, hostRow);
                const int col = colOf(*i, hostCol);
                const control::Cell* cell = cells.find(col, row);
                if (cell && m_calculation.isPlainNumber(*cell)) [[likely]] {
                    *top++ = cell->number;
                    break;
                }
                *top++ = otherCell(cell, col, row);
                if (!dirty.empty()) return nullptr;
                break;
            }
            case Op::reference: {
                const auto cell = cellOf(*i, hostCol, hostRow);
                *top++ = cell ? areaOfOne(*cell) : Value(ErrorCode::ref);
                break;
            }
            case Op::area:
            case Op::place:
                *top++ = area(i[0], i[1]);
                ++i;
                break;
            case Op::matrix: {
                Value* first = top - i->a * i->b;
                *first = matrix(*i, first);
                top = first + 1;
                break;
            }
            case Op::negate:
            case Op::percent:
                top[-1] = unary(*i, top[-1]);
                break;
            case Op::add:
                --top;
                if (!compute<Op::add>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::subtract:
                --top;
                if (!compute<Op::subtract>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::multiply:
                --top;
                if (!compute<Op::multiply>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::divide:
                --top;
                if (!compute<Op::divide>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::power:
                --top;
                if (!compute<Op::power>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::equal:
                --top;
                if (!compare<Op::equal>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::notEqual:
                --top;
                if (!compare<Op::notEqual>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::less:
                --top;
                if (!compare<Op::less>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::lessEqual:
                --top;
                if (!compare<Op::lessEqual>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::greater:
                --top;
                if (!compare<Op::greater>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::greaterEqual:
                --top;
                if (!compare<Op::greaterEqual>(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::concatenate:
                --top;
                if (top[-1].isText() && top[0].isText()) {
                    top[-1] = joined(m_calculation, top[-1].text(), top[0].text());
                    break;
                }
                if (!operate(*i, top[-1], top[0])) return nullptr;
                break;
            case Op::range:
                --top;
                top[-1] = spanned(top[-1], top[0]);
                break;
            case Op::single:
                if (top[-1].isSingle()) break;
                top[-1] = single(top[-1]);
                if (!dirty.empty()) return nullptr;
                break;
            case Op::call:
            case Op::callCustom: {
                Value* args = top - i->b;
                const Constant& callee = constants[i->a];
                *args = i->op == Op::call ? call(*callee.function, *i, args)
                                          : callCustom(*callee.custom, {args, top});
                top = args + 1;
                if (!dirty.empty()) return nullptr;
                break;
            }
            case Op::jump:
                i = begin + i->a;
                continue;
            case Op::jumpIfNot: {
                const auto truth = truthOf(top[-1]);
                if (truth) {
                    --top;
                    if (*truth) break;
                    i = begin + i->a;
                } else {
                    top[-1] = truth.error();
                    i = begin + begin[i->a - 1].a;
                }
                continue;
            }
            case Op::jumpUnlessError:
                if (top[-1].isError() && (i->b == 0 || top[-1].error() == ErrorCode::na)) {
                    --top;
                    break;
                }
                i = begin + i->a;
                continue;
            case Op::choose: {
                const auto index = toNumber(top[-1]);
                if (index && *index >= 1 && *index < i->b + 1) {
                    --top;
                    i += static_cast<int>(*index);
                } else {
                    top[-1] = index ? ErrorCode::value : index.error();
                    i = begin + i->a;
                }
                continue;
            }
            case Op::plus:
            case Op::corner:
                break;
            default:
                __builtin_unreachable();
        }
        ++i;
    }
    return top;
}

Value Evaluator::matrix(const Instruction& i, const Value* values) {
    const int cols = i.b;
    Array* array = m_calculation.newArray(i.a, cols);
    if (!array) return ErrorCode::num;
    std::copy(values, values + i.a * cols, array->cells);
    return Value::array(array);
}

Value Evaluator::single(const Value& value) {
    if (value.isSingle()) return value;
    if (value.isArray()) {
        const Array& array = value.array();
        return array.rows * array.cols > 0 ? array.valueAt(0, 0) : Value(ErrorCode::value);
    }
    const Area area = value.area();
    if (area.isOneCell()) return m_calculation.cell(area.col1, area.row1);
    const int row = m_calculation.m_hostRow;
    const int col = m_calculation.m_hostCol;
    if (area.cols() == 1 && row >= area.row1 && row <= area.row2)
        return m_calculation.cell(area.col1, row);
    if (area.rows() == 1 && col >= area.col1 && col <= area.col2)
        return m_calculation.cell(col, area.row1);
    return ErrorCode::value;
}

Value Evaluator::spanned(const Value& a, const Value& b) {
    if (a.isError()) return a;
    if (b.isError()) return b;
    if (!a.isArea() || !b.isArea()) return ErrorCode::value;
    const Area x = a.area();
    const Area y = b.area();
    return Value::area({std::min(x.row1, y.row1), std::max(x.row2, y.row2),
                        std::min(x.col1, y.col1), std::max(x.col2, y.col2)});
}

Value Evaluator::binary(const Instruction& i, const Value& a, const Value& b) {
    if (a.isSingle() && b.isSingle()) [[likely]]
        return applyBinary(m_calculation, i.op, a, b);
    if (!(i.flags & Instruction::inArray))
        return applyBinary(m_calculation, i.op, plainOf(a), plainOf(b));
    const Value operands[] = {a, b};
    return eachElement(operands, [&](int r, int c) {
        return applyBinary(m_calculation, i.op, m_calculation.element(a, r, c),
                           m_calculation.element(b, r, c));
    });
}

Value Evaluator::unary(const Instruction& i, const Value& a) {
    if (a.isSingle()) [[likely]]
        return applyUnary(i.op, a);
    if (!(i.flags & Instruction::inArray)) return applyUnary(i.op, single(a));
    return eachElement(
        {&a, 1}, [&](int r, int c) { return applyUnary(i.op, m_calculation.element(a, r, c)); });
}

Value Evaluator::plainOf(const Value& value) {
    return value.isSingle() ? value : single(value);
}

// An array of what `make` gives for each row and column from 0, as large as the largest of the
// operands that it is made from. Where they all have come to their rest it is made once.
template <class Make>
Value Evaluator::eachElement(Args operands, Make&& make) {
    int rows = 1, cols = 1;
    for (const Value& operand : operands) {
        rows = std::max(rows, Calculation::rows(operand));
        cols = std::max(cols, Calculation::cols(operand));
    }
    const Calculation::Extent stored = storedOf(operands, rows, cols);
    Array* result = m_calculation.newArray(rows, cols, stored);
    if (!result) return ErrorCode::num;
    for (int r = 0; r < stored.rows; ++r)
        for (int c = 0; c < stored.cols; ++c) result->at(r, c) = make(r, c);
    if (result->unstored() > 0) result->rest = make(rows - 1, cols - 1);
    return Value::array(result);
}

// One of another shape is repeated, or is #N/A from somewhere on: then everything is made.
Calculation::Extent Evaluator::storedOf(Args operands, int rows, int cols) const {
    Calculation::Extent stored;
    for (const Value& operand : operands) {
        const int ownRows = Calculation::rows(operand), ownCols = Calculation::cols(operand);
        if (ownRows == 1 && ownCols == 1) continue;
        if (ownRows != rows || ownCols != cols) return {rows, cols};
        const Calculation::Extent own = m_calculation.extent(operand);
        stored.rows = std::max(stored.rows, own.rows);
        stored.cols = std::max(stored.cols, own.cols);
    }
    return stored.rows == 0 ? Calculation::Extent{rows, cols} : stored;
}

inline Value Evaluator::call(const FunctionSpec& function, const Instruction& i, Value* args) {
    const Args all(args, static_cast<size_t>(i.b));
    if (i.flags & Instruction::inArray) return callLifted(function, all);
    return function.call(m_calculation, all);
}

// In an array context a function of plain values is called once for each element.
Value Evaluator::callLifted(const FunctionSpec& function, Args args) {
    const std::string_view params = function.params;
    bool isLifted = false;
    m_operands.clear();
    for (size_t n = 0; n < args.size(); ++n) {
        if (args[n].isSingle() || parameterClass(params, n) != 'v') continue;
        isLifted = true;
        m_operands.push_back(args[n]);
    }
    if (!isLifted) return function.call(m_calculation, args);
    m_lifted.resize(args.size());
    return eachElement(m_operands, [&](int r, int c) {
        size_t work = 50;
        for (size_t n = 0; n < args.size(); ++n) {
            m_lifted[n] = args[n].isSingle() || parameterClass(params, n) != 'v'
                              ? args[n]
                              : m_calculation.element(args[n], r, c);
            if (m_lifted[n].isText()) work += m_lifted[n].text().size();
        }
        if (!m_calculation.spend(static_cast<int64_t>(work))) return Value();
        return plainOf(function.call(m_calculation, m_lifted));
    });
}

Value Evaluator::callCustom(const CustomFunction& function, std::span<Value> args) {
    if (!function.cellArguments)
        for (Value& arg : args) arg = plainOf(arg);
    return function.call(m_calculation, args);
}

}  // namespace formula
