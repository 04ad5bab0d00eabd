// From a formula's text to its program.
//
//   formula    = comparison
//   comparison = join { ("=" | "<>" | "<" | "<=" | ">" | ">=") join }
//   join       = sum { "&" sum }
//   sum        = product { ("+" | "-") product }
//   product    = power { ("*" | "/") power }
//   power      = unary { "^" unary }
//   unary      = { "+" | "-" } postfix            so that -2^2 is 4, as in every spreadsheet
//   postfix    = range { "%" }
//   range      = primary { ":" primary }
//   primary    = number | text | error | TRUE | FALSE | reference | name "(" arguments ")"
//              | "(" comparison ")" | "{" matrix "}"
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"
#include "spread/control/formula/program.h"

namespace formula {

inline constexpr int maxNesting = 256;
inline constexpr size_t maxFormulaLength = 32768;

enum class ReferenceStyle { a1, r1c1 };

/// What a formula is compiled against.
struct ParseSettings {
    int hostCol = 1;
    int hostRow = 1;
    ReferenceStyle style = ReferenceStyle::a1;
    /// The whole formula is an array formula ("{=…}" in one cell).
    bool arrayFormula = false;
    /// Other cells may well hold the same formula, as when it is filled down: they share it.
    bool isShared = true;
    /// Registered functions by name, letter case aside; null for none.
    const CustomFunction* (*findCustom)(const void* registry, std::string_view name) = nullptr;
    /// One of them has the name of a function of ours, and goes before it.
    bool customReplaces = false;
    const void* registry = nullptr;
};

/// Why a text is no formula: what, and at which position from 0.
struct ParseError {
    std::string message;
    size_t position = 0;
};

/// The program of `text` (without "="), or an empty one with `error` filled. An unknown name or
/// function is an error.
VORMANT_API ProgramRef parse(std::string_view text, const ParseSettings& settings,
                             ParseError& error);

/// `text` with every reference replaced by what `move` gives for it; nothing when `text` does not
/// scan. Blanks, letter case and everything else stay as typed. `move` gets the area (from 1) and
/// gives its new place, or nothing for #REF!. With `relativeOnly` absolute parts ($) are kept.
struct MovedReference {
    Area area;
    bool rowsAbsolute[2] = {false, false};
    bool colsAbsolute[2] = {false, false};
    bool wholeCols = false;  ///< A:C
    bool wholeRows = false;  ///< 1:3
};
using MoveReference = std::function<bool(MovedReference&)>;
VORMANT_API std::optional<std::string> rewriteReferences(std::string_view text,
                                                         const MoveReference& move);

/// Changes the notation of every reference, seen from a formula in (hostCol, hostRow).
VORMANT_API std::optional<std::string> convertStyle(std::string_view text, ReferenceStyle from,
                                                    ReferenceStyle to, int hostCol, int hostRow);

}  // namespace formula
