// Call forms that the engine executes itself, instead of the control.
#pragma once

#include <string_view>

#include "core_api/text/vor_string_array.h"

enum class NativeFunction { callChild = 0 };

/// Whether `text` contains the name of one, anywhere and regardless of letter case; `name` is that
/// name, else untouched.
bool findNativeFunction(std::string_view text, Vor_String& name);
/// Nothing known by that name: -1, else a NativeFunction.
int nativeFunctionOf(std::string_view name);

/// CallChild( child file , variable 1 , … ) taken apart.
struct ChildCall {
    Vor_String file;  ///< as written, without quotes
    Vor_StringArray variables;
};
/// False, with the reason, without parentheses after `function` or with fewer than two arguments.
bool parseChildCall(const Vor_String& text, const Vor_String& function, ChildCall& call,
                    Vor_String& reason);
