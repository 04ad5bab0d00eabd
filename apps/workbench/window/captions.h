// Captions of dialogs mark the letter that Alt reaches them by: "&" before it; "&&" is the
// character itself. Qt writes it the same way, but takes every "&" for a mark, also the one in
// "bolts & welds" from a user's file.
#pragma once

#include <QString>
#include <string_view>

/// For widgets that know marks.
QString captionOf(std::string_view text);
/// Without marks, for those that do not.
QString plainCaptionOf(std::string_view text);
bool hasMark(std::string_view text);
/// As a tool tip, which shows the characters of markup as they are.
QString tipOf(std::string_view text);
