// The constraints of a module as their editor shows them.
#pragma once

#include <functional>

#include "core_api/text/vor_array.h"
#include "core_api/text/vor_string.h"

struct EditConstraint {
    Vor_String name;
    double value = 0;  ///< millimetres, or degrees
    bool isAngle = false;
    bool isFixed = false;  ///< to its value; else it follows the geometry

    bool operator==(const EditConstraint&) const = default;
};

class VORMANT_API EditConstrData {
  public:
    virtual ~EditConstrData() = default;

    Vor_String moduleName;
    Vor_Array<EditConstraint> constraints;
    /// Hears of the edited data when the user confirms: the editor hands nothing back to its
    /// caller's object. May be empty.
    std::function<void(const EditConstrData&)> apply;
};
