// The compiled form of a formula: a flat list of 8-byte instructions in postfix order, and the
// constants they name. References are kept relative to the formula's cell, so that a formula filled
// down a column is one program shared by all its cells. Programs are immutable and interned for the
// whole process.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/export.h"
#include "spread/control/formula/cells.h"
#include "spread/control/formula/function.h"

namespace formula {

/// A function that a host registered with a sheet. It gets its arguments as plain values, or as
/// areas where a cell was written when `cellArguments` is set.
struct CustomFunction {
    std::string name;  ///< upper case
    int least = 0;
    int most = 0;
    bool cellArguments = false;
    std::function<Value(Calculation&, std::span<const Value>)> call;
};

enum class Op : uint8_t {
    number,     ///< push constant a
    text,       ///< push constant a
    boolean,    ///< push a != 0
    error,      ///< push error code a
    missing,    ///< push a left-out argument
    cell,       ///< push the value of the cell in row a, column b
    reference,  ///< push that cell as an area
    area,       ///< push an area; its second corner is the next instruction
    place,      ///< as area, but its cells are not read
    corner,     ///< data of the instruction before
    matrix,     ///< gather the a * b values on the stack into an array of a rows, b columns
    negate,
    plus,
    percent,
    add,
    subtract,
    multiply,
    divide,
    power,
    concatenate,
    equal,
    notEqual,
    less,
    lessEqual,
    greater,
    greaterEqual,
    range,       ///< two references to the area that spans both
    single,      ///< an area or array to one value, by the formula's row or column
    call,        ///< the function that is constant a, with b arguments
    callCustom,  ///< likewise a registered one
    jump,        ///< to instruction a
    jumpIfNot,   ///< pop; to a when false; an error stays and goes where the jump before a goes
    jumpUnlessError,  ///< to a when the top is no error (b = 1: no #N/A); else pop it
    choose,  ///< pop n; go to the n-th of the b jumps that follow; else push #VALUE!, go to a
};

/// Kept small: programs are most of what a loaded standard takes in memory.
struct Instruction {
    static constexpr uint8_t relativeRow = 1, relativeCol = 2, wholeCol = 4, wholeRow = 8,
                             inArray = 16;
    Op op = Op::number;
    uint8_t flags = 0;
    int16_t b = 0;  ///< of a place: the column, absolute or the distance from the formula's cell
    int32_t a = 0;  ///< of a place: the row likewise

    bool operator==(const Instruction&) const = default;
};
static_assert(sizeof(Instruction) == 8);

/// What is too large for an instruction. Which of these it is, the instruction tells.
union Constant {
    double number;
    const control::TextBlock* text;
    const FunctionSpec* function;
    const CustomFunction* custom;
    uint64_t bits = 0;
};
static_assert(sizeof(Constant) == 8);

/// All that makes up a program.
struct Code {
    std::span<const Instruction> instructions;
    std::span<const Constant> constants;
    int stackDepth = 0;
    bool isVolatile = false;
};

class ProgramRef;

/// Instructions and then constants lie right behind the object: a program is one piece of memory.
class VORMANT_API Program {
  public:
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    std::span<const Instruction> code() const {
        return {reinterpret_cast<const Instruction*>(this + 1), m_size};
    }
    std::span<const Constant> constants() const {
        const void* start = reinterpret_cast<const Instruction*>(this + 1) + m_size;
        return {static_cast<const Constant*>(start), m_constantCount};
    }
    int stackDepth() const { return m_stackDepth; }
    bool isVolatile() const { return m_isVolatile; }

  private:
    friend class ProgramPool;
    friend class ProgramRef;
    friend ProgramRef makeOwn(const Code& code);
    static Program* make(const Code& code);
    static void release(Program* program);
    Program() = default;

    // A formula of maxFormulaLength characters has fewer constants and needs less of a stack.
    uint32_t m_references = 0;
    uint32_t m_hash = 0;
    uint16_t m_stackDepth = 0;
    uint16_t m_constantCount = 0;
    uint32_t m_size : 30 = 0;
    bool m_isVolatile : 1 = false;
    bool m_isPooled : 1 = false;
};
static_assert(sizeof(Program) == 16 && sizeof(Instruction) % alignof(Constant) == 0);

/// Shares a program. Counted without locks: everything runs on one thread.
class VORMANT_API ProgramRef {
  public:
    ProgramRef() = default;
    explicit ProgramRef(Program* program) : m_program(program) { retain(); }
    ProgramRef(const ProgramRef& other) : m_program(other.m_program) { retain(); }
    ProgramRef(ProgramRef&& other) noexcept : m_program(std::exchange(other.m_program, nullptr)) {}
    ProgramRef& operator=(ProgramRef other) noexcept {
        std::swap(m_program, other.m_program);
        return *this;
    }
    ~ProgramRef() {
        if (m_program && --m_program->m_references == 0) destroy(m_program);
    }

    explicit operator bool() const { return m_program != nullptr; }
    const Program* operator->() const { return m_program; }
    const Program& operator*() const { return *m_program; }
    const Program* get() const { return m_program; }

  private:
    void retain() {
        if (m_program) ++m_program->m_references;
    }
    static void destroy(Program* program);
    Program* m_program = nullptr;
};

/// Gives back the texts among the constants.
VORMANT_API void releaseTexts(std::span<const Instruction> instructions,
                              std::span<const Constant> constants);
/// Gives the one shared program with this code; owns the texts of `code` afterwards.
VORMANT_API ProgramRef intern(const Code& code);
/// A program of its own, for a formula that has no likes: quicker to make and to forget.
VORMANT_API ProgramRef makeOwn(const Code& code);

}  // namespace formula
