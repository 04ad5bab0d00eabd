// Collects the instructions of a program that is being parsed, and keeps account of the stack they
// will need. There is one at a time.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <memory>
#include <span>

#include "spread/control/formula/program.h"

namespace formula {

/// What the code emitted last leaves on the stack.
enum class Kind {
    single,     ///< one plain value for certain
    reference,  ///< the last instruction is Op::reference
    area,       ///< the last two instructions are an Op::area
    open,       ///< a value, an area or an array: only the calculation tells
};

/// A list that keeps its memory when it is emptied, and adds in few steps.
template <class T>
class Scratch {
  public:
    void add(const T& item) { room() = item; }
    /// A further item, to be written.
    T& room() {
        if (m_size == m_room) [[unlikely]]
            grow();
        return m_items[m_size++];
    }
    T& operator[](size_t index) { return m_items[index]; }
    T& back() { return m_items[m_size - 1]; }
    size_t size() const { return m_size; }
    void clear() { m_size = 0; }
    std::span<const T> items() const { return {m_items.get(), m_size}; }

  private:
    void grow() {
        m_room = m_room * 2 + 64;
        auto items = std::make_unique<T[]>(m_room);
        std::copy_n(m_items.get(), m_size, items.get());
        m_items = std::move(items);
    }

    std::unique_ptr<T[]> m_items;
    size_t m_size = 0;
    size_t m_room = 0;
};

class CodeBuilder {
  public:
    CodeBuilder() { assert(m_code.size() == 0 && m_constants.size() == 0); }
    CodeBuilder(const CodeBuilder&) = delete;
    CodeBuilder& operator=(const CodeBuilder&) = delete;
    ~CodeBuilder() {
        releaseTexts(m_code.items(), m_constants.items());
        forgetCode();
    }

    /// Whether areas stay areas: inside an argument that takes arrays, or an array formula.
    bool inArray = false;
    bool isVolatile = false;

    /// `depthChange`: how many values more there are on the stack afterwards.
    Instruction& emit(Op op, int depthChange) {
        adjustDepth(depthChange);
        // Written where it stays: it could not be copied before its parts have reached the cache.
        Instruction& i = m_code.room();
        i.op = op;
        i.flags = inArray ? Instruction::inArray : 0;
        i.b = 0;
        i.a = 0;
        return i;
    }
    /// An instruction about a constant; owns it when it is a text.
    Instruction& emit(Op op, int depthChange, Constant constant) {
        Instruction& i = emit(op, depthChange);
        i.a = static_cast<int32_t>(m_constants.size());
        m_constants.add(constant);
        return i;
    }
    /// An instruction that is data of the one before.
    void append(const Instruction& data) { m_code.add(data); }
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
        const Code code{m_code.items(), m_constants.items(), m_maxDepth, isVolatile};
        ProgramRef program = isShared ? intern(code) : makeOwn(code);
        forgetCode();
        return program;
    }

  private:
    /// The memory that the formula before used: thousands are parsed, one after another.
    template <class T>
    static Scratch<T>& memory() {
        static Scratch<T> instance;
        return instance;
    }
    void forgetCode() {
        m_code.clear();
        m_constants.clear();
    }

    Scratch<Instruction>& m_code = memory<Instruction>();
    Scratch<Constant>& m_constants = memory<Constant>();
    int m_depth = 0;
    int m_maxDepth = 0;
};

}  // namespace formula
