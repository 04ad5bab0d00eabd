#include "spread/control/formula/program.h"

#include <algorithm>
#include <unordered_set>

namespace formula {

using control::TextBlock;

/// Every living program by its code.
class ProgramPool {
  public:
    static ProgramPool& instance() {
        // Never destroyed: sheets of static lifetime give programs back after main.
        static auto* pool = new ProgramPool;
        return *pool;
    }

    ProgramRef intern(std::span<const Instruction> code, int stackDepth, bool isVolatile) {
        const size_t hash = hashOf(code);
        const auto place = m_programs.find(Key{code, hash});
        if (place != m_programs.end()) {
            releaseTexts(code);
            return ProgramRef(*place);
        }
        auto* program = new Program;
        program->m_code.assign(code.begin(), code.end());
        program->m_stackDepth = stackDepth;
        program->m_isVolatile = isVolatile;
        program->m_hash = hash;
        m_programs.insert(program);
        return ProgramRef(program);
    }

    void remove(Program* program) {
        m_programs.erase(program);
        releaseTexts(program->m_code);
        delete program;
    }

  private:
    struct Key {
        std::span<const Instruction> code;
        size_t hash;
    };
    static bool same(std::span<const Instruction> a, std::span<const Instruction> b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](const Instruction& x, const Instruction& y) {
                              if (x.op == Op::text && y.op == Op::text)
                                  return x.text->view() == y.text->view();
                              return x == y;
                          });
    }
    struct Hash {
        using is_transparent = void;
        size_t operator()(const Program* p) const { return p->m_hash; }
        size_t operator()(const Key& k) const { return k.hash; }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(const Program* a, const Program* b) const { return a == b; }
        bool operator()(const Key& k, const Program* p) const {
            return k.hash == p->m_hash && same(k.code, p->code());
        }
        bool operator()(const Program* p, const Key& k) const { return (*this)(k, p); }
    };

    static size_t hashOf(std::span<const Instruction> code) {
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
        return hash ^ hash >> 32;
    }
    static void releaseTexts(std::span<const Instruction> code) {
        for (const Instruction& i : code)
            if (i.op == Op::text) TextBlock::release(const_cast<TextBlock*>(i.text));
    }

    std::unordered_set<Program*, Hash, Equal> m_programs;
};

void ProgramRef::destroy(Program* program) {
    ProgramPool::instance().remove(program);
}

ProgramRef intern(std::span<const Instruction> code, int stackDepth, bool isVolatile) {
    return ProgramPool::instance().intern(code, stackDepth, isVolatile);
}

}  // namespace formula
