// Texts as the parts of a workbook write them.
#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// A part of a package: the line that says it is XML, and its root.
std::string xmlPart(std::string_view root);

/// Appends a text in Windows-1252 as UTF-8 that is well-formed whatever it holds: a control
/// character becomes _x0007_, as the format wants it, and an underscore that would begin such a
/// mark _x005F_.
void appendXmlText(std::string& xml, std::string_view text);
/// "<t>text</t>", whose blanks at the edges count.
std::string xmlTextElement(std::string_view text);
/// The same between the quotes of an attribute, without control characters.
std::string xmlAttribute(std::string_view text);
/// A number that reads back to the same double, in the same way in every locale.
void appendXmlNumber(std::string& xml, double number);
std::string xmlNumber(double number);

}  // namespace exchange
