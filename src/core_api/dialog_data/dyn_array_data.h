// An array of a macro: repeated modules, either evenly spread or at single distances. Its five
// texts are kept as typed, since they may name variables.
#pragma once

#include <array>

#include "core_api/text/vor_array.h"
#include "core_api/text/vor_string.h"

class VORMANT_API DynArrayData {
  public:
    enum class Mode { single = 0, even = 1 };
    /// The five texts; spacing counts in mode even only.
    enum Text { number, startOffset, spacing, endOffset, direction };
    static constexpr int textCount = 5;

    virtual ~DynArrayData() = default;

    Vor_String name;
    Mode mode = Mode::single;
    std::array<Vor_String, textCount> texts;
    /// The single distances.
    Vor_Array<Vor_String> entries;
};
