// Macros on disk: a property-list file NAME.macro beside the drawing NAME.dwg, readable and made to
// be compared line by line (docs/macro-files.md describes it for users). Keys are paths:
//
//     general.gen_Gap                      a general variable
//     profile.0.section, .material, .member  base profile 0
//     standard.0.name, standard.0.key      an attached standard and its mapping key
//     module.Plate1.kind                   plate, bolt, profile, weld, other; first of its module
//     module.Plate1.group
//     module.Plate1.var.D1                 a constraint variable; .flags: shown editable fixed …
//     module.Plate1.cut.C1                 the type of a cut; .offset, .polyOffset … .radius
//     module.Bolts1.bolts.diameter, .holeOffset
//     module.Bolts1.pattern.P1             row, grid, circle; .count1 .count2 .reverse1 .reverse2
//     module.Braces.placement.Left.section, .material, .member
//
// A dot inside a name is written twice. Reading is all or nothing.
#pragma once

#include <string_view>

#include "core_api/macros/vor_db_macro.h"

inline constexpr std::size_t maxMacroFileSize = 16 * 1024 * 1024;  // bytes

/// The path of the file that holds the content of a macro drawing: ".dwg" becomes ".macro", any
/// other path stays.
VORMANT_API Vor_String macroFilePath(std::string_view path);

/// Reads the macro file of `path` (host style; ".dwg" or ".macro"). eInvalidInput, with `macro` as
/// it was and `message` saying file:line: what is wrong: what to do.
VORMANT_API ErrorStatus loadMacro(std::string_view path, Vor_DbMacro& macro, Vor_String& message);
/// Writes it whole or not at all. eInvalidInput with a message when it cannot be written or there
/// is no macro.
VORMANT_API ErrorStatus saveMacro(std::string_view path, const Vor_DbMacro& macro,
                                  Vor_String& message);

/// The same on texts (Windows-1252 bytes). `source` names the text in messages.
VORMANT_API ErrorStatus readMacroText(std::string_view text, std::string_view source,
                                      Vor_DbMacro& macro, Vor_String& message);
VORMANT_API Vor_String writeMacroText(const Vor_DbMacro& macro);
