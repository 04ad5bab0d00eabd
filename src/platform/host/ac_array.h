// The host's growing array, as its own calls and the dialog starters take it. Indexes count from 0.
// Inside the module a Vor_Array or a std::vector serves as well; this one is for the borders.
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

template <class T>
class AcArray {
  public:
    using Reference = typename std::vector<T>::reference;
    using ConstReference = typename std::vector<T>::const_reference;

    AcArray() = default;
    AcArray(std::initializer_list<T> items) : m_items(items) {}

    int length() const { return static_cast<int>(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    bool isIndex(int index) const { return index >= 0 && index < length(); }
    Reference operator[](int index) { return m_items[static_cast<std::size_t>(index)]; }
    ConstReference operator[](int index) const { return m_items[static_cast<std::size_t>(index)]; }

    /// The index that the item got.
    int append(T item) {
        m_items.push_back(std::move(item));
        return length() - 1;
    }
    /// An index outside 0…length changes nothing and gives false.
    bool insertAt(int index, T item) {
        if (index < 0 || index > length()) return false;
        m_items.insert(m_items.begin() + index, std::move(item));
        return true;
    }
    bool removeAt(int index) {
        if (!isIndex(index)) return false;
        m_items.erase(m_items.begin() + index);
        return true;
    }
    void setLogicalLength(int length) { m_items.resize(static_cast<std::size_t>(length)); }
    void removeAll() { m_items.clear(); }

    /// Index of the first equal item, or -1.
    int find(const T& item) const {
        const auto at = std::find(m_items.begin(), m_items.end(), item);
        return at == m_items.end() ? -1 : static_cast<int>(at - m_items.begin());
    }
    bool contains(const T& item) const { return find(item) >= 0; }

    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

    bool operator==(const AcArray&) const = default;

  private:
    std::vector<T> m_items;
};
