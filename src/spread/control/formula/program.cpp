#include "spread/control/formula/program.h"

#include <algorithm>
#include <memory>
#include <new>

namespace formula {

using control::TextBlock;

Program* Program::make(std::span<const Instruction> code, int stackDepth, bool isVolatile) {
    void* memory = ::operator new(sizeof(Program) + code.size_bytes());
    auto* program = new (memory) Program;
    program->m_size = static_cast<uint32_t>(code.size());
    program->m_stackDepth = static_cast<uint32_t>(stackDepth) & 0x3FFFFFFFU;
    program->m_isVolatile = isVolatile;
    std::uninitialized_copy(code.begin(), code.end(), reinterpret_cast<Instruction*>(program + 1));
    return program;
}

void Program::release(Program* program) {
    program->~Program();
    ::operator delete(program);
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

    ProgramRef intern(std::span<const Instruction> code, int stackDepth, bool isVolatile) {
        const uint32_t hash = hashOf(code);
        size_t at = hash & mask();
        for (; m_slots[at].program; at = (at + 1) & mask()) {
            if (m_slots[at].hash != hash || !same(code, m_slots[at].program->code())) continue;
            releaseTexts(code);
            return ProgramRef(m_slots[at].program);
        }
        Program* program = Program::make(code, stackDepth, isVolatile);
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

    static bool same(std::span<const Instruction> a, std::span<const Instruction> b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](const Instruction& x, const Instruction& y) {
                              if (x.op == Op::text && y.op == Op::text)
                                  return x.text->view() == y.text->view();
                              return x == y;
                          });
    }
    static uint32_t hashOf(std::span<const Instruction> code) {
        size_t hash = code.size();
        for (const Instruction& i : code) {
            const size_t payload =
                i.op == Op::text ? std::hash<std::string_view>()(i.text->view()) : i.bits;
            const size_t head = static_cast<size_t>(i.op) | static_cast<size_t>(i.flags) << 8 |
                                static_cast<size_t>(i.argc) << 16 | static_cast<size_t>(i.b) << 24 |
                                static_cast<size_t>(static_cast<uint32_t>(i.a)) << 32;
            hash = (hash ^ head) * 0x9E3779B97F4A7C15ULL;
            hash = (hash ^ payload ^ hash >> 29) * 0xBF58476D1CE4E5B9ULL;
        }
        return static_cast<uint32_t>(hash ^ hash >> 32);
    }
    static void releaseTexts(std::span<const Instruction> code) {
        for (const Instruction& i : code)
            if (i.op == Op::text) TextBlock::release(const_cast<TextBlock*>(i.text));
    }

    std::vector<Slot> m_slots = std::vector<Slot>(1024);  // a power of two, half of it free
    size_t m_count = 0;
};

void ProgramRef::destroy(Program* program) {
    if (program->m_isPooled) ProgramPool::instance().remove(program);
    for (const Instruction& i : program->code())
        if (i.op == Op::text) TextBlock::release(const_cast<TextBlock*>(i.text));
    Program::release(program);
}

ProgramRef makeOwn(std::span<const Instruction> code, int stackDepth, bool isVolatile) {
    return ProgramRef(Program::make(code, stackDepth, isVolatile));
}

ProgramRef intern(std::span<const Instruction> code, int stackDepth, bool isVolatile) {
    return ProgramPool::instance().intern(code, stackDepth, isVolatile);
}

}  // namespace formula
