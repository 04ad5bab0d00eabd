// The name of one object of a drawing. It can be kept, compared and copied; only the container that
// handed it out can turn it back into the object.
#pragma once

#include <compare>

class AcDbObjectId {
  public:
    /// The null id, which names nothing.
    constexpr AcDbObjectId() = default;
    constexpr explicit AcDbObjectId(long long handle) : m_handle(handle) {}

    constexpr bool isNull() const { return m_handle == 0; }
    constexpr long long handle() const { return m_handle; }
    constexpr auto operator<=>(const AcDbObjectId&) const = default;

  private:
    long long m_handle = 0;
};
