// The core module's growing array: a value with indexes from 0.
#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

template <class T>
class Vor_Array {
  public:
    Vor_Array() = default;
    Vor_Array(std::initializer_list<T> items) : m_items(items) {}
    explicit Vor_Array(std::vector<T> items) : m_items(std::move(items)) {}

    int length() const { return static_cast<int>(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    T& operator[](int index) { return m_items[static_cast<size_t>(index)]; }
    const T& operator[](int index) const { return m_items[static_cast<size_t>(index)]; }
    bool isIndex(int index) const { return index >= 0 && index < length(); }

    void append(T item) { m_items.push_back(std::move(item)); }
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
    bool swap(int a, int b) {
        if (!isIndex(a) || !isIndex(b)) return false;
        std::swap(m_items[static_cast<size_t>(a)], m_items[static_cast<size_t>(b)]);
        return true;
    }
    void setLength(int length) { m_items.resize(static_cast<size_t>(length)); }
    void reserve(int length) { m_items.reserve(static_cast<size_t>(length)); }
    void clear() { m_items.clear(); }

    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }
    std::span<const T> items() const { return m_items; }

    bool operator==(const Vor_Array&) const = default;

  private:
    std::vector<T> m_items;
};
