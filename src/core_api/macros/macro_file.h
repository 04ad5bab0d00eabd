// Macros on disk: a property-list file NAME.macro beside the drawing NAME.dwg, readable and made to
// be compared line by line (docs/macro-files.md describes it for users). Keys are paths of names;
// a dot inside a name is written twice. What has parts is declared by its own line first:
//
//     i macro.version 1                 the first line
//     d general.gen_Gap 10              a general variable
//     s profile.0 HEA-200               section of base profile 0;  s .material .member
//     s standard.0 Fin plate            an attached standard;  s .key
//     s module.Plate1 plate             plate, bolt, profile, weld, other;  s .group
//     d module.Plate1.var.D1 120        a constraint variable;  b .dialog .editable  s .flex
//     s module.Plate1.cut.C1 notch      the type of a cut;  d .offset .polyOffset … .radius
//     d module.Bolts1.diameter 16       d module.Bolts1.holeOffset 2
//     s module.Bolts1.pattern.P1 grid   row, grid, circle;  i .count1 .count2  b .reverse1
//     .reverse2 s module.Braces.placement.Left L-50x50x5   its section;  s .material .member
//
// Reading is all or nothing. Writing is atomic and gives the same bytes for equal macros.
#pragma once

#include <string_view>

#include "core_api/macros/vor_db_macro.h"
#include "core_api/property_list.h"

/// The path of the file that holds the content of a macro drawing: ".dwg" becomes ".macro", any
/// other path stays.
VORMANT_API Vor_String macroFilePath(std::string_view path);

/// Reads the macro file of `path` (host style; ".dwg" or ".macro"; at most 16 MiB). eInvalidInput,
/// with `macro` as it was and `message` saying file:line: what is wrong; what to do.
VORMANT_API ErrorStatus loadMacro(std::string_view path, Vor_DbMacro& macro, Vor_String& message);
/// Writes it whole or not at all. eInvalidInput with a message when it cannot be written or there
/// is no macro.
VORMANT_API ErrorStatus saveMacro(std::string_view path, const Vor_DbMacro& macro,
                                  Vor_String& message);

/// The same from and to properties. `source` names them in messages.
VORMANT_API ErrorStatus readMacro(const Vor_PropertyList& properties, std::string_view source,
                                  Vor_DbMacro& macro, Vor_String& message);
VORMANT_API ErrorStatus writeMacro(const Vor_DbMacro& macro, Vor_PropertyList& properties,
                                   Vor_String& message);
