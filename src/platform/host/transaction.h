// The host's transaction: objects are changed inside it as a whole or not at all. Whoever starts
// one remembers the objects that are going to change, hands its address down to the calls that
// read and write them, and commits when all went well:
//
//     AcTransaction transaction;
//     transaction.remember(dbMacro);
//     if (run(dbMacro, &transaction)) transaction.commit();   // else: as it was
#pragma once

#include <functional>
#include <utility>
#include <vector>

class AcTransaction {
  public:
    AcTransaction() = default;
    AcTransaction(const AcTransaction&) = delete;
    AcTransaction& operator=(const AcTransaction&) = delete;
    /// Not committed is aborted.
    ~AcTransaction() { abort(); }

    /// Keeps a copy of `object`, which abort() puts back. The object must outlive the transaction.
    template <class T>
    void remember(T& object) {
        m_undo.push_back([&object, before = object]() mutable { object = std::move(before); });
    }

    bool isActive() const { return m_active; }

    /// Keeps every change. The transaction is over.
    void commit() {
        m_undo.clear();
        m_active = false;
    }
    /// Puts every remembered object back as it was, the last first. The transaction is over.
    void abort() {
        while (!m_undo.empty()) {
            m_undo.back()();
            m_undo.pop_back();
        }
        m_active = false;
    }

  private:
    std::vector<std::function<void()>> m_undo;
    bool m_active = true;
};
