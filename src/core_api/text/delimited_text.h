// Rows of fields separated by one character, as spreadsheets exchange them (comma-separated values,
// the clipboard): a field may stand in double quotes, a quote inside is doubled, a quoted field may
// run over several lines.
//
// Programs that read records one by one, from files without end, and must say where one is wrong
// have a reader of their own (apps/cli/io/csv.h): here a person looks at what came of it, so that
// nothing is refused.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"

class VORMANT_API DelimitedText {
  public:
    /// `text` is borrowed. Lines end in "\n", "\r\n" or "\r".
    DelimitedText(std::string_view text, char separator) : m_rest(text), m_separator(separator) {}

    /// The next row; false at the end. A quote that is never closed is an ordinary character, and
    /// so is what follows a closing quote: no text is lost.
    bool next(std::vector<std::string>& fields);
    /// Where the row given last began, from 1.
    int lineNumber() const { return m_rowLine; }

  private:
    bool takeField(std::string& field);

    std::string_view m_rest;
    char m_separator;
    int m_line = 1;
    int m_rowLine = 0;
};

/// Appends a field to a row, in quotes where it would not read back otherwise.
VORMANT_API void appendField(std::string& row, std::string_view field, char separator);

// --- sheets -------------------------------------------------------------------------------------
//
// A field that starts with "=" is a formula. A text that does has an apostrophe before it, and so
// has a text with apostrophes before its "=", so that every text comes back as it was.

VORMANT_API void appendTextField(std::string& row, std::string_view text, char separator);
/// The text of a field that holds one with such an apostrophe; other fields as they are.
VORMANT_API std::string_view textOfField(std::string_view field);

/// For exports that people open in spreadsheets: an apostrophe also stands before a text that some
/// of these take for a formula: one that starts with "+", "@", a tab, a line end, or with "-"
/// unless it is a number.
VORMANT_API void appendGuardedField(std::string& row, std::string_view text, char separator);
