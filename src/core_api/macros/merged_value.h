// One value that several modules share in a dialog: what the first of them holds, and whether the
// others agree. Setting it makes all agree; while they do not, writing back leaves each as it is.
#pragma once

#include <utility>

template <class T>
class MergedValue {
  public:
    MergedValue() = default;

    /// The value of the first module (or the one set since).
    const T& value() const { return m_value; }
    bool varies() const { return m_varies; }
    void set(T value) {
        m_value = std::move(value);
        m_varies = false;
        m_known = true;
    }
    /// Takes in what the next module holds.
    void merge(const T& value) {
        if (!m_known) {
            set(value);
        } else if (!(m_value == value)) {
            m_varies = true;
        }
    }
    bool operator==(const MergedValue&) const = default;

  private:
    T m_value{};
    bool m_varies = false;
    bool m_known = false;
};
