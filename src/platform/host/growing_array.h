// The growing array behind the host's AcArray and the core module's Vor_Array: a value with
// indexes from 0. A bad index is told on the command line and changes nothing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <utility>
#include <vector>

#include "platform/export.h"

/// Prints "*Error* Invalid index passed to <action>.\n".
VORMANT_API void reportInvalidIndex(const char* action);

template <class T>
class GrowingArray {
  public:
    GrowingArray() = default;
    GrowingArray(std::initializer_list<T> items) : m_items(items) {}
    explicit GrowingArray(std::vector<T> items) : m_items(std::move(items)) {}

    int length() const { return static_cast<int>(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    decltype(auto) operator[](int index) { return m_items[static_cast<size_t>(index)]; }
    decltype(auto) operator[](int index) const { return m_items[static_cast<size_t>(index)]; }
    bool isIndex(int index) const { return index >= 0 && index < length(); }

    /// The index that the item got.
    int append(T item) {
        m_items.push_back(std::move(item));
        return length() - 1;
    }
    void appendAll(const GrowingArray& others) {
        m_items.insert(m_items.end(), others.m_items.begin(), others.m_items.end());
    }
    /// False, with nothing changed, when `index` is out of range.
    bool insertAt(int index, T item) {
        if (index < 0 || index > length()) return reportInvalidIndex("insert"), false;
        m_items.insert(m_items.begin() + index, std::move(item));
        return true;
    }
    bool removeAt(int index) {
        if (!isIndex(index)) return reportInvalidIndex("remove"), false;
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

    /// Index of the first equal item, or -1.
    int find(const T& item) const {
        const auto found = std::find(m_items.begin(), m_items.end(), item);
        return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
    }
    bool contains(const T& item) const { return find(item) >= 0; }

    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }
    std::span<const T> items() const { return m_items; }

    bool operator==(const GrowingArray&) const = default;

  private:
    std::vector<T> m_items;
};
