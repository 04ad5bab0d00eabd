// The text functions lie in four files: parts and letter case (text_parts.cpp), searching and
// replacing (text_search.cpp), joining (text_join.cpp), numbers as text and back
// (text_numbers.cpp). This is what text.cpp needs to list them.
#pragma once

#include <span>

#include "spread/control/formula/calculation.h"

namespace formula {

using TextCall = Value(Calculation& c, std::span<const Value> args);

TextCall charOfCode, clean, codeOfChar, exact, left, len, lower, mid, proper, rept, right, textOnly,
    trim, unichar, unicode, upper;
TextCall find, replace, search, substitute, textAfter, textBefore;
TextCall concat, concatenate, textJoin;
TextCall dollar, fixed, numberValue, text, value, valueToText;

}  // namespace formula
