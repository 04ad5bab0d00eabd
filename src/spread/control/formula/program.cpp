#include "spread/control/formula/program.h"

#include <algorithm>
#include <bit>
#include <memory>
#include <new>

#include "platform/small_blocks.h"

namespace formula {

using control::TextBlock;

namespace {

bool hasConstant(Op op) {
    return op == Op::number || op == Op::text || op == Op::call || op == Op::callCustom;
}

size_t bytesOf(size_t instructions, size_t constants) {
    return sizeof(Program) + instructions * sizeof(Instruction) + constants * sizeof(Constant);
}

SmallBlocks& memory() {
    // Never destroyed: sheets of static lifetime give programs back after main.
    static auto* blocks = new SmallBlocks;
    return *blocks;
}

}  // namespace

void releaseTexts(std::span<const Instruction> instructions, std::span<const Constant> constants) {
    for (const Instruction& i : instructions)
        if (i.op == Op::text)
            TextBlock::release(const_cast<TextBlock*>(constants[static_cast<size_t>(i.a)].text));
}

Program* Program::make(const Code& code) {
    void* place = memory().take(bytesOf(code.instructions.size(), code.constants.size()));
    auto* program = new (place) Program;
    program->m_size = static_cast<uint32_t>(code.instructions.size()) & 0x3FFFFFFFU;
    program->m_constantCount = static_cast<uint16_t>(code.constants.size());
    program->m_stackDepth = static_cast<uint16_t>(code.stackDepth);
    program->m_isVolatile = code.isVolatile;
    auto* instructions = reinterpret_cast<Instruction*>(program + 1);
    instructions =
        std::uninitialized_copy(code.instructions.begin(), code.instructions.end(), instructions);
    std::uninitialized_copy(code.constants.begin(), code.constants.end(),
                            reinterpret_cast<Constant*>(instructions));
    return program;
}

void Program::release(Program* program) {
    const size_t bytes = bytesOf(program->code().size(), program->constants().size());
    program->~Program();
    memory().giveBack(program, bytes);
}

/// Every living program by its code, in an open table that holds the hashes too: looking for a
/// program that is not there yet touches no other one.
class ProgramPool {
  public:
    static ProgramPool& instance() {
        // Never destroyed: sheets of static lifetime give programs back after main.
        static auto* pool = new ProgramPool;
        return *pool;
    }

    ProgramRef intern(const Code& code) {
        const uint32_t hash = hashOf(code);
        size_t at = hash & mask();
        for (; m_slots[at].program; at = (at + 1) & mask()) {
            if (m_slots[at].hash != hash || !isSame(code, *m_slots[at].program)) continue;
            releaseTexts(code.instructions, code.constants);
            return ProgramRef(m_slots[at].program);
        }
        Program* program = Program::make(code);
        program->m_hash = hash;
        program->m_isPooled = true;
        m_slots[at] = {hash, program};
        if (++m_count * 2 > m_slots.size()) grow();
        return ProgramRef(program);
    }

    void remove(Program* program) {
        size_t hole = program->m_hash & mask();
        while (m_slots[hole].program != program) hole = (hole + 1) & mask();
        // What stands behind moves up as long as it stays in reach of its own place.
        for (size_t at = (hole + 1) & mask(); m_slots[at].program; at = (at + 1) & mask()) {
            const size_t distance = (at - m_slots[at].hash) & mask();
            if (distance < ((at - hole) & mask())) continue;
            m_slots[hole] = m_slots[at];
            hole = at;
        }
        m_slots[hole] = {};
        --m_count;
    }

  private:
    struct Slot {
        uint32_t hash = 0;
        Program* program = nullptr;  // null: free
    };

    size_t mask() const { return m_slots.size() - 1; }
    void grow() {
        std::vector<Slot> old(m_slots.size() * 2);
        old.swap(m_slots);
        for (const Slot& slot : old) {
            if (!slot.program) continue;
            size_t at = slot.hash & mask();
            while (m_slots[at].program) at = (at + 1) & mask();
            m_slots[at] = slot;
        }
    }

    /// Constants stand in the order of their instructions, so equal code has equal numbers.
    static bool isSame(const Code& code, const Program& program) {
        const auto other = program.code();
        if (!std::equal(code.instructions.begin(), code.instructions.end(), other.begin(),
                        other.end()))
            return false;
        const auto isSameConstant = [&](const Instruction& i) {
            if (!hasConstant(i.op)) return true;
            const auto at = static_cast<size_t>(i.a);
            const Constant& a = code.constants[at];
            const Constant& b = program.constants()[at];
            return i.op == Op::text ? a.text->view() == b.text->view() : a.bits == b.bits;
        };
        return std::all_of(other.begin(), other.end(), isSameConstant);
    }
    /// A sum of products, so that none waits for the one before.
    static uint32_t hashOf(const Code& code) {
        constexpr uint64_t step = 0x9E3779B97F4A7C16U;
        uint64_t hash = code.instructions.size(), factor = 0xBF58476D1CE4E5B9U;
        const auto mix = [&](uint64_t bits) {
            hash += (bits ^ bits >> 32) * factor;
            factor += step;  // stays odd
        };
        for (const Instruction& i : code.instructions) {
            mix(std::bit_cast<uint64_t>(i));
            if (!hasConstant(i.op)) continue;
            const Constant& constant = code.constants[static_cast<size_t>(i.a)];
            mix(i.op == Op::text ? std::hash<std::string_view>()(constant.text->view())
                                 : constant.bits);
        }
        return static_cast<uint32_t>(hash >> 32);
    }

    std::vector<Slot> m_slots = std::vector<Slot>(1024);  // a power of two, half of it free
    size_t m_count = 0;
};

void ProgramRef::destroy(Program* program) {
    if (program->m_isPooled) ProgramPool::instance().remove(program);
    releaseTexts(program->code(), program->constants());
    Program::release(program);
}

ProgramRef makeOwn(const Code& code) {
    return ProgramRef(Program::make(code));
}

ProgramRef intern(const Code& code) {
    return ProgramPool::instance().intern(code);
}

}  // namespace formula
