// Between the module's Windows-1252 texts and the UTF-8 of terminals, CSV and JSON. Texts are
// appended to a line that is being written, since filters write millions of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace exchange {

/// Appends `text` (Windows-1252) as UTF-8.
void appendUtf8(std::string& line, std::string_view text);

/// Appends `text` (Windows-1252, or UTF-8) as a JSON string with its quotes.
void appendJsonText(std::string& line, std::string_view text);
void appendJsonUtf8(std::string& line, std::string_view utf8);

/// Appends a finite number so that it reads back as the same number; no exponent below 1e15.
void appendNumber(std::string& line, double number);

/// Appends a number for people to read: six figures.
void appendRounded(std::string& line, double number);
/// The number that it shows.
double asShown(double number);

/// `message` (UTF-8) with every line cut to a length that a person would read, in its middle, where
/// it repeats a huge text.
std::string shortened(std::string_view message);

/// `utf8` in Windows-1252 in `text`; false with the reason in `error` when it holds a character
/// that Windows-1252 lacks, a zero byte, or is no UTF-8.
bool fromUtf8(std::string_view utf8, std::string& text, std::string& error);

/// Splits "Name=Value" at its first "=", blanks around the name removed. Nothing without a name.
struct Assignment {
    std::string name;
    std::string value;
};
std::optional<Assignment> splitAssignment(std::string_view text);

}  // namespace exchange
