// The host's growing array, as its own calls and the dialog starters take it. Indexes count from 0.
// Inside the module a Vor_Array or a std::vector serves as well; this one is for the borders.
#pragma once

#include "platform/host/growing_array.h"

template <class T>
class AcArray : public GrowingArray<T> {
  public:
    using GrowingArray<T>::GrowingArray;

    void setLogicalLength(int length) { this->setLength(length); }
    void removeAll() { this->clear(); }
};
