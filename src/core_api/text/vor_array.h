// The core module's growing array: a value with indexes from 0.
#pragma once

#include "platform/host/growing_array.h"

template <class T>
class Vor_Array : public GrowingArray<T> {
  public:
    using GrowingArray<T>::GrowingArray;
};
