// Words of the user interface by number, in the working language. The numbers are the module's
// vocabulary: dialogs name them, the tables beside this header (text_tables.h) say them.
#pragma once

#include "core_api/settings.h"
#include "core_api/text/vor_string_array.h"

/// The text in the working language; "#number" for a number without an entry.
VORMANT_API Vor_String dialString(int number);
/// The text in one language.
VORMANT_API Vor_String dialString(int number, Language language);
/// The text in every language, in the order of MacroLangs.
VORMANT_API Vor_StringArray dialStringAllLangs(int number);

/// Of a name in every language: that in the working language, else the first that is not empty.
VORMANT_API Vor_String nameToShow(const Vor_StringArray& names);

/// The languages by name, as they stand in section tables.
class VORMANT_API MacroLangs {
  public:
    int GetNrLanguages() const { return languageCount; }
    Vor_StringArray GetAllLanguages() const;
    /// The working language.
    Vor_String GetCurLanguage() const;
    /// A word that a library's files have in any language, in the working one. `section` says what
    /// the words are about: "Prof" knows the values of sections ("Height", "Lip2"). Words that it
    /// does not know come back as they are.
    Vor_String GetString(std::string_view section, const Vor_String& word) const;
};

extern VORMANT_API MacroLangs gMacroLangs;
