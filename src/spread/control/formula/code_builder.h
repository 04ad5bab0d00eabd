// Collects the instructions of a program that is being parsed, and keeps account of the stack they
// will need.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "spread/control/formula/program.h"

namespace formula {

/// What the code emitted last leaves on the stack.
enum class Kind {
    single,     ///< one plain value for certain
    reference,  ///< the last instruction is Op::reference
    area,       ///< the last two instructions are an Op::area
    open,       ///< a value, an area or an array: only the calculation tells
};

class CodeBuilder {
  public:
    CodeBuilder() { m_code.swap(spareMemory()); }
    CodeBuilder(const CodeBuilder&) = delete;
    CodeBuilder& operator=(const CodeBuilder&) = delete;
    ~CodeBuilder() {
        for (const Instruction& i : m_code)
            if (i.op == Op::text)
                control::TextBlock::release(const_cast<control::TextBlock*>(i.text));
        m_code.clear();
        m_code.swap(spareMemory());
    }

    /// Whether areas stay areas: inside an argument that takes arrays, or an array formula.
    bool inArray = false;
    bool isVolatile = false;

    /// `depthChange`: how many values more there are on the stack afterwards.
    Instruction& emit(Op op, int depthChange) {
        Instruction& i = m_code.emplace_back();
        i.op = op;
        if (inArray) i.flags |= Instruction::inArray;
        adjustDepth(depthChange);
        return i;
    }
    /// An instruction that is data of the one before.
    void append(const Instruction& data) { m_code.push_back(data); }
    Instruction& operator[](size_t index) { return m_code[index]; }
    Instruction& back() { return m_code.back(); }
    size_t position() const { return m_code.size(); }
    void jumpHere(size_t from) { m_code[from].a = static_cast<int32_t>(position()); }
    void adjustDepth(int change) {
        m_depth += change;
        m_maxDepth = std::max(m_maxDepth, m_depth);
    }
    void emitSingle() { emit(Op::single, 0).flags = 0; }
    /// Turns a reference into the value of its cell; areas become one value too, but in an array
    /// context they stay what they are.
    void makeSingle(Kind& kind) {
        if (kind == Kind::reference) {
            m_code.back().op = Op::cell;
            kind = Kind::single;
        } else if ((kind == Kind::area || kind == Kind::open) && !inArray) {
            emitSingle();
            kind = Kind::single;
        }
    }

    /// The program; it owns the texts from now on.
    ProgramRef finish(bool isShared) {
        ProgramRef program = (isShared ? intern : makeOwn)(m_code, m_maxDepth, isVolatile);
        m_code.clear();
        return program;
    }

  private:
    /// What the formula before used; thousands are parsed one after another.
    static std::vector<Instruction>& spareMemory() {
        static std::vector<Instruction> spare;
        return spare;
    }

    std::vector<Instruction> m_code;
    int m_depth = 0;
    int m_maxDepth = 0;
};

}  // namespace formula
