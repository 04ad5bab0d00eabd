// Text files of other programs as sheets: comma-separated values and their kin. The bytes are
// UTF-8 or UTF-16 with a byte order mark, UTF-8 without one, or else Windows-1252.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"
#include "spread/control/grid.h"

namespace editor {

enum class DecimalMark { guessed, point, comma };

struct CsvSettings {
    char separator = '\0';  ///< '\0' guesses among comma, semicolon and tab
    DecimalMark decimalMark = DecimalMark::guessed;
    bool formulas = true;  ///< "=…" is a formula where it is one, else a text
};

/// Makes `grid` the table of the file, in general cells. Numbers become numbers when nothing of
/// their text is lost: "007" stays a text, "1.50" too; with a decimal comma (guessed in files
/// separated by semicolons that have such numbers) "1.234,5" is 1234.5. False with why, where and
/// what to do in `error`, and the grid as it was.
VORMANT_API bool importCsv(control::Grid& grid, std::string_view bytes, const CsvSettings& settings,
                           std::string& error);

/// The bytes as Windows-1252. Nothing, with `error`, when a character does not exist there.
VORMANT_API std::optional<std::string> decodeTextFile(std::string_view bytes, std::string& error);
/// The first of tab, semicolon and comma that parts the first lines into rows of the same length,
/// else the one that stands there most often.
VORMANT_API char guessSeparator(std::string_view text);

}  // namespace editor
