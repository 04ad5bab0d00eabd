// Splitting, joining, stripping and testing of texts, as the core module offers them.
#pragma once

#include <optional>
#include <string_view>

#include "core_api/text/vor_string_array.h"

/// Splits at the first `separator` into what stands before and after it, as they are. False, with
/// both outputs untouched, when there is none.
VORMANT_API bool splitString(std::string_view text, std::string_view separator, Vor_String& before,
                             Vor_String& after);

/// `text` without blanks, tabs and line ends at both ends.
VORMANT_API std::string_view trimmed(std::string_view text);

/// As splitString for one character; `trimBlanks` removes blanks around both parts.
VORMANT_API bool splitStringAtSymbol(std::string_view text, char symbol, Vor_String& before,
                                     Vor_String& after, bool trimBlanks);

/// Splits at every `symbol`; the empty text gives one empty part.
VORMANT_API Vor_StringArray splitStringAtSymbol(std::string_view text, char symbol,
                                                bool trimBlanks);

/// Splits and joins at one character. strToArr of the empty text gives no items.
VORMANT_API Vor_StringArray strToArr(std::string_view text, char separator);
VORMANT_API Vor_String arrToStr(const Vor_StringArray& items, std::string_view separator);

/// Rows of columns from lines split at `separator`, and back.
VORMANT_API Vor_Array<Vor_StringArray> arrToArrArr(const Vor_StringArray& lines, char separator);
VORMANT_API Vor_StringArray arrArrToArr(const Vor_Array<Vor_StringArray>& rows, char separator);

/// Removes `symbol` at both ends (first flag) and inside (second flag).
VORMANT_API Vor_String stripSymbols(std::string_view text, char symbol, bool ends, bool inside);

/// The part before or after the first `separator`. Without a separator: the whole text when
/// `wholeIfAbsent`, else the empty text.
VORMANT_API Vor_String getSubstrBefore(std::string_view text, std::string_view separator,
                                       bool wholeIfAbsent = true);
VORMANT_API Vor_String getSubstrAfter(std::string_view text, std::string_view separator,
                                      bool wholeIfAbsent = false);

/// True when the whole text, blanks around it aside, is one decimal number ("-12.5", "1e3").
VORMANT_API bool isNumber(std::string_view text);

/// The number at the start of `text` after blanks as the C library's atof reads it in the C
/// locale (no infinities, NaN or hexadecimal); 0 when there is none.
VORMANT_API double textToDouble(std::string_view text);
VORMANT_API int textToInt(std::string_view text);

/// Second and later occurrences, letter case aside.
VORMANT_API bool hasDuplicates(const Vor_StringArray& texts);
VORMANT_API Vor_Array<int> getDuplicateIndexes(const Vor_StringArray& texts);
VORMANT_API Vor_StringArray getDuplicates(const Vor_StringArray& texts);

/// The letters of column `column` (from 1): A, Z, AA. Empty below 1.
VORMANT_API Vor_String getAlfabet(int column);

/// True, with the first such name in `found`, when `text` contains one of `names`.
VORMANT_API bool hasASubstr(std::string_view text, const Vor_StringArray& names, Vor_String& found,
                            bool caseMatters = false);

/// `candidate` if it is not among `taken`, else candidate + "_" + the smallest free number from 1.
VORMANT_API Vor_String findNonExistingString(const Vor_StringArray& taken,
                                             std::string_view candidate);

/// Block comments from `open` to `close` removed, also unclosed ones up to the end.
VORMANT_API Vor_String removeComments(std::string_view text, std::string_view open,
                                      std::string_view close);
/// Everything from the first `mark` on removed, and blanks before it.
VORMANT_API Vor_String removeLineComment(std::string_view text, std::string_view mark);

/// Any of \ / : * ? " < > | and control characters.
VORMANT_API bool hasInvalidFileNameChars(std::string_view text);

/// `length` letters and digits from the system's random source into `text`. False when the source
/// fails. `avoidSame`: the result differs from what `text` held.
VORMANT_API bool generateRandomString(int length, Vor_String& text, bool avoidSame);

/// Natural order: digit runs compare as numbers, the rest ignoring case. The index taken.
VORMANT_API int ObjectExportAddToSorted(Vor_StringArray& sorted, const Vor_String& text);

/// Paths as the host writes them, separated by backslashes (slashes are understood too).
/// The folder with its closing backslash; empty for a bare name.
VORMANT_API Vor_String getPath(std::string_view path);
/// The name with its extension.
VORMANT_API Vor_String getFileName(std::string_view path);
VORMANT_API Vor_String removeExtension(std::string_view path);
/// `extension` without its dot.
VORMANT_API Vor_String changeExtension(std::string_view path, std::string_view extension);
VORMANT_API Vor_String ensureNoStartBSlash(std::string_view path);
/// The empty path, which means "here", stays empty.
VORMANT_API Vor_String ensureEndBSlash(std::string_view path);
