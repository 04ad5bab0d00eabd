// What a bill is made of and how, as a call or a window says it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "bill/bill_from_parts.h"
#include "bill/vor_bill.h"
#include "core_api/macros/vor_db_macro.h"
#include "core_api/text/vor_string_array.h"

namespace bills {

/// The macro of a file that is open and may have changed; null for other files.
using OpenMacro = std::function<const Vor_DbMacro*(const Vor_String& path)>;

/// Texts are Windows-1252, paths those of the module.
struct BillChoice {
    /// Macro files, each as often as it is counted; or none, and `table` is a CSV file.
    Vor_StringArray macros;
    Vor_String table;
    /// Codes or headings; none: the usual ones, or all of the table.
    Vor_StringArray columns;
    /// The code of a grouping, or a column of the table. Empty: by kind, or no groups.
    Vor_String group;
    Vor_String title;  ///< empty: the name of the file that is written
    OpenMacro openMacro;

    bool isTable() const { return !table.isEmpty(); }
};

/// Nothing with the reason, which names the file or the word that is wrong; `isWrongCall`, unless
/// null, becomes whether it is a word.
std::optional<Vor_Bill> makeBill(const BillChoice& choice, std::string& error,
                                 bool* isWrongCall = nullptr);

/// Whether `target` is one of the files that the bill is made of, under whatever name.
bool isSource(const BillChoice& choice, const Vor_String& target);
/// Both paths lead to the same file.
bool isSameFile(const Vor_String& a, const Vor_String& b);

/// The rows of which no mass is known although there is a column for it, by what they show.
Vor_StringArray rowsWithoutMass(const Vor_Bill& bill);
/// The sections in a bill with masses whose table says another mass than their dimensions give:
/// "HEA-225 (16.7 / 51.63 kg/m)".
Vor_StringArray doubtfulMasses(const Vor_Bill& bill);

}  // namespace bills
