#include "spread/control/formula/evaluator.h"

#include <algorithm>

#include "spread/control/formula/coerce.h"
#include "spread/control/formula/operators.h"
#include "spread/control/formula/places.h"

namespace formula {

Value Evaluator::run(const Program& program, int col, int row, bool& blocked) {
    const auto needed = static_cast<size_t>(program.stackDepth()) + 1;
    if (m_stack.size() < needed) m_stack.resize(std::max<size_t>(needed, 64));
    m_top = m_stack.data();
    m_calculation.m_hostCol = col;
    m_calculation.m_hostRow = row;
    m_calculation.m_dirtyAreas.clear();
    const auto code = program.code();
    blocked = !execute(code.data(), code.data() + code.size());
    if (blocked) return Value();
    const Value& result = m_top[-1];
    return result.isSingle() && !result.isEmpty() && !result.isMissing() ? result
           : result.isSingle()                                           ? Value(0.0)
                                                                         : single(result);
}

inline Value Evaluator::area(const Instruction& first, const Instruction& second) const {
    const auto area = areaOf(first, second, m_calculation.m_hostCol, m_calculation.m_hostRow);
    return area ? Value::area(*area) : Value(ErrorCode::ref);
}

inline Value Evaluator::cell(const Instruction& i) const {
    const int row = rowOf(i, m_calculation.m_hostRow);
    const int col = colOf(i, m_calculation.m_hostCol);
    if (!isInside(col, row)) [[unlikely]]
        return ErrorCode::ref;
    return m_calculation.cell(col, row);
}

// False when a cell was met that has to be calculated first.
bool Evaluator::execute(const Instruction* begin, const Instruction* end) {
    const auto& dirty = m_calculation.m_dirtyAreas;
    for (const Instruction* i = begin; i != end;) {
        switch (i->op) {
            case Op::number:
                push(i->number);
                ++i;
                break;
            case Op::text:
                push(Value::borrowedText(i->text->view()));
                ++i;
                break;
            case Op::boolean:
                push(Value::boolean(i->a != 0));
                ++i;
                break;
            case Op::error:
                push(static_cast<ErrorCode>(i->a));
                ++i;
                break;
            case Op::missing:
                push(Value::missing());
                ++i;
                break;
            case Op::cell:
                push(cell(*i));
                if (!dirty.empty()) return false;
                ++i;
                break;
            case Op::reference:
                push(area(*i, *i));
                ++i;
                break;
            case Op::area:
            case Op::place:
                push(area(i[0], i[1]));
                i += 2;
                break;
            case Op::corner:
                ++i;
                break;
            case Op::matrix: {
                const Value gathered = matrix(*i);
                m_top -= i->a * i->place.row;
                push(gathered);
                ++i;
                break;
            }
            case Op::negate:
                if (m_top[-1].isNumber()) {
                    m_top[-1] = m_top[-1].number() == 0 ? 0.0 : -m_top[-1].number();
                    ++i;
                    break;
                }
                [[fallthrough]];
            case Op::percent:
                m_top[-1] = unarySlow(i->op, i->flags, m_top[-1]);
                ++i;
                break;
            case Op::add:
            case Op::subtract:
            case Op::multiply:
            case Op::divide:
            case Op::power:
                --m_top;
                if (m_top[-1].isNumber() && m_top[0].isNumber()) [[likely]]
                    m_top[-1] = arithmetic(i->op, m_top[-1].number(), m_top[0].number());
                else
                    m_top[-1] = binarySlow(i->op, i->flags, m_top[-1], m_top[0]);
                if (!dirty.empty()) return false;
                ++i;
                break;
            case Op::concatenate:
            case Op::equal:
            case Op::notEqual:
            case Op::less:
            case Op::lessEqual:
            case Op::greater:
            case Op::greaterEqual:
                --m_top;
                m_top[-1] = binarySlow(i->op, i->flags, m_top[-1], m_top[0]);
                if (!dirty.empty()) return false;
                ++i;
                break;
            case Op::range:
                --m_top;
                m_top[-1] = spanned(m_top[-1], m_top[0]);
                ++i;
                break;
            case Op::single:
                if (!m_top[-1].isSingle()) m_top[-1] = single(m_top[-1]);
                if (!dirty.empty()) return false;
                ++i;
                break;
            case Op::call:
            case Op::callCustom: {
                Value* args = m_top - i->argc;
                const Value result = i->op == Op::call ? call(*i, args) : callCustom(*i, args);
                m_top = args;
                push(result);
                if (!dirty.empty()) return false;
                ++i;
                break;
            }
            case Op::jump:
                i = begin + i->a;
                break;
            case Op::jumpIfNot:
                i = jumpIfNot(*i, begin);
                break;
            case Op::jumpUnlessError: {
                const Value& top = m_top[-1];
                const bool isCaught = top.isError() && (i->b == 0 || top.error() == ErrorCode::na);
                if (isCaught) --m_top;
                i = isCaught ? i + 1 : begin + i->a;
                break;
            }
            case Op::choose:
                i = choose(*i, begin);
                break;
            case Op::plus:
                ++i;
                break;
        }
    }
    return true;
}

Value Evaluator::matrix(const Instruction& i) {
    const int cols = i.place.row;
    Array* array = m_calculation.newArray(i.a, cols);
    if (!array) return ErrorCode::num;
    std::copy(m_top - i.a * cols, m_top, array->cells);
    return Value::array(array);
}

const Instruction* Evaluator::jumpIfNot(const Instruction& i, const Instruction* begin) {
    const Value condition = *--m_top;
    const auto truth =
        condition.isBoolean() ? Result<bool>(condition.truth()) : toBoolean(condition);
    if (truth) return *truth ? &i + 1 : begin + i.a;
    push(truth.error());
    return begin + i.place.row;
}

const Instruction* Evaluator::choose(const Instruction& i, const Instruction* begin) {
    const auto index = toNumber(*--m_top);
    if (index && *index >= 1 && *index < i.argc + 1) return &i + static_cast<int>(*index);
    push(index ? ErrorCode::value : index.error());
    return begin + i.a;
}

Value Evaluator::single(const Value& value) {
    if (value.isArray()) {
        const Array& array = value.array();
        return array.rows * array.cols > 0 ? array.cells[0] : Value(ErrorCode::value);
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

Value Evaluator::binarySlow(Op op, uint8_t flags, const Value& a, const Value& b) {
    if (a.isSingle() && b.isSingle()) [[likely]] {
        if (a.isNumber() && b.isNumber() && op >= Op::equal) {
            // Numbers closer than this may still count as equal: compareValues decides.
            const double difference = a.number() - b.number();
            if (std::abs(difference) > 1e-13 * std::abs(a.number())) {
                const bool isLess = difference < 0;
                const bool wantsLess = op == Op::less || op == Op::lessEqual;
                const bool wantsGreater = op == Op::greater || op == Op::greaterEqual;
                return Value::boolean(op == Op::notEqual || (isLess ? wantsLess : wantsGreater));
            }
        }
        return applyBinary(m_calculation, op, a, b);
    }
    if (!(flags & Instruction::inArray)) return binarySlow(op, flags, single(a), single(b));
    const int rows = std::max(Calculation::rows(a), Calculation::rows(b));
    const int cols = std::max(Calculation::cols(a), Calculation::cols(b));
    Array* result = m_calculation.newArray(rows, cols);
    if (!result) return ErrorCode::num;
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c)
            result->at(r, c) = applyBinary(m_calculation, op, m_calculation.element(a, r, c),
                                           m_calculation.element(b, r, c));
    return Value::array(result);
}

Value Evaluator::unarySlow(Op op, uint8_t flags, const Value& a) {
    if (a.isSingle()) return applyUnary(op, a);
    if (!(flags & Instruction::inArray)) return applyUnary(op, single(a));
    const int rows = Calculation::rows(a);
    const int cols = Calculation::cols(a);
    Array* result = m_calculation.newArray(rows, cols);
    if (!result) return ErrorCode::num;
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c)
            result->at(r, c) = applyUnary(op, m_calculation.element(a, r, c));
    return Value::array(result);
}

Value Evaluator::call(const Instruction& i, Value* args) {
    if (i.flags & Instruction::inArray) return callLifted(i, args);
    return i.function->call(m_calculation, Args(args, i.argc));
}

// In an array context a function of plain values is called once for each element.
Value Evaluator::callLifted(const Instruction& i, Value* args) {
    const std::string_view params = i.function->params;
    int rows = 1, cols = 1;
    bool isLifted = false;
    const auto takesPlain = [&](size_t n) { return parameterClass(params, n) == 'v'; };
    for (size_t n = 0; n < i.argc; ++n) {
        if (args[n].isSingle() || !takesPlain(n)) continue;
        isLifted = true;
        rows = std::max(rows, Calculation::rows(args[n]));
        cols = std::max(cols, Calculation::cols(args[n]));
    }
    if (!isLifted) return i.function->call(m_calculation, Args(args, i.argc));
    Array* result = m_calculation.newArray(rows, cols);
    if (!result) return ErrorCode::num;
    m_lifted.resize(i.argc);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c) {
            for (size_t n = 0; n < i.argc; ++n)
                m_lifted[n] = args[n].isSingle() || !takesPlain(n)
                                  ? args[n]
                                  : m_calculation.element(args[n], r, c);
            const Value one = i.function->call(m_calculation, Args(m_lifted.data(), i.argc));
            result->at(r, c) = one.isSingle() ? one : single(one);
        }
    return Value::array(result);
}

Value Evaluator::callCustom(const Instruction& i, Value* args) {
    if (!i.custom->cellArguments)
        for (int n = 0; n < i.argc; ++n)
            if (!args[n].isSingle()) args[n] = single(args[n]);
    return i.custom->call(m_calculation, Args(args, i.argc));
}

}  // namespace formula
