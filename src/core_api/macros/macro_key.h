// Keys of macro files: names joined by dots. A dot inside a name is written twice, so that any
// macro name (which never begins with one) can stand in a key.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// "module" "Plate.1" "var" "D1" gives "module.Plate..1.var.D1".
std::string joinMacroKey(std::initializer_list<std::string_view> names);

/// The names that a key is made of; an empty list when one of them is empty.
std::vector<std::string> splitMacroKey(std::string_view key);
